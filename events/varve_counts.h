#pragma once
// The counted varves between two control points of the age-depth model.
#include "core/bore_hole_set.h"
#include "runtime/checked_int.h"

namespace ostraline {

struct VarveSums {
  Single below = 0;
  Single above = 0;
};

// The varves counted between the lower control point and the depth, and
// between the depth and the upper control point, all composite depths. An
// interval counts whole, on the side of its deeper marker; a marker exactly at
// the depth or at either control point counts for neither side.
VarveSums VarveSumsAt(BoreHoleSet& set, Single depth, Single lowerDepth, Single upperDepth);
inline VarveSums VarveSumsAt(Single depth, Single lowerDepth, Single upperDepth) {
  return VarveSumsAt(masterSet, depth, lowerDepth, upperDepth);
}

// The way back from an age: the depth below the marker at or above the lower
// control point at which the count reaches the share before / (before + after)
// of the varves between the two points. Quantised to markers, one short of
// the marker at which the count passes that share.
Single VarveOffset(BoreHoleSet& set, Single lowerDepth, Single upperDepth, Single before,
                   Single after);
inline Single VarveOffset(Single lowerDepth, Single upperDepth, Single before, Single after) {
  return VarveOffset(masterSet, lowerDepth, upperDepth, before, after);
}

class MainForm;
class FrmVersion;
// The varve record of a set through the form's dialog, its version shown on
// the set's version form. False after a failure, which has been reported.
bool ImportVarveCounts(BoreHoleSet& set, MainForm& form, FrmVersion& versions);

}  // namespace ostraline
