#include "support/fresh_program.h"

#include "core/project_state.h"
#include "display/display_state.h"
#include "display/form.h"
#include "events/event_state.h"

namespace ostraline {

void ResetProgram() {
  FormSlot::ResetAll();
  coreState = CoreState{};
  displayState = DisplayState{};
  eventState = EventState{};
}

void FreshProgram::SetUp() {
  SetPlatform(&platform);
  ResetProgram();
}

void FreshProgram::TearDown() {
  ResetProgram();
  SetPlatform(nullptr);
}

}  // namespace ostraline
