// Any bytes imported as a correlation model end in the program's own message
// or in a model, never in a crash or a hang.
#include <cstddef>
#include <cstdint>

#include "forms/frm_main.h"
#include "fuzz/support/fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  ostraline::ScriptedPlatform& platform = ostraline::fuzz::ResetProgram();
  platform.QueueFile(ostraline::fuzz::WriteInputFile(data, size));
  ostraline::frmMain->Command1_Click();
  return 0;
}
