#pragma once
// The master's age-depth model carried over to the Duo's parallel set.

namespace ostraline {

// Leaves at once unless the master has an age model and the Duo form is open
// with its model; called at the end of the master's age and varve imports.
void CopyAgeModelToDuo();

}  // namespace ostraline
