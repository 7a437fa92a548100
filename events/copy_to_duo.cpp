#include "events/copy_to_duo.h"

#include "core/project_state.h"
#include "events/event_state.h"

namespace ostraline {

// The Duo's own flags (its age model already copied, its event list) join
// these guards together with the Duo's tables, and so does the copy itself.
// Until the Duo can import a parallel model, DuoOpen stays false and the copy
// has nothing to go to.
void CopyAgeModelToDuo() {
  if (!AgeModelLoaded || !DuoOpen || !EventListLoaded) return;
}

}  // namespace ostraline
