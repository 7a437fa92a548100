#pragma once
// The pointer on the columns: depths under the pointer become tool tips and
// brackets, clicks become the new target or open the tools on that horizon.
#include "core/bore_hole_set.h"
#include "runtime/checked_int.h"

namespace ostraline {

class MainForm;

// Index 0 the composite column, 1..4 the bore holes, 5 the scale strip of
// the set's form; Y where the pointer is on the columns, or for a click the
// set's depth there. Both leave silently on a failure.
void MouseMoveProcedure(BoreHoleSet& set, int Index, int Button, int Shift, Single X, Single Y);
void MouseDownProcedure(BoreHoleSet& set, int Index, int Button, int Shift, Single X, Single Y);
// The set's depth under the pointer: the Duo's columns that fit the master's
// core stand at the master's depth of their horizons.
Single PointerDepth(const BoreHoleSet& set, Single y);

// The strip's left click: shows or hides the composite column by the form's width.
void ToggleCompositeColumn(MainForm& form);

}  // namespace ostraline
