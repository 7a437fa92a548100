// Any bytes read as a data file of the Duo, after the sample project's master
// model and event list and the Duo's model and event list, end in the
// program's own message or in a conversion on the Duo's scales that writes a
// row for each row read; never in a crash or a hang.
#include <cstddef>
#include <cstdint>

#include "forms/frm2_conversion.h"
#include "forms/frm2_main.h"
#include "fuzz/support/conversion_checks.h"
#include "fuzz/support/sample_chain.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace ostraline;
  static const fuzz::SampleChain chain({fuzz::SampleFile::Model, fuzz::SampleFile::Events,
                                        fuzz::SampleFile::DuoModel, fuzz::SampleFile::DuoEvents});
  ScriptedPlatform& platform = chain.Restore();
  fuzz::ConvertDataFile(platform, *frm2Main, frm2Conversion, data, size);
  return 0;
}
