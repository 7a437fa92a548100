#include <algorithm>
#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include "core/project_state.h"
#include "display/display_state.h"
#include "forms/frm_main.h"
#include "proxies/proxy_panel.h"
#include "proxies/proxy_records.h"
#include "support/age_files.h"
#include "support/model_files.h"

namespace ostraline {
namespace {

constexpr long kBlue = RGB(0, 0, 255);

// Rows of bore hole A, section 01, at PSP 10, 14, 18, ...: composite depth
// 110 + (PSP - 10) * 1.25, so 5 cm apart from 110 cm on. The event list
// holds a tephra (150 to 157.5 cm) and a void (155 to 160 cm).
class ProxyPanel : public AgeProgram {
 protected:
  void SetUp() override {
    AgeProgram::SetUp();
    ImportModelAndEvents(kFusedLayer);
  }
  // One row for each value list entry; columns named by `names`.
  void ImportColumns(const std::vector<std::string>& names,
                     const std::vector<std::vector<std::string>>& columns) {
    std::string text = "Bore hole,Section,PSP";
    for (const std::string& name : names) text += "," + name;
    text += "\r\n";
    for (std::size_t row = 0; row < columns[0].size(); ++row) {
      text += "A,1," + std::to_string(10 + 4 * row);
      for (const auto& column : columns) text += "," + column[row];
      text += "\r\n";
    }
    platform.QueueFile(WriteTempFile("panel.csv", text));
    frmMain->Command6_Click(0);
    ASSERT_TRUE(platform.messages.empty()) << OnlyMessage();
    View(100, 100);
  }
  void View(float top, float height) {
    frmMain->Picture1(0).ScaleTop = top;
    frmMain->Picture1(0).ScaleHeight = height;
    DrawProxy(0);
  }
  std::vector<const DrawOp*> Ops(DrawKind kind, long colour) {
    std::vector<const DrawOp*> found;
    for (const DrawOp& op : frmMain->Picture1(0).BaseOps()) {
      if (op.kind == kind && op.colour == colour) found.push_back(&op);
    }
    return found;
  }
  std::string Limits() {
    return frmMain->Text5(0).Text.Get() + " .. " + frmMain->Text6(0).Text.Get();
  }
};

TEST_F(ProxyPanel, LimitsFromTheDataUnlessTyped) {
  ImportColumns({"V"}, {{"0.2", "0.5", "0.7", "0.3", "0.4", "0.6", "0.2", "0.3"}});
  EXPECT_EQ(Limits(), "0 .. 0.7");  // not rounded below 1
  ImportColumns({"V"}, {{"-0.2", "0.5", "0.7", "0.3", "0.4", "0.6", "0.2", "0.3"}});
  EXPECT_EQ(Limits(), "-0.2 .. 0.7");
  ImportColumns({"V"}, {{"12.3", "45.6", "20", "30", "9999", "40", "13", "14"}});
  EXPECT_EQ(Limits(), "12 .. 46");  // 11.8 and 46.1 rounded; 9999 is no value
  EXPECT_FLOAT_EQ(frmMain->Picture1(0).ScaleLeft, 12);
  EXPECT_FLOAT_EQ(frmMain->Picture1(0).ScaleWidth, 34);
  // A constant column gets an axis one wide: 4.5 and 6.5 round half to even.
  ImportColumns({"V"}, {{"5", "5", "5", "5", "5", "5", "5", "5"}});
  EXPECT_FLOAT_EQ(ProxyMax(0), 6);
  EXPECT_EQ(Limits(), "4 .. 6");

  // A typed limit survives the scroll; another column empties it.
  ImportColumns({"V", "W"}, {{"1", "2", "3", "4", "5", "6", "7", "8"},
                             {"10", "20", "30", "40", "50", "60", "70", "80"}});
  frmMain->Text6(0).Text = "100";
  View(120, 50);
  EXPECT_EQ(Limits(), "0 .. 100");  // 0.5 rounds half to even
  frmMain->Combo3(0).Text = "W";
  frmMain->Combo3_Click(0);
  EXPECT_EQ(Limits(), "10 .. 80");
  // Flipping swaps the limits; twice gives the first picture back.
  const std::vector<DrawOp> before = frmMain->Picture1(0).BaseOps();
  frmMain->mnuFlipH(0).Click();
  EXPECT_EQ(Limits(), "80 .. 10");
  EXPECT_FLOAT_EQ(frmMain->Picture1(0).ScaleWidth, -70);
  frmMain->mnuFlipH(0).Click();
  const std::vector<DrawOp>& after = frmMain->Picture1(0).BaseOps();
  ASSERT_EQ(after.size(), before.size());
  for (std::size_t i = 0; i < after.size(); ++i) {
    EXPECT_EQ(after[i].x1, before[i].x1);
    EXPECT_EQ(after[i].y2, before[i].y2);
  }
  // The same text in both boxes: the overlay is cleared, nothing redrawn.
  const std::size_t drawn = frmMain->Picture1(0).BaseOps().size();
  frmMain->Text5(0).Text = "80";
  EXPECT_TRUE(frmMain->Picture1(0).WorkingOps().empty());
  EXPECT_EQ(frmMain->Picture1(0).BaseOps().size(), drawn);
}

// Column V: 1, 2, 3, 4, 5, 6, 7, 8; column W: 2, 2, 0, 2, ... as
// denominator: the row with 0 has no value and breaks the curve there.
TEST_F(ProxyPanel, CurveMarkersAndGaps) {
  ImportColumns({"V", "W", "V"}, {{"1", "2", "3", "4", "5", "6", "7", "8"},
                                  {"2", "2", "0", "2", "2", "2", "2", "2"},
                                  {"10", "20", "30", "40", "50", "60", "70", "80"}});
  // Two columns named V: the later one is plotted, whichever was chosen.
  EXPECT_EQ(ProxyColumnA(0), 3);
  std::vector<const DrawOp*> lines = Ops(DrawKind::Line, kBlue);
  ASSERT_EQ(lines.size(), 7u);  // eight rows, all in or below the view
  EXPECT_FLOAT_EQ(lines[0]->ux1, 10);
  EXPECT_FLOAT_EQ(lines[0]->uy1, 110);
  EXPECT_FLOAT_EQ(lines[6]->uy2, 145);
  EXPECT_EQ(Ops(DrawKind::Circle, kBlue).size(), 8u);

  // The ratio V / W: row 3 has no value, so two segments go.
  frmMain->Check1(0).Value = 1;
  EXPECT_TRUE(frmMain->Combo4(0).Visible);
  frmMain->Combo4(0).Text = "W";
  frmMain->Combo4_Click(0);
  EXPECT_EQ(ProxyColumnB(0), 2);
  lines = Ops(DrawKind::Line, kBlue);
  ASSERT_EQ(lines.size(), 5u);
  EXPECT_FLOAT_EQ(lines[0]->ux2, 10);   // 20 / 2
  EXPECT_FLOAT_EQ(lines[1]->uy1, 125);  // resumes after the row without value

  // The first row drawn is the last above the view's top, so that the curve
  // comes in from the edge; its marker lies outside and is clipped.
  View(126, 50);
  EXPECT_FLOAT_EQ(Ops(DrawKind::Line, kBlue).front()->uy1, 125);
  EXPECT_FLOAT_EQ(Ops(DrawKind::Circle, kBlue).front()->uy1, 130);
  // Every row above the view: no curve, the drawing still ends as usual.
  View(300, 50);
  EXPECT_TRUE(Ops(DrawKind::Line, kBlue).empty());
  EXPECT_TRUE(Ops(DrawKind::Circle, kBlue).empty());
  EXPECT_FALSE(frmMain->ProgressBar1.Visible);
}

TEST_F(ProxyPanel, BackgroundAndEventLayers) {
  ImportColumns({"V"}, {{"1", "2", "3", "4", "5", "6", "7", "8"}});
  TieCell(1, 1) = "110";  // the model's top row at its first tie
  View(80, 300);
  // Grey with its cross above the model's first tie (110 cm), and the void;
  // the last row has no composite depth, which reads as 9999: nothing below
  // it is grey. The tephra is blue, the void over it.
  EXPECT_EQ(Ops(DrawKind::Box, RGB(170, 170, 170)).size(), 2u);
  const auto crosses = Ops(DrawKind::Line, RGB(100, 100, 100));
  ASSERT_EQ(crosses.size(), 4u);
  EXPECT_FLOAT_EQ(crosses[0]->uy1, 110);
  EXPECT_FLOAT_EQ(crosses[0]->uy2, 80);
  const auto tephra = Ops(DrawKind::Box, RGB(150, 150, 255));
  ASSERT_EQ(tephra.size(), 1u);
  EXPECT_FLOAT_EQ(tephra[0]->uy1, 150);
  // The curve lies over the layers, and the target's green mark over all.
  const auto& ops = frmMain->Picture1(0).BaseOps();
  const auto firstCurve = std::find_if(ops.begin(), ops.end(), [](const DrawOp& op) {
    return op.kind == DrawKind::Line && op.colour == kBlue;
  });
  EXPECT_GT(firstCurve - ops.begin(), tephra[0] - &ops[0]);
  const auto& overlay = frmMain->Picture1(0).WorkingOps();
  ASSERT_EQ(overlay.size(), 1u);
  EXPECT_EQ(overlay[0].colour, RGB(0, 170, 0));
}

// The drawing skips what lies far below the view and sums the running means
// from plain arrays; every operation the canvas keeps must be the same as
// the full walk's through the checked tables, on a record with gaps, depth
// reversals, rows without depth, under each size of running mean.
TEST_F(ProxyPanel, SkippingRowsBelowTheViewChangesNoOperation) {
  std::vector<std::string> values;
  std::vector<std::string> second;
  for (int row = 0; row < 400; ++row) {
    values.push_back(row % 37 == 5 ? "9999" : std::to_string((row * 7919) % 1000 / 7.0));
    second.push_back(std::to_string(1 + row % 5));
  }
  ImportColumns({"V", "W"}, {values, second});
  for (long row = 1; row <= ProxyRowCount(0); ++row) {
    ProxyDepth(0)(1, row) += 0.137f * static_cast<float>(row % 7);
    if (row % 53 == 0) ProxyDepth(0)(1, row) = ProxyDepth(0)(1, row - 3);  // a reversal
    if (row % 71 == 0) ProxyDepth(0)(1, row) = 9999;
  }
  const auto both = [&](float top, float height) {
    DrawOnlyWhatShows = false;
    View(top, height);
    const std::vector<DrawOp> full = frmMain->Picture1(0).BaseOps();
    DrawOnlyWhatShows = true;
    View(top, height);
    const std::vector<DrawOp>& fast = frmMain->Picture1(0).BaseOps();
    ASSERT_EQ(fast.size(), full.size()) << top;
    for (std::size_t i = 0; i < fast.size(); ++i) {
      const DrawOp& a = fast[i];
      const DrawOp& b = full[i];
      EXPECT_TRUE(a.kind == b.kind && a.x1 == b.x1 && a.y1 == b.y1 && a.x2 == b.x2 &&
                  a.y2 == b.y2 && a.radius == b.radius && a.colour == b.colour &&
                  a.drawWidth == b.drawWidth)
          << "operation " << i << " at view top " << top;
    }
  };
  for (auto* window : {&frmMain->mnuFlat3_, &frmMain->mnuFlat11_, &frmMain->mnuFlat208_}) {
    frmMain->mnuFlat3_(0).Checked = false;
    frmMain->mnuFlat11_(0).Checked = false;
    frmMain->mnuFlat208_(0).Checked = false;
    (*window)(0).Checked = true;
    for (float top : {100.0f, 180.0f, 400.0f, 560.0f, 1500.0f}) both(top, 60);
    both(100, 1000);
  }
}

// With a ratio plotted, a running mean is the mean of the ratios, not the
// ratio of the means.
TEST_F(ProxyPanel, RunningMeansOfARatio) {
  ImportColumns({"V", "W"}, {{"1", "2", "3", "4", "5", "6", "7", "8"},
                             {"1", "2", "4", "8", "1", "2", "4", "8"}});
  frmMain->mnuFlat3_(0).Checked = true;
  frmMain->Check1(0).Value = 1;
  frmMain->Combo4(0).Text = "W";
  frmMain->Combo4_Click(0);
  const auto means = Ops(DrawKind::Line, RGB(255, 0, 0));
  ASSERT_FALSE(means.empty());
  EXPECT_FLOAT_EQ(means.front()->ux1, (1.0f + 1.0f + 0.75f) / 3);
  EXPECT_FLOAT_EQ(means.front()->uy1, 115);
}

}  // namespace
}  // namespace ostraline
