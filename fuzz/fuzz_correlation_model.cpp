// Any bytes imported as a correlation model end in the program's own message
// or in a model, never in a crash or a hang. Each input starts from a fresh
// program whose tables keep their storage (see ResetProgram), so that the
// import's five thousand rows cost no new memory.
#include <cstddef>
#include <cstdint>

#include "core/project_state.h"
#include "forms/frm_main.h"
#include "fuzz/support/fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace ostraline;
  ScriptedPlatform& platform = fuzz::ResetProgram();
  platform.QueueFile(fuzz::WriteInputFile(data, size));
  frmMain->Command1_Click();
  const int failures = fuzz::CountMessages(platform, "File format error.");
  fuzz::Require(failures <= 1, "more than one message of the import");
  fuzz::Require(failures == 1 || LastRow >= 1, "refused without a word");
  return 0;
}
