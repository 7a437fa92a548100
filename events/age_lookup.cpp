// The age of the target horizon: lookups in the age-depth model's control
// points, and the age box with its unit and errors.
#include "events/age_lookup.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "core/core_bottom.h"
#include "core/entry_focus.h"
#include "core/project_state.h"
#include "duo/duo_state.h"
#include "events/event_free_depth.h"
#include "events/event_state.h"
#include "events/varve_counts.h"
#include "forms/frm_main.h"
#include "forms/platform.h"
#include "runtime/failure.h"
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

// The numbers of one column, read anew when the table has changed since.
[[gnu::noinline]] const NumberColumn& ReadNumbers(BoreHoleSet& set, int column) {
  NumberColumn& numbers = set.Derived.ageColumns[column];
  const Table<std::string, 2>& table = set.AgeModel;
  numbers.tableRevision = table.Revision();
  if (numbers.built && numbers.revision == table.Revision(column)) return numbers;
  const long last = table.Allocated() ? table.UBound(2) : -1;
  const auto rows = static_cast<std::size_t>(last + 1);
  numbers.singles.assign(rows, 0);
  numbers.doubles.assign(rows, 0);
  numbers.isSingle.assign(rows, 0);
  numbers.isDouble.assign(rows, 0);
  for (long row = 0; row <= last; ++row) {
    const std::string& cell = table(column, row);
    const auto k = static_cast<std::size_t>(row);
    try {
      numbers.singles[k] = CSng(cell);
      numbers.isSingle[k] = 1;
    } catch (const RuntimeFailure&) {
    }
    try {
      numbers.doubles[k] = CDbl(cell);
      numbers.isDouble[k] = 1;
    } catch (const RuntimeFailure&) {
    }
  }
  numbers.revision = table.Revision(column);
  numbers.built = true;
  numbers.risingFor = -1;
  return numbers;
}
// Called for every cell a lookup reads: the test that nothing has changed is
// all it costs then.
inline const NumberColumn& Numbers(BoreHoleSet& set, int column) {
  const NumberColumn& numbers = set.Derived.ageColumns[column];
  if (numbers.built && numbers.tableRevision == set.AgeModel.Revision()) return numbers;
  return ReadNumbers(set, column);
}

// Comparisons are made single with single, arithmetic in double; a cell that
// is no number fails either way, read from its text as it stands.
[[gnu::noinline]] Single TextSingle(BoreHoleSet& set, int column, long row) {
  return CSng(std::as_const(set.AgeModel)(column, row));
}
[[gnu::noinline]] double TextDouble(BoreHoleSet& set, int column, long row) {
  return CDbl(std::as_const(set.AgeModel)(column, row));
}
inline Single CellSingle(BoreHoleSet& set, int column, long row) {
  if (FastLookups) {
    const NumberColumn& numbers = Numbers(set, column);
    if (row >= 0 && row < static_cast<long>(numbers.isSingle.size()) && numbers.isSingle[row])
      return numbers.singles[row];
  }
  return TextSingle(set, column, row);
}
inline double CellDouble(BoreHoleSet& set, int column, long row) {
  if (FastLookups) {
    const NumberColumn& numbers = Numbers(set, column);
    if (row >= 0 && row < static_cast<long>(numbers.isDouble.size()) && numbers.isDouble[row])
      return numbers.doubles[row];
  }
  return TextDouble(set, column, row);
}

// Whether rows 1..count of the column are all numbers rising strictly: then
// at most one pair of rows brackets a value, and halving finds it.
bool RisesStrictly(BoreHoleSet& set, int column) {
  Numbers(set, column);
  NumberColumn& numbers = set.Derived.ageColumns[column];
  const long count = set.AgeModelCount;
  if (numbers.risingFor == count) return numbers.rising;
  numbers.risingFor = count;
  numbers.rising = count >= 2 && count < static_cast<long>(numbers.isSingle.size());
  for (long i = 1; i <= count && numbers.rising; ++i) {
    numbers.rising = numbers.isSingle[i] && (i == 1 || numbers.singles[i - 1] < numbers.singles[i]);
  }
  return numbers.rising;
}

// The pair of rows around x in one column. The scan does not stop at a hit,
// so in a table that is not monotonic the last hit counts; beyond either end
// the end pair holds, and that is all the extrapolation of age there is.
void BracketSearch(BoreHoleSet& set, int column, Single x, Integer& lower, Integer& upper) {
  if (FastLookups && RisesStrictly(set, column)) {
    const std::vector<Single>& values = Numbers(set, column).singles;
    const long count = set.AgeModelCount;
    // The last row at or above x; the one below it lies below x.
    const auto first = values.begin() + 1;
    const long atOrAbove = std::upper_bound(first, first + count, x) - first;
    if (atOrAbove == 0) {
      lower = 1;
      upper = 2;
    } else if (atOrAbove == count) {
      lower = count - 1;
      upper = count;
    } else {
      lower = atOrAbove;
      upper = atOrAbove + 1;
    }
    return;
  }
  for (long i = 1; i <= set.AgeModelCount - 1; ++i) {
    // Both cells are read whatever the first test gives.
    const bool atOrAbove = CellSingle(set, column, i) <= x;
    const bool nextBelow = CellSingle(set, column, i + 1) > x;
    if (atOrAbove && nextBelow) {
      lower = i;
      upper = i + 1;
    }
  }
  if (CellSingle(set, column, 1) <= x) {
    if (CellSingle(set, column, set.AgeModelCount) <= x) {
      lower = set.AgeModelCount - 1;
      upper = set.AgeModelCount.Get();
    }
  } else {
    lower = 1;
    upper = 2;
  }
}

// A column's value at the lower row plus its difference to the upper row
// times part / whole, computed in this order.
double Between(BoreHoleSet& set, int column, long lower, long upper, double part, double whole) {
  const double low = CellDouble(set, column, lower);
  return low + Divide((CellDouble(set, column, upper) - low) * part, whole);
}

void ErrorsBetween(BoreHoleSet& set, long lower, long upper, double part, double whole) {
  set.AgeErrorPlus = CSng(Between(set, kErrorPlus, lower, upper, part, whole));
  set.AgeErrorMinus = CSng(Between(set, kErrorMinus, lower, upper, part, whole));
}

void SayInterpolatedBy(BoreHoleSet& set, const char* caption) {
  if (set.DriveIndex != 0) MainFormOf(set).Label9.Caption = caption;
}

// The varve record must span both rows of the pair, not only the point looked up.
bool VarvesSpanPair(BoreHoleSet& set, int column, Single top, Single bottom) {
  const bool lowerOutside = CellSingle(set, column, set.AgeRowLower) < top;
  const bool upperOutside = CellSingle(set, column, set.AgeRowUpper) > bottom;
  return !lowerOutside && !upperOutside;
}

VarveSums VarveSumsInPair(BoreHoleSet& set, Single cd) {
  return VarveSumsAt(set, cd, CellSingle(set, kDepth, set.AgeRowLower),
                     CellSingle(set, kDepth, set.AgeRowUpper));
}

Variant AgeByEfd(BoreHoleSet& set, Single efd) {
  const double efdLower = CellDouble(set, kEfd, set.AgeRowLower);
  const double part = static_cast<double>(efd) - efdLower;
  const double whole = CellDouble(set, kEfd, set.AgeRowUpper) - efdLower;
  const double age = Between(set, kAge, set.AgeRowLower, set.AgeRowUpper, part, whole);
  ErrorsBetween(set, set.AgeRowLower, set.AgeRowUpper, part, whole);
  SayInterpolatedBy(set, "(interpolated by EFD)");
  return age;
}

Variant AgeByVarves(BoreHoleSet& set, const VarveSums& sums) {
  const double whole = static_cast<Single>(sums.above + sums.below);
  const double age = Between(set, kAge, set.AgeRowLower, set.AgeRowUpper, sums.below, whole);
  ErrorsBetween(set, set.AgeRowLower, set.AgeRowUpper, sums.below, whole);
  return age;
}

Variant Sentinel(BoreHoleSet& set, Single depth) {
  set.AgeErrorPlus = depth;
  set.AgeErrorMinus = depth;
  return depth;
}

// The varve path of the way back, for the pair lower, upper of the ages.
Variant EfdFromAgeByVarves(BoreHoleSet& set, Single age, long lower, long upper) {
  // The ages of the two rows as the forward lookup gives them.
  const auto& model = std::as_const(set.AgeModel);
  const Single ageLower = GetAgeFromEFD(set, CSng(Val(model(kEfd, lower)))).ToSingle();
  const Single ageUpper = GetAgeFromEFD(set, CSng(Val(model(kEfd, upper)))).ToSingle();
  const Single offset = VarveOffset(set, CellSingle(set, kDepth, lower),
                                    CellSingle(set, kDepth, upper), age - ageLower, ageUpper - age);
  // The depth cells take part in the sums as doubles: the composite depth is
  // narrowed to a single only where it is handed on.
  const double depthLower = CellDouble(set, kDepth, lower);
  const Variant efd = CDToEFD(set, CSng(depthLower + offset));
  // Here the errors go by depth, not by age.
  ErrorsBetween(set, lower, upper, offset, CellDouble(set, kDepth, upper) - depthLower);
  MainForm& form = MainFormOf(set);
  form.ProgressBar1.Value = 0;
  form.ProgressBar1.Visible = false;
  Screen.SetMousePointer(0);
  return efd;
}

void ShowUnit(BoreHoleSet& set, MainForm& form) {
  const auto& model = std::as_const(set.AgeModel);
  const std::string& unit = model(kUnit, set.AgeRowLower);
  // Two control points in different units: no single unit can be named.
  if (unit != model(kUnit, set.AgeRowUpper)) {
    form.Label7.Caption = "Age (Hybrid unit)";
  } else {
    form.Label7.Caption = "Age (" + unit + ")";
  }
}

// The errors with their confidence levels where the age was looked up from a
// depth, and bare where it was typed in.
void ShowErrors(BoreHoleSet& set, MainForm& form, bool withLevels) {
  const double plus = Round(set.AgeErrorPlus, AgePrecision);
  const double minus = Round(set.AgeErrorMinus, AgePrecision);
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

Variant GetAgeFromEFD(BoreHoleSet& set, Single efd) {
  if (efd == -9999 || efd == 9999) return Sentinel(set, efd);
  BracketSearch(set, kEfd, efd, set.AgeRowLower, set.AgeRowUpper);
  if (!set.VarveCountsLoaded || efd < set.VarveTopEFD || efd > set.VarveBottomEFD ||
      !VarvesSpanPair(set, kEfd, set.VarveTopEFD, set.VarveBottomEFD)) {
    return AgeByEfd(set, efd);
  }
  const VarveSums sums = VarveSumsInPair(set, EFDToCD(set, efd).ToSingle());
  Variant age;
  if (static_cast<Single>(sums.below + sums.above) == 0) {
    // No counted varve on either side: the upper row's values.
    age = Between(set, kAge, set.AgeRowLower, set.AgeRowUpper, 1, 1);
    ErrorsBetween(set, set.AgeRowLower, set.AgeRowUpper, 1, 1);
  } else {
    age = AgeByVarves(set, sums);
  }
  SayInterpolatedBy(set, "(interpolated by varve count)");
  return age;
}

Variant GetAgeFromCD(BoreHoleSet& set, Single cd) {
  if (cd == -9999 || cd == 9999) return Sentinel(set, cd);
  if (set.VarveCountsLoaded && !(cd < set.VarveTopCD) && !(cd > set.VarveBottomCD)) {
    BracketSearch(set, kDepth, cd, set.AgeRowLower, set.AgeRowUpper);
    if (VarvesSpanPair(set, kDepth, set.VarveTopCD, set.VarveBottomCD)) {
      const VarveSums sums = VarveSumsInPair(set, cd);
      Variant age;
      if (sums.below == sums.above) {
        // Unlike the lookup from an EFD, which gives the upper row here: the
        // lower row's age as its cell has it.
        age = std::as_const(set.AgeModel)(kAge, set.AgeRowLower);
        set.AgeErrorPlus = CellSingle(set, kErrorPlus, set.AgeRowLower);
        set.AgeErrorMinus = CellSingle(set, kErrorMinus, set.AgeRowLower);
      } else {
        age = AgeByVarves(set, sums);
      }
      SayInterpolatedBy(set, "(interpolated by varve count)");
      return age;
    }
  }
  // This path works on the depth rounded to DepthPrecision.
  return GetAgeFromEFD(set, CDToEFD(set, cd).ToSingle());
}

Variant GetEFDFromAge(BoreHoleSet& set, Single age) {
  Integer lower = 0;
  Integer upper = 0;
  BracketSearch(set, kAge, age, lower, upper);
  const Single efdLower = CellSingle(set, kEfd, lower);
  const Single efdUpper = CellSingle(set, kEfd, upper);
  if (set.VarveCountsLoaded) {
    const double ageTop = GetAgeFromEFD(set, set.VarveTopEFD).ToDouble();
    const double ageBottom = GetAgeFromEFD(set, set.VarveBottomEFD).ToDouble();
    if (!(age < ageTop) && !(age > ageBottom) && !(efdLower < set.VarveTopEFD) &&
        !(efdUpper > set.VarveBottomEFD)) {
      return EfdFromAgeByVarves(set, age, lower, upper);
    }
  }
  const double ageLower = CellDouble(set, kAge, lower);
  const double part = static_cast<double>(age) - ageLower;
  const double whole = CellDouble(set, kAge, upper) - ageLower;
  // The two EFDs are singles, and so is their difference.
  const Single efdSpan = efdUpper - efdLower;
  const double efd = efdLower + Divide(part * efdSpan, whole);
  ErrorsBetween(set, lower, upper, part, whole);
  SayInterpolatedBy(set, "(interpolated by EFD)");
  return efd;
}

std::optional<std::vector<Single>> RisingControlAges(BoreHoleSet& set) {
  if (set.VarveCountsLoaded || set.AgeModelCount < 2) return std::nullopt;
  std::vector<Single> ages;
  try {
    for (long row = 1; row <= set.AgeModelCount; ++row) {
      for (const int column : {kErrorPlus, kErrorMinus}) CellDouble(set, column, row);
      ages.push_back(CellSingle(set, kAge, row));
      const bool rises = row == 1 || (ages[row - 2] < ages[row - 1] &&
                                      CellSingle(set, kEfd, row - 1) <= CellSingle(set, kEfd, row));
      if (!rises) return std::nullopt;
    }
  } catch (const RuntimeFailure&) {
    return std::nullopt;
  }
  return ages;
}

void DisplayAge(BoreHoleSet& set, MainForm& form) {
  if (!set.AgeModelLoaded) return;
  if (set.DriveIndex != 4) {
    const Variant age = GetAgeFromCD(set, CSng(Val(form.Text2.Text)));
    form.Text4.Text = Str(Round(age.ToDouble(), AgePrecision));
  }
  ShowUnit(set, form);
  ShowErrors(set, form, true);
}

void FrmMain::DisplayAge() {
  ostraline::DisplayAge(SetOf(*this), *this);
}

void FrmMain::Text4_GotFocus() {
  SaveTargetTexts(*this, true);
  SetOf(*this).DriveIndex = 4;
  PointLine2At(*this, Text4);
}

// The Duo's test has no message: a too deep age on its side simply stands,
// and its errors carry the confidence levels.
void FrmMain::Text4_Change() {
  BoreHoleSet& set = SetOf(*this);
  const Single efd = GetEFDFromAge(set, CSng(Val(Text4.Text))).ToSingle();
  const Single cd = EFDToCD(set, efd).ToSingle();
  // With the Duo open its own cores may still reach the horizon.
  if (!set.IsDuo && ActionCount != 9999 && BelowEveryCoreBottom(masterSet, cd) &&
      (!DuoOpen || BelowEveryCoreBottom(duoSet, cd))) {
    RefuseBelowCoreBottom(set, *this);
    return;
  }
  if (set.DriveIndex == 4) {
    const Variant typed = GetEFDFromAge(set, CSng(Val(Text4.Text)));
    Text3.Text = Str(Round(typed.ToDouble(), DepthPrecision));
  }
  ShowUnit(set, *this);
  ShowErrors(set, *this, set.IsDuo);
}

}  // namespace ostraline
