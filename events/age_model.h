#pragma once
// The age-depth model's import into a set: the master's checks its version
// against the correlation model and reads the confidence levels; the Duo's
// does neither. `finish` runs the form's own steps inside the import's
// failure path.
#include <functional>

#include "core/bore_hole_set.h"

namespace ostraline {

class MainForm;
class FrmVersion;

void ImportAgeModel(BoreHoleSet& set, MainForm& form, FrmVersion& versions,
                    const std::function<void()>& finish);

}  // namespace ostraline
