#pragma once
// Steps of the correlation model's import that the form runs after reading
// the file.

#include "core/bore_hole_set.h"

namespace ostraline {

class FrmMain;

// The composite depth of every row in every bore hole, and the core bottoms.
void SweepModelDepths(BoreHoleSet& set, FrmMain& form);
// The section lists, the controls opened, and the first target.
void OpenFormForWork(FrmMain& form);

}  // namespace ostraline
