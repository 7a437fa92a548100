#pragma once
// A horizon below every core: refused, and the boxes go back.

namespace ostraline {

class MainForm;

// Strictly below each CoreBottom of the master set.
bool BelowEveryCoreBottom(double depth);
// "Requested horizon is below core bottom.", then the boxes take the texts
// saved when they got the focus; these writes run their handlers anew.
void RefuseBelowCoreBottom(MainForm& form);

}  // namespace ostraline
