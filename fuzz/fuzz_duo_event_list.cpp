// Any bytes imported as the Duo's list of event layers, after the sample
// project's master model and event list and the Duo's model, end in the
// program's own message or in sorted, fused layers with the Duo's model
// placed on the master's scale; never in a crash or a hang.
#include <cstddef>
#include <cstdint>

#include "duo/duo_state.h"
#include "forms/frm2_main.h"
#include "fuzz/support/fuzz_support.h"
#include "fuzz/support/layer_checks.h"
#include "fuzz/support/sample_chain.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace ostraline;
  static const fuzz::SampleChain chain(
      {fuzz::SampleFile::Model, fuzz::SampleFile::Events, fuzz::SampleFile::DuoModel});
  ScriptedPlatform& platform = chain.Restore();
  platform.QueueFile(fuzz::WriteInputFile(data, size));
  frm2Main->Command3_Click();
  fuzz::CheckEventImport(platform, *frm2Main, duoSet);
  return 0;
}
