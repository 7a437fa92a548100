#pragma once
// The Duo's parallel set of bore holes E to H, the tie of each of its rows to
// the master's composite scale, and the Duo's names for its tables.
#include "core/bore_hole_set.h"
#include "runtime/checked_int.h"
#include "runtime/table.h"
#include "runtime/variant.h"

namespace ostraline {

inline BoreHoleSet duoSet(kDuoHoleNames, true);

struct DuoState {
  // Scale 0..2 by 0..LastRow2: the row kind of the master's fields, and the
  // composite depth on the master's scale of the row's horizon (9999: no tie).
  Table<Variant, 2> MasterDepth;
  // 0..3 by 0..LastRow2: the four master fields as read, first character cut.
  Table<Variant, 2> MasterTrinity;
  // The Scale of ModelCell2 that the Duo draws and searches: 1 its own
  // composite depth, 2 the same horizons on the master's scale.
  Integer DuoScale = 1;
  Integer ViewSpan2 = 500;
};

inline DuoState duoState;

inline auto& MasterDepth = duoState.MasterDepth;
inline auto& MasterTrinity = duoState.MasterTrinity;
inline auto& DuoScale = duoState.DuoScale;
inline auto& ViewSpan2 = duoState.ViewSpan2;

inline auto& ModelCell2 = duoSet.ModelCell;
inline auto& TieCell2 = duoSet.TieCell;
inline auto& LastRow2 = duoSet.LastRow;
inline auto& HoleName2 = duoSet.HoleName;
inline auto& HoleTitle2 = duoSet.HoleTitle;
inline auto& CoreBottom2 = duoSet.CoreBottom;
inline auto& ModelVersion2 = duoSet.ModelVersion;
inline auto& EventList2 = duoSet.EventList;
inline auto& EventTop2 = duoSet.EventTop;
inline auto& EventBottom2 = duoSet.EventBottom;
inline auto& EventOrder2 = duoSet.EventOrder;
inline auto& EventCount2 = duoSet.EventCount;
inline auto& MergedEventCount2 = duoSet.MergedEventCount;
inline auto& EventListLoaded2 = duoSet.EventListLoaded;
inline auto& EventListVersion2 = duoSet.EventListVersion;
inline auto& AgeModel2 = duoSet.AgeModel;
inline auto& AgeReferenceRows2 = duoSet.AgeReferenceRows;
inline auto& AgeModelCount2 = duoSet.AgeModelCount;
inline auto& AgeReferenceCount2 = duoSet.AgeReferenceCount;
inline auto& AgeModelLoaded2 = duoSet.AgeModelLoaded;
inline auto& AgeModelVersion2 = duoSet.AgeModelVersion;
inline auto& VarveCounts2 = duoSet.VarveCounts;
inline auto& VarveCountRows2 = duoSet.VarveCountRows;
inline auto& VarveCountsLoaded2 = duoSet.VarveCountsLoaded;
inline auto& VarveTopCD2 = duoSet.VarveTopCD;
inline auto& VarveTopEFD2 = duoSet.VarveTopEFD;
inline auto& VarveBottomCD2 = duoSet.VarveBottomCD;
inline auto& VarveBottomEFD2 = duoSet.VarveBottomEFD;
inline auto& AgeErrorPlus2 = duoSet.AgeErrorPlus;
inline auto& AgeErrorMinus2 = duoSet.AgeErrorMinus;
inline auto& AgeRowLower2 = duoSet.AgeRowLower;
inline auto& AgeRowUpper2 = duoSet.AgeRowUpper;
inline auto& DriveIndex2 = duoSet.DriveIndex;
inline auto& DrivenBy2 = duoSet.DrivenBy;
inline auto& SavedText2B = duoSet.SavedText2;
inline auto& SavedText3B = duoSet.SavedText3;
inline auto& SavedText4B = duoSet.SavedText4;

}  // namespace ostraline
