// The drawing of a proxy panel. The whole record is worked through at every
// call, and every scroll of the core view calls it for each loaded panel.
#include "proxies/proxy_panel.h"

#include "display/form_view.h"

#include <cmath>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "core/project_state.h"
#include "display/core_columns_paint.h"
#include "display/display_state.h"
#include "display/event_view.h"
#include "display/target_line.h"
#include "forms/frm_main.h"
#include "forms/platform.h"
#include "proxies/smoothing.h"
#include "runtime/number_text.h"

namespace ostraline {
namespace {

constexpr long kCurveBlue = RGB(0, 0, 255);

// The column of a header name; the last equal name wins, and a name that is
// none of them leaves the column as it was.
void ChooseColumn(const ProxyRecords& records, int p, const std::string& name, Integer& column) {
  const long columns = records.ProxyColumnCount(p);
  if (columns < 2) {
    column = 1;
    return;
  }
  for (long j = 1; j <= columns; ++j) {
    if (records.ProxyHeader(p)(j) == name) column = static_cast<int>(j);
  }
}

// The plotted value of each row: the chosen column divided by the
// denominator column, or by 1.0; 9999 where either has no value or the
// denominator is 0.
void MakePlotValues(const ProxyRecords& records, int p) {
  const long rows = records.ProxyRowCount(p);
  const Table<Single, 2>& values = records.ProxyValue(p);
  ProxyPlot.Dim({{0, 2}, {0, rows}});
  for (long i = 1; i <= rows; ++i) {
    ProxyPlot(1, i) = values(i, records.ProxyColumnA(p));
    ProxyPlot(2, i) = records.ProxyColumnB(p) < 1 ? 1.0f : values(i, records.ProxyColumnB(p));
  }
  for (long i = 1; i <= rows; ++i) {
    const Single numerator = ProxyPlot(1, i);
    const Single denominator = ProxyPlot(2, i);
    const bool none =
        std::fabs(numerator) == 9999 || std::fabs(denominator) == 9999 || denominator == 0;
    ProxyPlot(0, i) = none ? 9999.0f : numerator / denominator;
  }
}

void FindRange(ProxyRecords& records, int p) {
  Single& largest = records.ProxyMax(p);
  Single& smallest = records.ProxyMin(p);
  largest = -999999;
  smallest = 999999;
  for (long i = 1; i <= records.ProxyRowCount(p); ++i) {
    const Single value = ProxyPlot(0, i);
    if (std::fabs(value) == 9999) continue;
    if (value > largest) largest = value;
    if (value < smallest) smallest = value;
  }
  // A constant column still gets an axis of some width.
  if (largest == smallest) largest = smallest + 1;
}

// The limits from the data where the boxes are empty; what the user typed stays.
void DefaultLimits(MainForm& form, const ProxyRecords& records, int p) {
  const Single smallest = records.ProxyMin(p);
  const Single largest = records.ProxyMax(p);
  Single left = 0;
  Single right = 0;
  if (std::fabs(smallest) < 1) {
    left = smallest <= 0 ? smallest : 0.0f;
  } else {
    left = CSng(Round(smallest - 0.5, 0));
  }
  if (std::fabs(largest) < 1) {
    right = largest >= 0 ? largest : 0.0f;
  } else {
    right = CSng(Round(largest + 0.5, 0));
  }
  ProxyAxisEventsOn = false;
  if (form.Text5(p).Text.Get().empty()) form.Text5(p).Text = Str(left);
  if (form.Text6(p).Text.Get().empty()) form.Text6(p).Text = Str(right);
  ProxyAxisEventsOn = true;
}

void PaintBackground(BoreHoleSet& set, PictureBox& panel) {
  const float left = panel.ScaleLeft;
  const float right = left + panel.ScaleWidth;
  const float top = panel.ScaleTop;
  const float bottom = top + panel.ScaleHeight;
  panel.LineBF(left, top, right, bottom, panel.BackColor);
  // Nothing was cored above the model's first row; only the top gets the cross.
  const Single first = CellNumber(set.TieCell(1, 1));
  if (first > top) {
    panel.LineBF(left, first, right, top, kGrey);
    panel.Line(left, first, right, top, kDarkGrey);
    panel.Line(left, top, right, first, kDarkGrey);
  }
  const Single last = CellNumber(set.TieCell(1, set.LastRow));
  if (last < bottom) panel.LineBF(left, last, right, bottom, kGrey);
}

// The event layers behind the curve: ordinary ones first, tephras over them,
// voids over both. The view is that of panel 0, which all panels share.
void PaintEventLayers(BoreHoleSet& set, MainForm& form, PictureBox& panel) {
  if (!set.EventListLoaded) return;
  int topColumn = EventColumnTop;
  int bottomColumn = 0;
  const Integer scale = ColumnScaleOf(set);
  if (scale == 1) {
    topColumn = 6;
    bottomColumn = 7;
  } else if (scale == 2) {
    topColumn = bottomColumn = 8;
  } else if (scale == 3) {
    topColumn = bottomColumn = 9;
  }
  const float viewTop = form.Picture1(0).ScaleTop;
  const float viewBottom = viewTop + form.Picture1(0).ScaleHeight;
  const auto inView = [&](Single depth) { return depth >= viewTop && depth < viewBottom; };
  const float left = panel.ScaleLeft;
  const float right = left + panel.ScaleWidth;
  std::vector<std::pair<Single, Single>> tephras;
  std::vector<std::pair<Single, Single>> voids;
  for (long k = 1; k <= set.EventCount; ++k) {
    const Single top = CellNumber(set.EventList(topColumn, k));
    const Single bottom = CellNumber(set.EventList(bottomColumn, k));
    if (!inView(top) && !inView(bottom) && !(top < viewTop && bottom >= viewBottom)) continue;
    const std::string& description = set.EventList(5, k);
    if (IsTephra(description)) {
      tephras.emplace_back(top, bottom);
    } else if (IsVoid(description)) {
      voids.emplace_back(top, bottom);
    } else {
      panel.LineBF(left, top, right, bottom, kEventYellow);
    }
  }
  for (const auto& [top, bottom] : tephras) panel.LineBF(left, top, right, bottom, kTephraBlue);
  for (const auto& [top, bottom] : voids) {
    panel.LineBF(left, top, right, bottom, kGrey);
    panel.Line(left, top, right, bottom, kDarkGrey);
    panel.Line(left, bottom, right, top, kDarkGrey);
  }
}

void Marker(PictureBox& panel, const ProxyRecords& records, int p, long i) {
  panel.Circle(ProxyPlot(0, i), records.ProxyDepth(p)(PlotScale, i),
               std::fabs(panel.ScaleWidth.Get()) / 67, CurveColour);
}

// The curve from row first on, through every row to the end: the canvas
// clips what lies below the view. A row without a value, or a depth that
// runs backwards, leaves a gap. i ends on the last row, or on the row at
// hand when a failure leaves the loop.
void DrawCurve(PictureBox& panel, const ProxyRecords& records, int p, long first, long hidden,
               bool curve, bool marker, long& i) {
  const Table<Single, 2>& depth = records.ProxyDepth(p);
  const long rows = records.ProxyRowCount(p);
  for (i = first;; ++i) {
    if (i >= hidden) {
      // What the rest would draw lies below the view and is dropped.
      i = rows;
      return;
    }
    if (curve) {
      const Single value = ProxyPlot(0, i);
      const Single next = ProxyPlot(0, i + 1);
      const Single upper = depth(PlotScale, i);
      const Single lower = depth(PlotScale, i + 1);
      if (std::fabs(value) != 9999 && std::fabs(next) != 9999 && upper != 9999 && lower != 9999 &&
          !(upper > lower)) {
        panel.Line(value, upper, next, lower, CurveColour);
      }
    }
    if (marker) Marker(panel, records, p, i);
    if (i + 1 == rows) {
      ++i;
      return;
    }
  }
}

// The first row from which every later row lies so far below the view that
// nothing drawn for it can show: the canvas drops a line or a circle whose
// top lies more than its pen (two pixels at most) below the surface, and a
// marker reaches up by its radius, a 67th of the panel's width. The margin
// covers both, and the rounding of a running mean of such depths. The
// drawing need not compute what lies there. One past the last row when
// there is none.
long FirstHiddenRow(const ProxyRecords& records, int p, const PictureBox& panel) {
  const long rows = records.ProxyRowCount(p);
  const float height = panel.ScaleHeight;
  const float innerHeight = panel.Height - 60;
  if (!DrawOnlyWhatShows || !(height > 0) || innerHeight < 1000) return rows + 1;
  const float reachTwips = 2 * 15 + panel.Width / 67 + 60;
  const float bottom = panel.ScaleTop + height;
  const float limit =
      bottom + reachTwips * height / innerHeight + 1e-3f * (height + std::fabs(bottom));
  const Table<Single, 2>& depth = records.ProxyDepth(p);
  long hidden = rows + 1;
  while (hidden > 1 && depth(PlotScale, hidden - 1) > limit) --hidden;
  return hidden;
}

void SmoothingOverlays(MainForm& form, const ProxyRecords& records, int p, long first,
                       long hidden) {
  PictureBox& panel = form.Picture1(p);
  if (form.mnuFlat3_(p).Checked) SmoothProxy3(records, panel, p, first, hidden);
  if (form.mnuFlat5_(p).Checked) SmoothProxy5(records, panel, p, first, hidden);
  if (form.mnuFlat11_(p).Checked) SmoothProxy11(records, panel, p, first, hidden);
  if (form.mnuFlat208_(p).Checked) SmoothProxy208(records, panel, p, first, hidden);
}

}  // namespace

void DrawProxy(BoreHoleSet& set, ProxyRecords& records, int p) {
  MainForm& form = MainFormOf(set);
  PictureBox& panel = form.Picture1(p);
  const bool marker = form.mnuMarker(p).Checked;
  const bool curve = form.mnuLine(p).Checked;
  long first = 0;
  long hidden = records.ProxyRowCount(p) + 1;
  long i = 0;
  // Any failure ends the drawing as its last step would: the marker of the
  // row at hand, the bar and the pointer reset; what was drawn stays.
  const auto lastStep = [&] {
    if (marker) {
      try {
        Marker(panel, records, p, i);
      } catch (const RuntimeFailure&) {
      }
    }
    form.ProgressBar1.Visible = false;
    form.ProgressBar1.Value = 0;
    Screen.SetMousePointer(0);
  };
  try {
    PlotScale = ColumnScaleOf(set);
    CurveColour = kCurveBlue;
    ChooseColumn(records, p, form.Combo3(p).Text, records.ProxyColumnA(p));
    ChooseColumn(records, p, form.Combo4(p).Text, records.ProxyColumnB(p));
    if (form.Combo4(p).Text.Get() == "1" || !form.Combo4(p).Visible) records.ProxyColumnB(p) = 0;
    MakePlotValues(records, p);
    FindRange(records, p);
    form.ProgressBar1.Max = static_cast<float>(records.ProxyRowCount(p));
    DefaultLimits(form, records, p);
    const double leftLimit = Val(form.Text5(p).Text.Get());
    panel.ScaleLeft = CSng(leftLimit);
    // A negative width flips the axis.
    panel.ScaleWidth = CSng(Val(form.Text6(p).Text.Get()) - leftLimit);
    for (Control* control : std::initializer_list<Control*>{&form.Text5(p), &form.Text6(p),
                                                            &form.Combo3(p), &form.Check1(p)}) {
      control->Visible = true;
    }

    for (int k = 0; k <= 4; ++k) form.Picture1(k).Cls();
    PaintBackground(set, panel);
    PaintEventLayers(set, form, panel);

    panel.FillStyle = 0;
    panel.FillColor = kCurveBlue;
    // The row above the view's top is kept, so that the curve comes in from the edge.
    const Table<Single, 2>& depth = records.ProxyDepth(p);
    const long rows = records.ProxyRowCount(p);
    const float top = panel.ScaleTop;
    i = 1;
    bool allAbove = false;
    while (depth(PlotScale, i + 1) < top) {
      ++i;
      if (i == rows) {
        allAbove = true;
        break;
      }
    }
    hidden = FirstHiddenRow(records, p, panel);
    if (!allAbove && (curve || marker)) {
      first = i;
      DrawCurve(panel, records, p, first, hidden, curve, marker, i);
    }
    lastStep();
  } catch (const RuntimeFailure&) {
    lastStep();
  }

  try {
    SmoothingOverlays(form, records, p, first, hidden);
  } catch (const RuntimeFailure&) {
    // A record too short for its window draws no overlay, and says nothing.
    lastStep();
  }
  for (int k = 0; k <= 4; ++k) form.Picture1(k).CommitImage();
  MarkTargetsOnPanels(set);
}

void DrawPanel(MainForm& form, int p) {
  BoreHoleSet& set = SetOf(form);
  DrawProxy(set, ProxiesOf(set), p);
}

}  // namespace ostraline
