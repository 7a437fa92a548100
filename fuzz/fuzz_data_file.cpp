// Any bytes read as a data file to convert, after the sample project's
// correlation model, event list, age-depth model and varve counts, end in the
// program's own message or in a conversion that writes a row for each row
// read; never in a crash or a hang.
#include <cstddef>
#include <cstdint>

#include "forms/frm_conversion.h"
#include "forms/frm_main.h"
#include "fuzz/support/conversion_checks.h"
#include "fuzz/support/sample_chain.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace ostraline;
  static const fuzz::SampleChain chain({fuzz::SampleFile::Model, fuzz::SampleFile::Events,
                                        fuzz::SampleFile::Ages, fuzz::SampleFile::Varves});
  ScriptedPlatform& platform = chain.Restore();
  fuzz::ConvertDataFile(platform, *frmMain, frmConversion, data, size);
  return 0;
}
