#include <algorithm>
#include <array>
#include <functional>
#include <limits>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "forms/frm2_main.h"
#include "forms/frm_export.h"
#include "forms/frm_main.h"
#include "proxies/proxy_records.h"
#include "proxies/smoothing.h"
#include "support/failures.h"
#include "support/fresh_program.h"

namespace ostraline {
namespace {

constexpr long kRed = 255;
using Overlay = void (*)(const ProxyRecords&, PictureBox&, int, long, long);
constexpr long kNothingHidden = std::numeric_limits<long>::max();

// One window's overlay on the master's panel p.
void Smooth(Overlay draw, int p, long first, long hidden = kNothingHidden) {
  draw(masterProxies, frmMain->Picture1(p), p, first, hidden);
}

class Smoothing : public FreshProgram {
 protected:
  // A record of `rows` rows on panel p, plotted as DrawProxy leaves it, with
  // the panel's scale around all of it.
  void Load(int p, long rows, const std::function<Single(long)>& value,
            const std::function<Single(long)>& depth) {
    ProxyRowCount(p) = rows;
    ProxyDepth(p).Dim({{0, 3}, {0, rows}});
    ProxyPlot.Dim({{0, 2}, {0, rows}});
    PlotScale = 1;
    Single lowest = 0;
    Single highest = 1;
    for (long k = 1; k <= rows; ++k) {
      ProxyPlot(0, k) = value(k);
      ProxyDepth(p)(1, k) = depth(k);
      // Another scale's positions, which the overlay must not read.
      ProxyDepth(p)(2, k) = -depth(k);
      highest = std::max(highest, std::max(value(k), depth(k)));
      lowest = std::min(lowest, std::min(value(k), depth(k)));
    }
    PictureBox& panel = frmMain->Picture1(p);
    panel.Cls();
    panel.ScaleLeft = lowest;
    panel.ScaleWidth = highest - lowest + 1;
    panel.ScaleTop = lowest;
    panel.ScaleHeight = highest - lowest + 1;
  }
  // Row k plots k at depth 2k: a mean over a window is then its centre row.
  void LoadLinear(int p, long rows) {
    Load(
        p, rows, [](long k) { return static_cast<Single>(k); },
        [](long k) { return static_cast<Single>(2 * k); });
  }
  static std::vector<DrawOp> Segments(int p) {
    std::vector<DrawOp> red;
    for (const DrawOp& op : frmMain->Picture1(p).WorkingOps()) {
      if (op.kind == DrawKind::Line && op.colour == kRed) red.push_back(op);
    }
    return red;
  }
  // The ends of each drawn segment in the panel's scale.
  static std::vector<std::array<float, 4>> Ends(int p) {
    std::vector<std::array<float, 4>> ends;
    for (const DrawOp& op : Segments(p)) ends.push_back({op.ux1, op.uy1, op.ux2, op.uy2});
    return ends;
  }
  // The rows i of the drawn segments, from the first mean of a linear record.
  static std::set<long> RowsDrawn(int p) {
    std::set<long> rows;
    for (const DrawOp& op : Segments(p)) rows.insert(static_cast<long>(op.ux1));
    return rows;
  }
};

TEST_F(Smoothing, GuardsAndTableEndsDecideWhetherAnOverlayIsDrawn) {
  struct Case {
    Overlay smooth;
    long rows;
    bool fails;
    std::size_t segments;
  };
  // 208 rows pass the guard of the widest window, then its first pass reads
  // row 209; the small windows have no guard at all.
  const Case cases[] = {{SmoothProxy208, 207, false, 0}, {SmoothProxy208, 208, true, 0},
                        {SmoothProxy208, 209, false, 1}, {SmoothProxy208, 210, false, 1},
                        {SmoothProxy208, 211, false, 2}, {SmoothProxy11, 10, false, 0},
                        {SmoothProxy11, 11, true, 0},    {SmoothProxy11, 12, false, 1},
                        {SmoothProxy5, 5, true, 0},      {SmoothProxy5, 6, false, 1},
                        {SmoothProxy3, 3, true, 0},      {SmoothProxy3, 4, false, 1},
                        {SmoothProxy3, 30, false, 26}};
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::Message() << c.rows << " rows, case " << (&c - cases));
    LoadLinear(2, c.rows);
    const auto failure = FailureOf([&] { Smooth(c.smooth, 2, 0); });
    EXPECT_EQ(failure, c.fails ? std::optional(FailureKind::SubscriptOutOfRange) : std::nullopt);
    EXPECT_EQ(Segments(2).size(), c.segments);
    for (const DrawOp& op : Segments(2)) EXPECT_EQ(op.drawWidth, 2);
    // A failure leaves the wide pen to the drawing's handler.
    EXPECT_EQ(frmMain->Picture1(2).DrawWidth, c.fails ? 2 : 1);
    frmMain->Picture1(2).DrawWidth = 1;
  }

  // The even window is centred half a row above i; the last row enters no mean.
  LoadLinear(2, 209);
  Smooth(SmoothProxy208, 2, 0);
  EXPECT_EQ(Ends(2), (std::vector<std::array<float, 4>>{{104.5f, 209, 105.5f, 211}}));
  LoadLinear(2, 30);
  Smooth(SmoothProxy3, 2, 0);
  EXPECT_EQ(Segments(2).front().ux1, 2.0f);
  EXPECT_EQ(Segments(2).back().ux2, 28.0f);
}

TEST_F(Smoothing, StartsAtTheFirstRowOfTheView) {
  LoadLinear(0, 500);
  Smooth(SmoothProxy11, 0, 400);
  EXPECT_EQ(Segments(0).size(), 94u);
  EXPECT_EQ(Segments(0).front().ux1, 400.0f);
  EXPECT_EQ(Segments(0).front().uy1, 800.0f);

  // The first mean reaches back to row 395, not further.
  ProxyPlot(0, 394) = 9999;
  frmMain->Picture1(0).Cls();
  Smooth(SmoothProxy11, 0, 400);
  EXPECT_EQ(*RowsDrawn(0).begin(), 400);
  ProxyPlot(0, 395) = 9999;
  frmMain->Picture1(0).Cls();
  Smooth(SmoothProxy11, 0, 400);
  EXPECT_EQ(*RowsDrawn(0).begin(), 401);

  // Below the lowest first row, the overlay starts at its first full window.
  const std::pair<Overlay, Single> firstMeans[] = {{SmoothProxy11, 6.0f}, {SmoothProxy208, 104.5f}};
  for (auto [smooth, first] : firstMeans) {
    LoadLinear(0, 500);
    Smooth(smooth, 0, 1);
    EXPECT_EQ(Segments(0).front().ux1, first);
  }
}

TEST_F(Smoothing, BadRowsTakeOutTheSegmentsThatTestThem) {
  auto allBut = [](long from, long to) {
    std::set<long> rows;
    for (long i = 3; i <= 36; ++i) {
      if (i < from || i > to) rows.insert(i);
    }
    return rows;
  };
  const auto rowsDrawnWith = [&](const std::function<void()>& spoil) {
    LoadLinear(4, 40);
    spoil();
    Smooth(SmoothProxy5, 4, 0);
    return RowsDrawn(4);
  };
  EXPECT_EQ(rowsDrawnWith([] {}), allBut(0, 0));
  // A row without a value: the window and one segment more.
  EXPECT_EQ(rowsDrawnWith([] { ProxyPlot(0, 20) = -9999; }), allBut(17, 22));
  // Equal depths are no reversal.
  EXPECT_EQ(rowsDrawnWith([] { ProxyDepth(4)(1, 20) = ProxyDepth(4)(1, 19); }), allBut(0, 0));
  // A depth of 9999 is no gap by itself, only by the fall to the next row,
  // so the segment before the fall takes it into its mean.
  EXPECT_EQ(rowsDrawnWith([] { ProxyDepth(4)(1, 20) = 9999; }), allBut(18, 22));
  EXPECT_EQ(Segments(4)[17 - 3].uy2, (32.0f + 34 + 36 + 38 + 9999) / 5);
}

TEST_F(Smoothing, MeansAreSinglePrecisionInTheirOrderOfAdditions) {
  Load(
      1, 40, [](long k) { return static_cast<Single>(k) / 3.0f + 1.0f / static_cast<Single>(k); },
      [](long k) { return 100.0f + static_cast<Single>(k) / 1.3f; });
  auto value = [](long k) { return ProxyPlot(0, k); };
  auto depth = [](long k) { return ProxyDepth(1)(1, k); };

  // Window 11 at i = 11: rows 7 to 16 once, then row 6 for the start and
  // row 17 for the end. Here the plain order from row 6 gives other bits.
  Smooth(SmoothProxy11, 1, 0);
  Single sharedX = 0;
  Single sharedY = 0;
  Single plainX = value(6);
  Single plainY = depth(6);
  for (long k = 7; k <= 16; ++k) {
    sharedX += value(k);
    sharedY += depth(k);
    plainX += value(k);
    plainY += depth(k);
  }
  ASSERT_NE((sharedX + value(6)) / 11, plainX / 11);
  ASSERT_NE((sharedY + depth(6)) / 11, plainY / 11);
  const DrawOp at11 = Segments(1).at(11 - 6);
  EXPECT_EQ(at11.ux1, (sharedX + value(6)) / 11);
  EXPECT_EQ(at11.uy1, (sharedY + depth(6)) / 11);
  EXPECT_EQ(at11.ux2, (sharedX + value(17)) / 11);
  EXPECT_EQ(at11.uy2, (sharedY + depth(17)) / 11);

  // Window 3 at i = 6 adds from the top row down.
  frmMain->Picture1(1).Cls();
  Smooth(SmoothProxy3, 1, 0);
  const Single downwards = value(5) + value(6) + value(7);
  ASSERT_NE(downwards / 3, (value(7) + value(6) + value(5)) / 3);
  EXPECT_EQ(Segments(1).at(6 - 2).ux1, downwards / 3);
  EXPECT_EQ(Segments(1).at(6 - 2).ux2, (value(6) + value(7) + value(8)) / 3);
}

// A record with gaps, a reversal and a run of equal values, seen through a
// short view; below the view's bottom its depths jump to 9999, so that the
// last segments that show reach down into the rows left out.
TEST_F(Smoothing, LeavingOutRowsBelowTheViewChangesNothingDrawn) {
  const long rows = 600;
  Load(
      3, rows,
      [](long k) {
        if (k == 20 || k == 420) return 9999.0f;
        if (k == 450) return -9999.0f;
        if (k >= 100 && k <= 110) return 5.0f;
        return static_cast<Single>(k * 7919 % 100) / 10.0f;
      },
      [](long k) {
        if (k > 240) return 9999.0f;
        return k == 30 ? static_cast<Single>(k) / 2 - 3 : static_cast<Single>(k) / 2;
      });
  PictureBox& panel = frmMain->Picture1(3);
  panel.ScaleLeft = 0;
  panel.ScaleWidth = 10;
  panel.ScaleTop = 100;
  panel.ScaleHeight = 20;
  const Single limit = 100 + 3 * 20;
  long hidden = rows + 1;
  while (hidden > 1 && ProxyDepth(3)(1, hidden - 1) > limit) --hidden;
  ASSERT_EQ(hidden, 241);

  for (Overlay smooth : {SmoothProxy3, SmoothProxy5, SmoothProxy11, SmoothProxy208}) {
    for (long first : {0L, 120L}) {
      panel.Cls();
      Smooth(smooth, 3, first, rows + 1);
      const auto plain = Ends(3);
      panel.Cls();
      Smooth(smooth, 3, first, hidden);
      ASSERT_FALSE(plain.empty());
      EXPECT_EQ(Ends(3), plain);
    }
    // The first pass runs whatever lies below the view, and fails past the end.
    EXPECT_EQ(FailureOf([&] { Smooth(smooth, 3, rows - 1, hidden); }),
              FailureKind::SubscriptOutOfRange);
  }
}

using PanelMenus = FreshProgram;

TEST_F(PanelMenus, OneSmoothingEntryAtATimeOnEachPanelAndTheirCheckMarks) {
  FrmMain& form = *frmMain;
  // The windows whose entry is checked on panel p.
  auto checked = [&form](int p) {
    std::string windows;
    const std::pair<ControlArray<Menu>*, const char*> entries[] = {
        {&form.mnuFlat3_, "3 "}, {&form.mnuFlat5_, "5 "}, {&form.mnuFlat11_, "11 "},
        {&form.mnuFlat208_, "208 "}};
    for (auto [entry, window] : entries) {
      if ((*entry)(p).Checked) windows += window;
    }
    return windows;
  };
  form.mnuFlat3_(1).Click();
  EXPECT_EQ(checked(1), "3 ");
  form.mnuFlat5_(1).Click();
  EXPECT_EQ(checked(1), "5 ");
  form.mnuFlat208_(2).Click();
  EXPECT_EQ(checked(1), "5 ");
  EXPECT_EQ(checked(2), "208 ");
  form.mnuFlat5_(1).Click();
  EXPECT_EQ(checked(1), "");

  // The drawing entries' check marks.
  form.mnuLine(3).Click();
  form.mnuMarker(3).Click();
  form.mnuMulti_0.Click();
  EXPECT_FALSE(form.mnuLine(3).Checked);
  EXPECT_FALSE(form.mnuMarker(3).Checked);
  EXPECT_FALSE(form.mnuMulti_0.Checked);
  EXPECT_TRUE(form.mnuLine(2).Checked);

  // The file name's mark draws nothing.
  const unsigned long revision = form.Picture1(3).Revision();
  form.mnuFilename(3).Click();
  EXPECT_TRUE(form.mnuFilename(3).Checked);
  EXPECT_EQ(form.Picture1(3).Revision(), revision);
  form.mnuFilename(3).Click();
  EXPECT_FALSE(form.mnuFilename(3).Checked);
}

TEST_F(PanelMenus, CopyTakesTheCommittedPictureWithoutTheTargetLine) {
  FrmMain& form = *frmMain;
  PictureBox& panel = form.Picture1(3);
  panel.ScaleLeft = 0;
  panel.ScaleWidth = 10;
  panel.ScaleTop = 100;
  panel.ScaleHeight = 50;
  panel.LineBF(0, 100, 10, 120, RGB(170, 170, 170));
  panel.Line(2, 110, 8, 140, kRed);
  panel.CommitImage();
  panel.Line(0, 125, 10, 125, RGB(255, 150, 0));

  form.mnuCopy(3).Click();
  ASSERT_TRUE(platform.clipboard.has_value());
  ASSERT_EQ(platform.clipboard->ops.size(), 2u);
  EXPECT_EQ(platform.clipboard->ops[0].kind, DrawKind::Box);
  EXPECT_EQ(platform.clipboard->ops[1].colour, kRed);
  EXPECT_EQ(platform.clipboard->width, panel.InnerWidth());
}

// The export of a panel's record is not built: the dialog says so and gives
// both main forms back, and never loads a Duo form that is not open.
TEST_F(PanelMenus, ExportDialogSaysItIsNotBuiltAndGivesTheMainFormsBack) {
  FrmMain& form = *frmMain;
  platform.SetMousePointer(2);
  form.mnuExport_(4).Click();
  ASSERT_TRUE(frmExport.IsLoaded());
  EXPECT_TRUE(frmExport->Visible);
  EXPECT_EQ(frmExport->Label1.Caption.Get(), "4");
  EXPECT_FALSE(form.Enabled);
  EXPECT_EQ(platform.MousePointer(), 0);
  frmExport.Unload();
  EXPECT_TRUE(form.Enabled);
  EXPECT_FALSE(frm2Main.IsLoaded());

  frm2Main->Show();
  form.mnuExport_(0).Click();
  EXPECT_EQ(frmExport->Label1.Caption.Get(), "0");
  EXPECT_FALSE(frm2Main->Enabled);
  EXPECT_TRUE(platform.messages.empty());
  frmExport->Command1.Click();
  ASSERT_EQ(platform.messages.size(), 1u);
  EXPECT_EQ(platform.messages[0].text, "Sorry, this function is under construction.");
  EXPECT_EQ(platform.messages[0].title, "Ostraline");
  EXPECT_EQ(platform.messages[0].icon, MsgIcon::None);
  EXPECT_TRUE(form.Enabled);
  EXPECT_TRUE(frm2Main->Enabled);
  EXPECT_FALSE(frmExport.IsLoaded());
}

}  // namespace
}  // namespace ostraline
