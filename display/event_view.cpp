#include "display/event_view.h"
#include "display/form_view.h"
#include "duo/depth_map.h"

#include <vector>

#include "core/hole_lookup.h"
#include "core/project_state.h"
#include "display/core_columns_paint.h"
#include "display/display_state.h"
#include "events/event_state.h"
#include "forms/frm_main.h"
#include "runtime/failure.h"
#include "runtime/number_text.h"

namespace ostraline {
namespace {

// Events have no thickness on the event free scale or on age.
void ChooseEventColumns(const BoreHoleSet& set) {
  const Integer scale = ColumnScaleOf(set);
  if (scale == 1) {
    EventColumnTop = 6;
    EventColumnBottom = 7;
  }
  if (scale == 2) {
    EventColumnTop = 8;
    EventColumnBottom = 8;
  }
  if (scale == 3) {
    EventColumnTop = 9;
    EventColumnBottom = 9;
  }
}

struct EventEdges {
  Single upper;
  Single lower;
};

EventEdges EdgesOf(BoreHoleSet& set, long row) {
  if (OnMasterScale(set)) {
    return {DuoToMaster(CellNumber(set.EventList(6, row))),
            DuoToMaster(CellNumber(set.EventList(7, row)))};
  }
  return {CellNumber(set.EventList(EventColumnTop, row)),
          CellNumber(set.EventList(EventColumnBottom, row))};
}

void PaintEventBand(PictureBox& column, const EventEdges& edges, long colour) {
  column.LineBF(0, edges.upper, column.ScaleWidth, edges.lower, colour);
}

void PaintVoid(PictureBox& column, const EventEdges& edges) {
  PaintEventBand(column, edges, kGrey);
  column.Line(0, edges.upper, column.ScaleWidth, edges.lower, kDarkGrey);
  column.Line(0, edges.lower, column.ScaleWidth, edges.upper, kDarkGrey);
}

PictureBox& HoleColumn(BoreHoleSet& set, MainForm& form, long row) {
  return form.BoreHole(BHNo(set, set.EventList(1, row)));
}

bool Contains(std::string_view text, std::string_view lower, std::string_view capital) {
  return InStr(text, lower) > 0 || InStr(text, capital) > 0;
}

}  // namespace

bool IsTephra(const std::string& text) {
  return Len(text) >= 6 && Contains(text, "tephra", "Tephra");
}

bool IsVoid(const std::string& text) {
  return Len(text) >= 4 && Contains(text, "void", "Void");
}

std::string GetTephraName(const std::string& text) {
  long at = InStr(text, "Tephra");
  if (at == 0) at = InStr(text, "tephra");
  const long length = Len(text);
  try {
    if (at == 1) return Trim(Right(text, length - 7));
    if (at == 2) return Trim(Right(text, length - 8));
    if (at == length - 5) return Trim(Left(text, length - 7));
    if (at == length - 6) return Trim(Left(text, length - 8));
  } catch (const RuntimeFailure&) {
    // The word alone leaves nothing to cut: no name.
  }
  return {};
}

void DrawEvents(BoreHoleSet& set) {
  MainForm& form = MainFormOf(set);
  ChooseEventColumns(set);
  PictureBox& composite = form.BoreHole(0);
  const float top = composite.ScaleTop;
  const float bottom = composite.ScaleTop + composite.ScaleHeight;
  std::vector<long> tephras;
  std::vector<long> voids;
  for (long r = 1; r <= set.EventCount; ++r) {
    const EventEdges edges = EdgesOf(set, r);
    const bool inView = (edges.lower >= top && edges.lower <= bottom) ||
                        (edges.upper >= top && edges.upper <= bottom) ||
                        (edges.upper <= top && edges.lower >= bottom);
    // A bore hole that the set does not know has no column to take the layer.
    if (!inView || BHNo(set, set.EventList(1, r)) == -9999) continue;
    const std::string& description = set.EventList(5, r);
    if (IsTephra(description)) {
      tephras.push_back(r);
    } else if (IsVoid(description)) {
      voids.push_back(r);
    } else {
      PaintEventBand(HoleColumn(set, form, r), edges, kEventYellow);
      PaintEventBand(composite, edges, kEventYellow);
    }
  }
  const bool labelled = !form.mnuSize(1).Checked;
  const double offset = LabelOffset(form, 60, 6);
  for (long r : tephras) {
    const EventEdges edges = EdgesOf(set, r);
    PaintEventBand(HoleColumn(set, form, r), edges, kTephraBlue);
    PaintEventBand(composite, edges, kTephraBlue);
    if (labelled) {
      composite.CurrentX = 0.2f;
      composite.CurrentY = AsSingle(edges.upper - offset);
      composite.Print(GetTephraName(set.EventList(5, r)));
    }
  }
  for (long r : voids) {
    const EventEdges edges = EdgesOf(set, r);
    PaintVoid(HoleColumn(set, form, r), edges);
    PaintVoid(composite, edges);
  }
}

}  // namespace ostraline
