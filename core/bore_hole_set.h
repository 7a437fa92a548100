#pragma once
// One set of bore holes and everything the program knows of it: the
// correlation model, the event layers, the age-depth model, the varve record,
// their versions and loaded flags, the age lookup's results and a main form's
// saved texts and drive guards. The master's holes A to D are one instance;
// the Duo's parallel holes E to H are the other, with the same tables.
#include <array>
#include <string>

#include "core/derived_tables.h"
#include "forms/hole_names.h"
#include "runtime/checked_int.h"
#include "runtime/table.h"
#include "runtime/variant.h"

namespace ostraline {

struct BoreHoleSet {
  BoreHoleSet(const std::array<const char*, 4>& holeNames, bool isDuo);

  // The Duo's parallel set, whose few documented differences branch on this.
  bool IsDuo = false;

  // The correlation model: Scale 0..3, Hole 0..5, Item 0..2, Row 0..LastRow.
  Table<std::string, 4> ModelCell;
  // Scale 0..3, Row 0..LastRow: splice column, composite depth, EFD, age.
  Table<std::string, 2> TieCell;
  Long LastRow = 0;
  Table<std::string> HoleName;   // 1..4
  Table<std::string> HoleTitle;  // 1..4
  Table<Integer> SectionCount;   // 1..4
  Table<std::string, 2> SectionName;
  Table<Integer, 2> SectionTopRow;
  Table<Integer, 2> SectionBottomRow;
  Table<Single> CoreBottom;  // 1..4
  Single DeepestBottom = 0;
  std::string ModelVersion;

  // Columns 0..9, rows 0..EventCount; row 0 is the file's header record.
  Table<std::string, 2> EventList;
  // Subscripts 0..3 by 0..EventCount: 1 composite depth, 2 EFD.
  Table<Single, 2> EventTop;
  Table<Single, 2> EventBottom;
  Table<Integer> EventOrder;
  Long EventCount = -9999;
  Long MergedEventCount = -9999;
  BooleanFlag EventListLoaded = false;
  std::string EventListVersion;

  // Columns 0..11, rows 0..AgeModelCount; the class is in column 0.
  Table<std::string, 2> AgeModel;
  Table<Variant, 2> AgeReferenceRows;
  Long AgeModelCount = 0;
  Long AgeReferenceCount = 0;
  BooleanFlag AgeModelLoaded = false;
  std::string AgeModelVersion;

  // What the last age lookup found.
  Integer AgeRowLower = 0;
  Integer AgeRowUpper = 0;
  Single AgeErrorPlus = 0;
  Single AgeErrorMinus = 0;

  // Subscripts 0..1 by 0..VarveCountRows: composite depth, running count.
  Table<Single, 2> VarveCounts;
  Long VarveCountRows = 0;
  BooleanFlag VarveCountsLoaded = false;
  Single VarveTopCD = 0;
  Single VarveBottomCD = 0;
  Single VarveTopEFD = 0;
  Single VarveBottomEFD = 0;
  std::string VarveVersion;

  // Numbers parsed once from the text tables above; reading them again when
  // a table has changed leaves the set as it is, so readers of a set that
  // may not change it read them too.
  mutable DerivedTables Derived;

  // The main form's drive guards and the texts its three boxes go back to.
  Integer DrivenBy = 9999;
  Integer DriveIndex = 1;
  std::string SavedText2;
  std::string SavedText3;
  std::string SavedText4;
};

class MainForm;
// The main form that shows a set: frmMain the master's, frm2Main the Duo's;
// and the set that a main form shows.
MainForm& MainFormOf(const BoreHoleSet& set);
BoreHoleSet& SetOf(const MainForm& form);
// The set a small form serves: the Duo's twins are named "frm2...".
class Form;
BoreHoleSet& SetOfTwin(const Form& form);
// The level divider and the vertical axis dialog of a set's main form.
class FrmDivider;
class FrmSelect;
FrmDivider& DividerOf(const BoreHoleSet& set);
FrmSelect& SelectFormOf(const BoreHoleSet& set);

// The master's set, bore holes A to D.
inline BoreHoleSet masterSet(kMasterHoleNames, false);

}  // namespace ostraline
