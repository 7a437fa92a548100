#pragma once
// Ages from depths and depths from ages, each with the two errors of that
// age, from the control points of the age-depth model. Between two control
// points the age runs linearly in EFD, or by the counted varves where the
// varve record covers both points.
#include <optional>
#include <vector>

#include "core/bore_hole_set.h"
#include "runtime/checked_int.h"
#include "runtime/variant.h"

namespace ostraline {

// Each writes AgeErrorPlus and AgeErrorMinus and, unless DriveIndex is 0, the
// caption of frmMain.Label9. The two age lookups also leave their pair of rows
// in AgeRowLower and AgeRowUpper; GetEFDFromAge keeps its pair to itself.
// The sentinels 9999 and -9999 pass through the age lookups. A cell that is
// no number, or a pair of rows with equal values, fails to the caller.
Variant GetAgeFromCD(BoreHoleSet& set, Single cd);
inline Variant GetAgeFromCD(Single cd) {
  return GetAgeFromCD(masterSet, cd);
}
Variant GetAgeFromEFD(BoreHoleSet& set, Single efd);
inline Variant GetAgeFromEFD(Single efd) {
  return GetAgeFromEFD(masterSet, efd);
}
// The EFD of an age, unrounded; on the varve path it lands on a marker.
Variant GetEFDFromAge(BoreHoleSet& set, Single age);
inline Variant GetEFDFromAge(Single age) {
  return GetEFDFromAge(masterSet, age);
}

class MainForm;
// The age of the form's composite depth in its age box, unless the age box
// drives, with the unit and the errors and their confidence levels.
void DisplayAge(BoreHoleSet& set, MainForm& form);

// The ages of the control points in rising order, when between any two of
// them the EFD of an age rises with the age: the ages rise strictly, the EFDs
// never fall, every age, EFD and error reads as a number and no varve record
// bends the line. Nothing otherwise.
std::optional<std::vector<Single>> RisingControlAges(BoreHoleSet& set);

}  // namespace ostraline
