#pragma once
// The event layers of a set of bore holes on its composite scale.
#include "core/bore_hole_set.h"

namespace ostraline {

class FrmMain;

// The layers' composite depths from the event list, sorted by their tops and
// merged where they overlap, and their EFDs; the form shows the EFD of its
// target and the progress of the sort.
void CombineAndSortEvents(BoreHoleSet& set, FrmMain& form);

}  // namespace ostraline
