#pragma once
// What a main form's view is made of, the master's or the Duo's: the span of
// its columns, and the Scale of its model that its columns show (the master
// the selected depth axis, the Duo its own composite depth or the master's).
#include "core/bore_hole_set.h"
#include "runtime/checked_int.h"

namespace ostraline {

class Control;
class MainForm;

Integer& ViewSpanOf(const BoreHoleSet& set);
Integer& ViewSpanOf(const MainForm& form);
// The span of the main form that a column, the strip or a panel stands on.
Integer& ViewSpanOf(const Control& onMainForm);
Integer ColumnScaleOf(const BoreHoleSet& set);
// Whether the set's columns stand on the master's composite scale: the Duo's
// when they fit the master's core. Its event layers and control points,
// which the Duo knows by its own composite depth, are then mapped there.
bool OnMasterScale(const BoreHoleSet& set);

}  // namespace ostraline
