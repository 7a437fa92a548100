#pragma once
// The pointer's overlay on the core view: an orange line across the columns
// at the depth under the pointer, erased with Cls so that the committed
// picture stays untouched.
#include "core/bore_hole_set.h"
#include "runtime/checked_int.h"

namespace ostraline {

// Paints the overlay at depth y on the scale of the set's form. The master's
// also marks the Duo's form, where the Duo shows the pointer's line.
void TargetLine(BoreHoleSet& set, Single y);
// Erases the overlay of the set's form; its loaded proxy panels keep their
// green mark of the target.
void ClearTargetLine(BoreHoleSet& set);
// The master's, and the Duo's too while it is open.
void ClearTargetLines();
// The green mark of the target at the centre of each loaded panel's view.
void MarkTargetsOnPanels(BoreHoleSet& set);

}  // namespace ostraline
