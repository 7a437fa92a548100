// Any bytes imported as a list of event layers, after the sample project's
// correlation model, end in the program's own message or in sorted, fused
// layers; never in a crash or a hang.
#include <cstddef>
#include <cstdint>

#include "core/project_state.h"
#include "forms/frm_main.h"
#include "fuzz/support/fuzz_support.h"
#include "fuzz/support/layer_checks.h"
#include "fuzz/support/sample_chain.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace ostraline;
  static const fuzz::SampleChain chain({fuzz::SampleFile::Model});
  ScriptedPlatform& platform = chain.Restore();
  platform.QueueFile(fuzz::WriteInputFile(data, size));
  frmMain->Command3.Click();
  fuzz::CheckEventImport(platform, *frmMain, masterSet);
  return 0;
}
