// The rows of the model on the columns: a line and a label for each row of
// each bore hole, green dots for pins, the tie points on the composite
// column, and the fixed horizon.
#include <array>
#include <string>

#include "core/project_state.h"
#include "display/core_columns_paint.h"
#include "display/core_columns_rows.h"
#include "display/core_columns_steps.h"
#include "display/display_state.h"
#include "display/form_view.h"
#include "forms/frm_main.h"
#include "runtime/number_text.h"

namespace ostraline {
namespace {

constexpr long kPinGreen = RGB(100, 255, 100);
constexpr long kSectionEndBlue = RGB(0, 0, 255);
constexpr long kSpliceMagenta = RGB(255, 0, 255);
constexpr long kTieRed = RGB(255, 0, 0);

// Blue at the ends of a section, magenta where the splice cell names no
// more than a bore hole, red where it names something longer.
long MarkColour(const ModelRows& rows, int hole, long r) {
  if (rows.OpensSection(hole, r) || rows.ClosesSection(hole, r)) return kSectionEndBlue;
  if (Len(rows.Kind(r)) < 2) return kSpliceMagenta;
  return kTieRed;
}

void PrintAt(PictureBox& column, float x, double y, const std::string& text) {
  column.CurrentX = x;
  column.CurrentY = AsSingle(y);
  column.Print(text);
}

// A column and the stretch of the scale it shows, which the marks leave as
// it is.
struct ColumnView {
  PictureBox* column = nullptr;
  float top = 0;
  float bottom = 0;
};

// The columns, each looked up where the first of its rows is drawn: a model
// holds thousands of rows, most of them out of sight.
class Columns {
 public:
  explicit Columns(MainForm& form) : form_(form) {}
  const ColumnView& operator()(int index) {
    ColumnView& found = found_[static_cast<std::size_t>(index)];
    if (found.column == nullptr) {
      found.column = &form_.BoreHole(index);
      found.top = found.column->ScaleTop;
      found.bottom = found.column->ScaleTop + found.column->ScaleHeight;
    }
    return found;
  }

 private:
  MainForm& form_;
  std::array<ColumnView, 5> found_{};
};

void MarkBoreHoleRow(BoreHoleSet& set, Columns& columns, const ModelRows& rows, int hole, long r,
                     double offset) {
  const Single depth = rows.Depth(hole, r);
  if (depth == 9999) return;
  const ColumnView& view = columns(hole);
  const double labelY = depth - offset;
  if (!(depth > view.top && view.bottom > labelY)) return;
  PictureBox& column = *view.column;
  const std::string text = RowText(set, hole, r);
  const bool labelled = LabelFontSize > 1;
  if (rows.IsPinRow(hole, r)) {
    column.FillColor = kPinGreen;
    column.Circle(0.1f, depth, 0.2f, kPinGreen);
    if (labelled) {
      column.ForeColor = kLabelGrey;
      PrintAt(column, 0.5f, depth - offset / 2, text);
      column.ForeColor = kBlack;
    }
    return;
  }
  column.Line(0, depth, kColumnWidth, depth, MarkColour(rows, hole, r));
  if (labelled) PrintAt(column, 0.2f, labelY, text);
}

// Tie points on the composite column, with their names hanging below their
// lines, right-aligned.
void MarkTieRow(MainForm& form, Columns& columns, const ModelRows& rows, long r, double offset) {
  const Single tie = rows.Tie(r);
  if (tie == 9999) return;
  const ColumnView& view = columns(0);
  if (!(tie > view.top && view.bottom > tie - offset)) return;
  PictureBox& composite = *view.column;
  if (!form.mnuShowTiePoints.Checked) return;
  const std::string& name = rows.Kind(r);
  const long length = Len(name);
  if (length != 1) composite.Line(0, tie, kColumnWidth, tie, kTieRed);
  if (LabelFontSize > 1 && length >= 2) {
    composite.ForeColor = kLabelGrey;
    const double x =
        composite.ScaleWidth * 1.02 - static_cast<double>(length) * LabelFontSize / 11.0;
    PrintAt(composite, AsSingle(x), tie + LabelOffset(form, 400, 5), name);
    composite.ForeColor = kBlack;
  }
}

}  // namespace

void DrawFixedHorizon(MainForm& form) {
  if (!form.mnuHorizontalBH.Checked) return;
  for (int i = 0; i <= 4; ++i) {
    PictureBox& column = form.BoreHole(i);
    const float y = AsSingle(column.ScaleTop + static_cast<double>(ViewSpanOf(form)) / 2);
    column.Line(0, y, kColumnWidth, y, kHorizonGreen);
  }
}

void DrawRowMarks(BoreHoleSet& set, MainForm& form, const ModelRows& rows) {
  const double holeOffset = LabelOffset(form, 60, 6);
  const double tieOffset = LabelOffset(form, 60, 5);
  Columns columns(form);
  for (long r = 1; r <= rows.LastRow(); ++r) {
    for (int hole = 1; hole <= 4; ++hole) MarkBoreHoleRow(set, columns, rows, hole, r, holeOffset);
    MarkTieRow(form, columns, rows, r, tieOffset);
  }
}

}  // namespace ostraline
