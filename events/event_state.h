#pragma once
// The event layers, the age-depth model and the varve record: module-level
// tables of the events and ages subsystem.
#include <string>

#include "runtime/checked_int.h"
#include "runtime/table.h"
#include "runtime/variant.h"

namespace ostraline {

struct EventState {
  // Columns 0..9, rows 0..EventCount; row 0 is the file's header record.
  Table<std::string, 2> EventList;
  // Subscripts 0..3 by 0..EventCount: 1 composite depth, 2 EFD.
  Table<Single, 2> EventTop;
  Table<Single, 2> EventBottom;
  Table<Integer> EventOrder;
  Long EventCount = -9999;
  Long MergedEventCount = -9999;
  BooleanFlag EventListLoaded = false;

  // Columns 0..11, rows 0..AgeModelCount; the class is in column 0.
  Table<std::string, 2> AgeModel;
  Table<Variant, 2> AgeReferenceRows;
  Long AgeModelCount = 0;
  Long AgeReferenceCount = 0;
  BooleanFlag AgeModelLoaded = false;
  std::string ErrorLevelPlus;
  std::string ErrorLevelMinus;

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
};

inline EventState eventState;

inline auto& EventList = eventState.EventList;
inline auto& EventTop = eventState.EventTop;
inline auto& EventBottom = eventState.EventBottom;
inline auto& EventOrder = eventState.EventOrder;
inline auto& EventCount = eventState.EventCount;
inline auto& MergedEventCount = eventState.MergedEventCount;
inline auto& EventListLoaded = eventState.EventListLoaded;
inline auto& AgeModel = eventState.AgeModel;
inline auto& AgeReferenceRows = eventState.AgeReferenceRows;
inline auto& AgeModelCount = eventState.AgeModelCount;
inline auto& AgeReferenceCount = eventState.AgeReferenceCount;
inline auto& AgeModelLoaded = eventState.AgeModelLoaded;
inline auto& ErrorLevelPlus = eventState.ErrorLevelPlus;
inline auto& ErrorLevelMinus = eventState.ErrorLevelMinus;
inline auto& AgeRowLower = eventState.AgeRowLower;
inline auto& AgeRowUpper = eventState.AgeRowUpper;
inline auto& AgeErrorPlus = eventState.AgeErrorPlus;
inline auto& AgeErrorMinus = eventState.AgeErrorMinus;
inline auto& VarveCounts = eventState.VarveCounts;
inline auto& VarveCountRows = eventState.VarveCountRows;
inline auto& VarveCountsLoaded = eventState.VarveCountsLoaded;
inline auto& VarveTopCD = eventState.VarveTopCD;
inline auto& VarveBottomCD = eventState.VarveBottomCD;
inline auto& VarveTopEFD = eventState.VarveTopEFD;
inline auto& VarveBottomEFD = eventState.VarveBottomEFD;

}  // namespace ostraline
