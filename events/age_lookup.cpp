// The age of the target horizon: lookups in the age-depth model's control
// points, and the age box with its unit and errors.
#include "events/age_lookup.h"

#include <string>

#include "core/core_bottom.h"
#include "core/entry_focus.h"
#include "core/project_state.h"
#include "events/event_free_depth.h"
#include "events/event_state.h"
#include "events/varve_counts.h"
#include "forms/frm_main.h"
#include "forms/platform.h"
#include "runtime/number_text.h"

namespace ostraline {
namespace {

// Columns of the age-depth model.
constexpr int kDepth = 5;
constexpr int kErrorPlus = 6;
constexpr int kAge = 7;
constexpr int kErrorMinus = 8;
constexpr int kUnit = 9;
constexpr int kEfd = 11;

// Comparisons are made single with single, arithmetic in double; a cell that
// is no number fails either way.
Single CellSingle(int column, long row) {
  return CSng(AgeModel(column, row));
}
double CellDouble(int column, long row) {
  return CDbl(AgeModel(column, row));
}

// The pair of rows around x in one column. The scan does not stop at a hit,
// so in a table that is not monotonic the last hit counts; beyond either end
// the end pair holds, and that is all the extrapolation of age there is.
void BracketSearch(int column, Single x, Integer& lower, Integer& upper) {
  for (long i = 1; i <= AgeModelCount - 1; ++i) {
    // Both cells are read whatever the first test gives.
    const bool atOrAbove = CellSingle(column, i) <= x;
    const bool nextBelow = CellSingle(column, i + 1) > x;
    if (atOrAbove && nextBelow) {
      lower = i;
      upper = i + 1;
    }
  }
  if (CellSingle(column, 1) <= x) {
    if (CellSingle(column, AgeModelCount) <= x) {
      lower = AgeModelCount - 1;
      upper = AgeModelCount.Get();
    }
  } else {
    lower = 1;
    upper = 2;
  }
}

// A column's value at the lower row plus its difference to the upper row
// times part / whole, computed in this order.
double Between(int column, long lower, long upper, double part, double whole) {
  const double low = CellDouble(column, lower);
  return low + Divide((CellDouble(column, upper) - low) * part, whole);
}

void ErrorsBetween(long lower, long upper, double part, double whole) {
  AgeErrorPlus = CSng(Between(kErrorPlus, lower, upper, part, whole));
  AgeErrorMinus = CSng(Between(kErrorMinus, lower, upper, part, whole));
}

void SayInterpolatedBy(const char* caption) {
  if (DriveIndex != 0) frmMain->Label9.Caption = caption;
}

// The varve record must span both rows of the pair, not only the point looked up.
bool VarvesSpanPair(int column, Single top, Single bottom) {
  const bool lowerOutside = CellSingle(column, AgeRowLower) < top;
  const bool upperOutside = CellSingle(column, AgeRowUpper) > bottom;
  return !lowerOutside && !upperOutside;
}

VarveSums VarveSumsInPair(Single cd) {
  return VarveSumsAt(cd, CellSingle(kDepth, AgeRowLower), CellSingle(kDepth, AgeRowUpper));
}

Variant AgeByEfd(Single efd) {
  const double efdLower = CellDouble(kEfd, AgeRowLower);
  const double part = static_cast<double>(efd) - efdLower;
  const double whole = CellDouble(kEfd, AgeRowUpper) - efdLower;
  const double age = Between(kAge, AgeRowLower, AgeRowUpper, part, whole);
  ErrorsBetween(AgeRowLower, AgeRowUpper, part, whole);
  SayInterpolatedBy("(interpolated by EFD)");
  return age;
}

Variant AgeByVarves(const VarveSums& sums) {
  const double whole = static_cast<Single>(sums.above + sums.below);
  const double age = Between(kAge, AgeRowLower, AgeRowUpper, sums.below, whole);
  ErrorsBetween(AgeRowLower, AgeRowUpper, sums.below, whole);
  return age;
}

Variant Sentinel(Single depth) {
  AgeErrorPlus = depth;
  AgeErrorMinus = depth;
  return depth;
}

// The varve path of the way back, for the pair lower, upper of the ages.
Variant EfdFromAgeByVarves(Single age, long lower, long upper) {
  // The ages of the two rows as the forward lookup gives them.
  const Single ageLower = GetAgeFromEFD(CSng(Val(AgeModel(kEfd, lower)))).ToSingle();
  const Single ageUpper = GetAgeFromEFD(CSng(Val(AgeModel(kEfd, upper)))).ToSingle();
  const Single offset = VarveOffset(CellSingle(kDepth, lower), CellSingle(kDepth, upper),
                                    age - ageLower, ageUpper - age);
  // The depth cells take part in the sums as doubles: the composite depth is
  // narrowed to a single only where it is handed on.
  const double depthLower = CellDouble(kDepth, lower);
  const Variant efd = CDToEFD(CSng(depthLower + offset));
  // Here the errors go by depth, not by age.
  ErrorsBetween(lower, upper, offset, CellDouble(kDepth, upper) - depthLower);
  frmMain->ProgressBar1.Value = 0;
  frmMain->ProgressBar1.Visible = false;
  Screen.SetMousePointer(0);
  return efd;
}

void ShowUnit(FrmMain& form) {
  const std::string& unit = AgeModel(kUnit, AgeRowLower);
  // Two control points in different units: no single unit can be named.
  if (unit != AgeModel(kUnit, AgeRowUpper)) {
    form.Label7.Caption = "Age (Hybrid unit)";
  } else {
    form.Label7.Caption = "Age (" + unit + ")";
  }
}

// The errors with their confidence levels where the age was looked up from a
// depth, and bare where it was typed in.
void ShowErrors(FrmMain& form, bool withLevels) {
  const double plus = Round(AgeErrorPlus, AgePrecision);
  const double minus = Round(AgeErrorMinus, AgePrecision);
  const std::string p = Str(plus);
  const std::string m = Str(minus);
  if (plus != minus) {
    form.Label8.Caption = withLevels ? "Error:  +" + p + " (" + ErrorLevelPlus + ")/ -" + m + " (" +
                                           ErrorLevelMinus + ")"
                                     : "Error:  +" + p + " / -" + m;
  } else {
    form.Label8.Caption =
        withLevels ? "Error:  +/- " + p + " (" + ErrorLevelPlus + ")" : "Error:  +/- " + p;
  }
}

}  // namespace

Variant GetAgeFromEFD(Single efd) {
  if (efd == -9999 || efd == 9999) return Sentinel(efd);
  BracketSearch(kEfd, efd, AgeRowLower, AgeRowUpper);
  if (!VarveCountsLoaded || efd < VarveTopEFD || efd > VarveBottomEFD ||
      !VarvesSpanPair(kEfd, VarveTopEFD, VarveBottomEFD)) {
    return AgeByEfd(efd);
  }
  const VarveSums sums = VarveSumsInPair(EFDToCD(efd).ToSingle());
  Variant age;
  if (static_cast<Single>(sums.below + sums.above) == 0) {
    // No counted varve on either side: the upper row's values.
    age = Between(kAge, AgeRowLower, AgeRowUpper, 1, 1);
    ErrorsBetween(AgeRowLower, AgeRowUpper, 1, 1);
  } else {
    age = AgeByVarves(sums);
  }
  SayInterpolatedBy("(interpolated by varve count)");
  return age;
}

Variant GetAgeFromCD(Single cd) {
  if (cd == -9999 || cd == 9999) return Sentinel(cd);
  if (VarveCountsLoaded && !(cd < VarveTopCD) && !(cd > VarveBottomCD)) {
    BracketSearch(kDepth, cd, AgeRowLower, AgeRowUpper);
    if (VarvesSpanPair(kDepth, VarveTopCD, VarveBottomCD)) {
      const VarveSums sums = VarveSumsInPair(cd);
      Variant age;
      if (sums.below == sums.above) {
        // Unlike the lookup from an EFD, which gives the upper row here: the
        // lower row's age as its cell has it.
        age = AgeModel(kAge, AgeRowLower);
        AgeErrorPlus = CellSingle(kErrorPlus, AgeRowLower);
        AgeErrorMinus = CellSingle(kErrorMinus, AgeRowLower);
      } else {
        age = AgeByVarves(sums);
      }
      SayInterpolatedBy("(interpolated by varve count)");
      return age;
    }
  }
  // This path works on the depth rounded to DepthPrecision.
  return GetAgeFromEFD(CDToEFD(cd).ToSingle());
}

Variant GetEFDFromAge(Single age) {
  Integer lower = 0;
  Integer upper = 0;
  BracketSearch(kAge, age, lower, upper);
  const Single efdLower = CellSingle(kEfd, lower);
  const Single efdUpper = CellSingle(kEfd, upper);
  if (VarveCountsLoaded) {
    const double ageTop = GetAgeFromEFD(VarveTopEFD).ToDouble();
    const double ageBottom = GetAgeFromEFD(VarveBottomEFD).ToDouble();
    if (!(age < ageTop) && !(age > ageBottom) && !(efdLower < VarveTopEFD) &&
        !(efdUpper > VarveBottomEFD)) {
      return EfdFromAgeByVarves(age, lower, upper);
    }
  }
  const double ageLower = CellDouble(kAge, lower);
  const double part = static_cast<double>(age) - ageLower;
  const double whole = CellDouble(kAge, upper) - ageLower;
  // The two EFDs are singles, and so is their difference.
  const Single efdSpan = efdUpper - efdLower;
  const double efd = efdLower + Divide(part * efdSpan, whole);
  ErrorsBetween(lower, upper, part, whole);
  SayInterpolatedBy("(interpolated by EFD)");
  return efd;
}

void FrmMain::DisplayAge() {
  if (!AgeModelLoaded) return;
  if (DriveIndex != 4) {
    const Variant age = GetAgeFromCD(CSng(Val(Text2.Text)));
    Text4.Text = Str(Round(age.ToDouble(), AgePrecision));
  }
  ShowUnit(*this);
  ShowErrors(*this, true);
}

void FrmMain::Text4_GotFocus() {
  SaveTargetTexts(*this, true);
  DriveIndex = 4;
  PointLine2At(*this, Text4);
}

void FrmMain::Text4_Change() {
  const Single efd = GetEFDFromAge(CSng(Val(Text4.Text))).ToSingle();
  const Single cd = EFDToCD(efd).ToSingle();
  // With the Duo open its own cores may still reach the horizon; their
  // bottoms join this test with the Duo's model.
  if (ActionCount != 9999 && BelowEveryCoreBottom(cd) && !DuoOpen) {
    RefuseBelowCoreBottom(*this);
    return;
  }
  if (DriveIndex == 4) {
    const Variant typed = GetEFDFromAge(CSng(Val(Text4.Text)));
    Text3.Text = Str(Round(typed.ToDouble(), DepthPrecision));
  }
  ShowUnit(*this);
  ShowErrors(*this, false);
}

}  // namespace ostraline
