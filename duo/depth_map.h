#pragma once
// The map between the two composite scales: linear between the ties of the
// Duo's rows to the master's scale, in EFD when both event lists stand, one
// to one above the first tie and below the last. Results are rounded to
// DepthPrecision; -9999 and 9999 both map to 9999.
#include "runtime/checked_int.h"

namespace ostraline {

Single DuoToMaster(Single depth);
Single MasterToDuo(Single depth);

}  // namespace ostraline
