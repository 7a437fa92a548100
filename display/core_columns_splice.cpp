// The composite is assembled from pieces of the bore holes: the splice cell of
// a row names the bore hole that carries it from there on, or a gap. Those
// pieces are painted pale cyan on each bore hole's column.
#include "core/project_state.h"
#include "display/core_columns_paint.h"
#include "display/core_columns_rows.h"
#include "display/core_columns_steps.h"
#include "forms/frm_main.h"

namespace ostraline {
namespace {

// The first composite depth that is neither empty nor 0.
Single FirstTie(const ModelRows& rows) {
  for (long r = 1; r <= rows.LastRow(); ++r) {
    const Single tie = rows.Tie(r);
    if (tie != 9999 && tie != 0) return tie;
  }
  return 9999;
}

// `from` is the upper end of the last band; rows without a tie or without a
// depth on this bore hole leave it and `previous` as they stand, and may
// still paint that band again and end the reach back after a gap.
void PaintPiecesOf(BoreHoleSet& set, int hole, PictureBox& column, const ModelRows& rows,
                   Single start, Single& from) {
  const float top = column.ScaleTop;
  const float bottom = column.ScaleTop + column.ScaleHeight;
  Single previous = start;
  long gapRow = 0;
  for (long r = 1; r <= rows.LastRow() - 1; ++r) {
    if (rows.KindIsGap(r)) {
      gapRow = r;
      // A gap right after a piece of this bore hole closes it at the row before.
      if (rows.KindNames(hole, r - 1)) {
        PaintBand(column, previous, rows.Depth(hole, r - 1), kPaleCyan);
      }
    }
    const Single depth = rows.Depth(hole, r);
    if (rows.Tie(r) != 9999 && depth != 9999) {
      from = previous;
      previous = depth;
      // A piece that starts after a gap reaches back to the PSP of the row
      // after the gap, not to the gap row.
      if (rows.KindNames(hole, r) && gapRow > 0 && rows.KindNames(hole, gapRow + 1)) {
        from = AsSingle(depth - rows.Psp(hole, r) + rows.Psp(hole, gapRow + 1));
      }
    }
    if (!(bottom > from && previous > top)) continue;
    if (rows.KindNames(hole, r) || (!rows.KindNamesAnyHole(r) && rows.KindNames(hole, r - 1))) {
      PaintBand(column, from, previous, kPaleCyan);
      gapRow = 0;
    }
  }
  // The deepest bore hole closes the composite.
  if (set.DeepestBottom == set.CoreBottom(hole))
    PaintBand(column, previous, set.DeepestBottom, kPaleCyan);
}

}  // namespace

void PaintSplicedParts(BoreHoleSet& set, MainForm& form, const ModelRows& rows) {
  const Single start = FirstTie(rows);
  // Before the first tie of bore hole A, From is 0; each later bore hole
  // starts with the From the one before it left, as one variable serves all.
  Single from = 0;
  for (int hole = 1; hole <= 4; ++hole)
    PaintPiecesOf(set, hole, form.BoreHole(hole), rows, start, from);
}

}  // namespace ostraline
