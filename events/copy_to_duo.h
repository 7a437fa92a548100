#pragma once
// The master's age-depth model carried over to the Duo's parallel set.

namespace ostraline {

// Leaves at once unless the master has an age model, the Duo has none yet,
// the Duo is open with its model, and both event lists stand; called at the
// end of the master's age and varve imports and of the Duo's event import.
void CopyAgeModelToDuo();

}  // namespace ostraline
