#pragma once
// The event layers, the age-depth model and the varve record of the master's
// set by their names, and the confidence levels that both sets share.
#include <string>

#include "core/bore_hole_set.h"

namespace ostraline {

struct EventState {
  // The age-depth model's confidence levels; the Duo's own import reads none.
  std::string ErrorLevelPlus;
  std::string ErrorLevelMinus;
};

inline EventState eventState;

inline auto& EventList = masterSet.EventList;
inline auto& EventTop = masterSet.EventTop;
inline auto& EventBottom = masterSet.EventBottom;
inline auto& EventOrder = masterSet.EventOrder;
inline auto& EventCount = masterSet.EventCount;
inline auto& MergedEventCount = masterSet.MergedEventCount;
inline auto& EventListLoaded = masterSet.EventListLoaded;
inline auto& AgeModel = masterSet.AgeModel;
inline auto& AgeReferenceRows = masterSet.AgeReferenceRows;
inline auto& AgeModelCount = masterSet.AgeModelCount;
inline auto& AgeReferenceCount = masterSet.AgeReferenceCount;
inline auto& AgeModelLoaded = masterSet.AgeModelLoaded;
inline auto& ErrorLevelPlus = eventState.ErrorLevelPlus;
inline auto& ErrorLevelMinus = eventState.ErrorLevelMinus;
inline auto& AgeRowLower = masterSet.AgeRowLower;
inline auto& AgeRowUpper = masterSet.AgeRowUpper;
inline auto& AgeErrorPlus = masterSet.AgeErrorPlus;
inline auto& AgeErrorMinus = masterSet.AgeErrorMinus;
inline auto& VarveCounts = masterSet.VarveCounts;
inline auto& VarveCountRows = masterSet.VarveCountRows;
inline auto& VarveCountsLoaded = masterSet.VarveCountsLoaded;
inline auto& VarveTopCD = masterSet.VarveTopCD;
inline auto& VarveBottomCD = masterSet.VarveBottomCD;
inline auto& VarveTopEFD = masterSet.VarveTopEFD;
inline auto& VarveBottomEFD = masterSet.VarveBottomEFD;

}  // namespace ostraline
