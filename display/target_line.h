#pragma once
// The pointer's overlay on the core view: an orange line across the columns
// at the depth under the pointer, erased with Cls so that the committed
// picture stays untouched.
#include "runtime/checked_int.h"

namespace ostraline {

// Paints the overlay at depth y on the selected scale.
void TargetLine(Single y);
// Erases the overlay of the main form; the loaded proxy panels keep their
// green mark of the target.
void ClearTargetLine();
// The green mark of the target at the centre of each loaded panel's view.
void MarkTargetsOnPanels();

}  // namespace ostraline
