#include "support/fresh_program.h"

#include "core/project_state.h"
#include "display/display_state.h"
#include "display/form.h"
#include "events/batch_state.h"
#include "events/event_state.h"

namespace ostraline {

void ResetProgram() {
  FormSlot::ResetAll();
  coreState = CoreState{};
  displayState = DisplayState{};
  eventState = EventState{};
  batchState = BatchState{};
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
