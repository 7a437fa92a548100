#pragma once
// The project state of the core model: module-level tables and scalars that
// every form reads and writes directly. They live in structs so that a fresh
// program (or a test) can start from the defaults; the names below are
// references to their members: the master's set of bore holes, and the
// scalars that the whole program shares.
#include <string>

#include "core/bore_hole_set.h"
#include "runtime/checked_int.h"
#include "runtime/table.h"
#include "runtime/variant.h"

namespace ostraline {

struct CoreState {
  CoreState();

  // The lookups read numbers parsed once and halve where a column is known to
  // rise; off, every lookup scans and parses the cells as they stand (the
  // tests compare the two).
  bool FastLookups = true;

  Integer DepthAxis = 1;
  Integer DepthPrecision = 2;
  Integer AgePrecision = 0;
  Integer ActionCount = 0;
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

  // The working rows of CompositeFromTrinity; nothing else reads them.
  Integer TopRowFound = 0;
  Integer TieRowPrevious = 0;
  Integer TieRowLast = 0;
  // For the level divider: label, PSP, composite depth of each row of the section found.
  Table<Variant, 2> SectionTieList;  // 1..50, 0..2

  // The target horizon's protocol.
  BooleanFlag EfdEntryActive = false;
  std::string HoleKey;
  BooleanFlag SuspendTrinity = false;
};

inline CoreState coreState;

inline auto& ModelCell = masterSet.ModelCell;
inline auto& TieCell = masterSet.TieCell;
inline auto& LastRow = masterSet.LastRow;
inline auto& HoleName = masterSet.HoleName;
inline auto& HoleTitle = masterSet.HoleTitle;
inline auto& SectionCount = masterSet.SectionCount;
inline auto& SectionName = masterSet.SectionName;
inline auto& SectionTopRow = masterSet.SectionTopRow;
inline auto& SectionBottomRow = masterSet.SectionBottomRow;
inline auto& CoreBottom = masterSet.CoreBottom;
inline auto& DeepestBottom = masterSet.DeepestBottom;
inline auto& ModelVersion = masterSet.ModelVersion;
inline auto& FastLookups = coreState.FastLookups;
inline auto& DepthAxis = coreState.DepthAxis;
inline auto& DepthPrecision = coreState.DepthPrecision;
inline auto& AgePrecision = coreState.AgePrecision;
inline auto& DrivenBy = masterSet.DrivenBy;
inline auto& ActionCount = coreState.ActionCount;
inline auto& DriveIndex = masterSet.DriveIndex;
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
inline auto& EventListVersion = masterSet.EventListVersion;
inline auto& AgeModelVersion = masterSet.AgeModelVersion;
inline auto& VarveVersion = masterSet.VarveVersion;
inline auto& TopRowFound = coreState.TopRowFound;
inline auto& TieRowPrevious = coreState.TieRowPrevious;
inline auto& TieRowLast = coreState.TieRowLast;
inline auto& SectionTieList = coreState.SectionTieList;
inline auto& SavedText2 = masterSet.SavedText2;
inline auto& SavedText3 = masterSet.SavedText3;
inline auto& SavedText4 = masterSet.SavedText4;
inline auto& EfdEntryActive = coreState.EfdEntryActive;
inline auto& HoleKey = coreState.HoleKey;
inline auto& SuspendTrinity = coreState.SuspendTrinity;

// Label tests on the last three characters of a lamina label.
bool IsSectionTop(const std::string& label);     // "top" or "Top"
bool IsSectionBottom(const std::string& label);  // "tom" or "Bot"
bool IsPin(const std::string& label);            // begins with "Pin" or "pin"

}  // namespace ostraline
