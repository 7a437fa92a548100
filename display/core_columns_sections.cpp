// Grey where the core view has no core: above the first section of each bore
// hole, around the composite, below each core, and between sections.
#include "core/project_state.h"
#include "display/core_columns_paint.h"
#include "display/core_columns_rows.h"
#include "display/core_columns_steps.h"
#include "display/display_state.h"
#include "forms/frm_main.h"

namespace ostraline {
namespace {

float TopOf(const PictureBox& column) {
  return column.ScaleTop;
}
float BottomOf(const PictureBox& column) {
  return column.ScaleTop + column.ScaleHeight;
}

// Walks the gaps between the sections of every bore hole that lie in view.
// The cells are compared as text first, on purpose: the text "1005.2" sorts
// before "998.4", and such a gap stays white.
template <class Visit>
void ForEachSectionGap(MainForm& form, const ModelRows& rows, Visit visit) {
  for (int hole = 1; hole <= 4; ++hole) {
    PictureBox& column = form.BoreHole(hole);
    for (const long r : rows.SectionEnds(hole)) {
      const long next = rows.NextSectionStart(hole, r);
      if (!(rows.DepthText(hole, next) > rows.DepthText(hole, r))) continue;
      const Single end = rows.Depth(hole, r);
      const Single start = rows.Depth(hole, next);
      if (start > TopOf(column) && end < BottomOf(column)) visit(column, end, start);
    }
  }
}

}  // namespace

void PaintAboveCore(MainForm& form, const ModelRows& rows) {
  for (int hole = 1; hole <= 4; ++hole) {
    PictureBox& column = form.BoreHole(hole);
    const long first = rows.NextSectionStart(hole, 0);
    PaintBand(column, TopOf(column), rows.Depth(hole, first), kGrey);
    if (first < rows.LastRow()) {
      PaintCross(column, TopOf(column), rows.Depth(hole, first));
    } else {
      // No section top at all: the bore hole takes no part until a new import.
      HoleAbsent(hole) = true;
      column.Enabled = false;
      form.Label1(hole).Enabled = false;
    }
  }
}

void PaintCompositeColumn(MainForm& form, const ModelRows& rows) {
  PictureBox& composite = form.BoreHole(0);
  const float top = TopOf(composite);
  const float bottom = BottomOf(composite);
  composite.LineBF(composite.ScaleLeft, top, composite.ScaleLeft + composite.ScaleWidth, bottom,
                   kPaleCyan);
  PaintBand(composite, top, rows.Tie(1), kGrey);
  PaintCross(composite, top, rows.Tie(1));
  PaintBand(composite, rows.Tie(rows.LastRow()), bottom, kGrey);
}

void PaintBelowCore(BoreHoleSet& set, MainForm& form) {
  for (int hole = 1; hole <= 4; ++hole) {
    PictureBox& column = form.BoreHole(hole);
    PaintBand(column, set.CoreBottom(hole), BottomOf(column), kGrey);
  }
}

void PaintSectionGaps(MainForm& form, const ModelRows& rows) {
  ForEachSectionGap(form, rows, [](PictureBox& column, Single end, Single start) {
    PaintBand(column, end, start, kGrey);
  });
}

// A very long missing stretch stays plain grey.
void CrossSectionGaps(MainForm& form, const ModelRows& rows) {
  ForEachSectionGap(form, rows, [](PictureBox& column, Single end, Single start) {
    if (start - end < 2000) PaintCross(column, end, start);
  });
}

}  // namespace ostraline
