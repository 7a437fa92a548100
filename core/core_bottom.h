#pragma once
// A horizon below every core: refused, and the boxes go back.
#include "core/bore_hole_set.h"

namespace ostraline {

class MainForm;

// Strictly below each CoreBottom of the set.
bool BelowEveryCoreBottom(const BoreHoleSet& set, double depth);
// "Requested horizon is below core bottom.", then the form's boxes take the
// texts saved when they got the focus; these writes run their handlers anew.
void RefuseBelowCoreBottom(BoreHoleSet& set, MainForm& form);

}  // namespace ostraline
