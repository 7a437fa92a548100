#pragma once
// The pointer on the columns: depths under the pointer become tool tips and
// brackets, clicks become the new target or open the tools on that horizon.
#include "runtime/checked_int.h"

namespace ostraline {

class MainForm;

// Index 0 the composite column, 1..4 the bore holes, 5 the scale strip.
// Both leave silently on a failure.
void MouseMoveProcedure(int Index, int Button, int Shift, Single X, Single Y);
void MouseDownProcedure(int Index, int Button, int Shift, Single X, Single Y);

// The strip's left click: shows or hides the composite column by the form's width.
void ToggleCompositeColumn(MainForm& form);

}  // namespace ostraline
