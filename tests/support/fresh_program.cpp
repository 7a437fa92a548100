#include "support/fresh_program.h"

#include "core/fresh_program.h"
#include "forms/form.h"

namespace ostraline {

void ResetProgram() {
  ResetProgramState();
}

void FreshProgram::SetUp() {
  SetPlatform(&platform);
  ResetProgram();
}

void FreshProgram::TearDown() {
  // A test's own screen observer is gone by now; the forms must not call it.
  SetScreenObserver(nullptr);
  ResetProgram();
  SetPlatform(nullptr);
}

}  // namespace ostraline
