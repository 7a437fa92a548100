#pragma once
// The project state of the core model: module-level tables and scalars that
// every form reads and writes directly. They live in one struct so that a
// fresh program (or a test) can start from the defaults; the names below are
// references to its members.
#include <string>

#include "runtime/checked_int.h"
#include "runtime/table.h"
#include "runtime/variant.h"

namespace ostraline {

struct CoreState {
  CoreState();

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

  Integer DepthAxis = 1;
  Integer DepthPrecision = 2;
  Integer AgePrecision = 0;
  Integer DrivenBy = 9999;
  Integer ActionCount = 0;
  Integer DriveIndex = 1;
  BooleanFlag DuoOpen = false;
  Single TargetPSP = 0;
  Single TargetDepth = 0;
  Integer TargetTopRow = 0;
  Integer TieRowAbove = 0;
  Integer TieRowBelow = 0;
  BooleanFlag DebugTrace = false;
  // Shared loop counters: a procedure that calls another may see them change.
  Long I = 0;
  Long J = 0;
  Integer K = 0;

  std::string EventListVersion;
  std::string AgeModelVersion;
  std::string VarveVersion;

  // The working rows of CompositeFromTrinity; nothing else reads them.
  Integer TopRowFound = 0;
  Integer TieRowPrevious = 0;
  Integer TieRowLast = 0;
  // For the level divider: label, PSP, composite depth of each row of the section found.
  Table<Variant, 2> SectionTieList;  // 1..50, 0..2

  // The target horizon's protocol.
  std::string SavedText2;
  std::string SavedText3;
  std::string SavedText4;
  BooleanFlag EfdEntryActive = false;
  std::string HoleKey;
  BooleanFlag SuspendTrinity = false;
};

inline CoreState coreState;

inline auto& ModelCell = coreState.ModelCell;
inline auto& TieCell = coreState.TieCell;
inline auto& LastRow = coreState.LastRow;
inline auto& HoleName = coreState.HoleName;
inline auto& HoleTitle = coreState.HoleTitle;
inline auto& SectionCount = coreState.SectionCount;
inline auto& SectionName = coreState.SectionName;
inline auto& SectionTopRow = coreState.SectionTopRow;
inline auto& SectionBottomRow = coreState.SectionBottomRow;
inline auto& CoreBottom = coreState.CoreBottom;
inline auto& DeepestBottom = coreState.DeepestBottom;
inline auto& ModelVersion = coreState.ModelVersion;
inline auto& DepthAxis = coreState.DepthAxis;
inline auto& DepthPrecision = coreState.DepthPrecision;
inline auto& AgePrecision = coreState.AgePrecision;
inline auto& DrivenBy = coreState.DrivenBy;
inline auto& ActionCount = coreState.ActionCount;
inline auto& DriveIndex = coreState.DriveIndex;
inline auto& DuoOpen = coreState.DuoOpen;
inline auto& TargetPSP = coreState.TargetPSP;
inline auto& TargetDepth = coreState.TargetDepth;
inline auto& TargetTopRow = coreState.TargetTopRow;
inline auto& TieRowAbove = coreState.TieRowAbove;
inline auto& TieRowBelow = coreState.TieRowBelow;
inline auto& DebugTrace = coreState.DebugTrace;
inline auto& I = coreState.I;
inline auto& J = coreState.J;
inline auto& K = coreState.K;
inline auto& EventListVersion = coreState.EventListVersion;
inline auto& AgeModelVersion = coreState.AgeModelVersion;
inline auto& VarveVersion = coreState.VarveVersion;
inline auto& TopRowFound = coreState.TopRowFound;
inline auto& TieRowPrevious = coreState.TieRowPrevious;
inline auto& TieRowLast = coreState.TieRowLast;
inline auto& SectionTieList = coreState.SectionTieList;
inline auto& SavedText2 = coreState.SavedText2;
inline auto& SavedText3 = coreState.SavedText3;
inline auto& SavedText4 = coreState.SavedText4;
inline auto& EfdEntryActive = coreState.EfdEntryActive;
inline auto& HoleKey = coreState.HoleKey;
inline auto& SuspendTrinity = coreState.SuspendTrinity;

// Label tests on the last three characters of a lamina label.
bool IsSectionTop(const std::string& label);     // "top" or "Top"
bool IsSectionBottom(const std::string& label);  // "tom" or "Bot"
bool IsPin(const std::string& label);            // begins with "Pin" or "pin"

}  // namespace ostraline
