// Any bytes imported as the Duo's correlation model, after the sample
// project's master model and event list, end in the program's own message or
// in a model tied to the master's, never in a crash or a hang; the map
// between the two scales then answers for any depth.
#include <cstddef>
#include <cstdint>

#include "core/project_state.h"
#include "duo/depth_map.h"
#include "forms/frm2_main.h"
#include "forms/frm_main.h"
#include "fuzz/support/fuzz_support.h"
#include "fuzz/support/sample_chain.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace ostraline;
  static const fuzz::SampleChain chain({fuzz::SampleFile::Model, fuzz::SampleFile::Events});
  ScriptedPlatform& platform = chain.Restore();
  frmMain->LaunchDuo();
  platform.QueueFile(fuzz::WriteInputFile(data, size));
  platform.QueueAnswer(MsgAnswer::No);
  frm2Main->Command1_Click();
  fuzz::Require(platform.messages.size() == 1, "the Duo's model import ends in one message");
  if (DuoOpen) {
    for (const Single depth : {-9999.0f, -5.0f, 0.0f, 150.0f, 1455.5f, 6999.0f, 9999.0f}) {
      DuoToMaster(depth);
      MasterToDuo(depth);
    }
  }
  return 0;
}
