#include <algorithm>
#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include "core/project_state.h"
#include "display/core_columns.h"
#include "display/display_state.h"
#include "display/target_line.h"
#include "events/event_state.h"
#include "forms/frm_main.h"
#include "support/fresh_program.h"
#include "support/model_files.h"

namespace ostraline {
namespace {

constexpr long kGrey = RGB(170, 170, 170);
constexpr long kDarkGrey = RGB(100, 100, 100);
constexpr long kCyan = RGB(220, 255, 255);
constexpr long kOrange = RGB(255, 150, 0);

// A row with cells for bore holes A and B; C and D are starred, so empty.
ModelRow Row(const std::string& splice, std::vector<std::string> a, std::vector<std::string> b,
             const std::string& cd) {
  ModelRow row{splice, {}, cd};
  for (auto* hole : {&a, &b}) {
    if (hole->empty()) *hole = {"*", "*", "*"};
    row.holes.insert(row.holes.end(), hole->begin(), hole->end());
  }
  for (int hole = 3; hole <= 4; ++hole) row.holes.insert(row.holes.end(), {"*", "*", "*"});
  return row;
}

ModelRow RowOfA(const std::string& label, const std::string& psp, const std::string& cd,
                const std::string& splice = "A") {
  return Row(splice, {label, psp, cd.empty() ? "0" : cd}, {}, cd);
}

// Bore hole A in two sections with a gap from 200 to 260; bore hole B has
// rows and a section end but no section top.
std::vector<ModelRow> TwoSectionsOfA() {
  return {DefaultHeader(),
          Row("A", {"A-01-top", "0", "100"}, {"B1", "0", "100"}, "100"),
          Row("A", {"L1", "50", "150"}, {"B2", "50", "150"}, "150"),
          RowOfA("A-01-bottom", "100", "200"),
          RowOfA("A-02-top", "0", "260"),
          RowOfA("L2", "50", "310", "A2"),
          Row("A", {"A-02-bottom", "100", "360"}, {"B-01-bottom", "100", "360"}, "360")};
}

using Match = std::function<bool(const DrawOp&)>;

bool Near(float a, float b) {
  return std::fabs(a - b) < 1e-3f;
}

Match Box(long colour, float upper, float lower) {
  return [=](const DrawOp& op) {
    return op.kind == DrawKind::Box && op.colour == colour && Near(op.uy1, upper) &&
           Near(op.uy2, lower);
  };
}
Match LineAt(long colour, float x1, float y1, float x2, float y2) {
  return [=](const DrawOp& op) {
    return op.kind == DrawKind::Line && op.colour == colour && Near(op.ux1, x1) &&
           Near(op.uy1, y1) && Near(op.ux2, x2) && Near(op.uy2, y2);
  };
}
Match Mark(long colour, float depth) {
  return LineAt(colour, 0, depth, 7.6f, depth);
}
Match OfKind(DrawKind kind) {
  return [=](const DrawOp& op) { return op.kind == kind; };
}

class CoreColumns : public FreshProgram {
 protected:
  void Import(const std::vector<ModelRow>& rows) {
    platform.QueueFile(WriteTempFile("model_20110305.csv", ModelText(rows)));
    frmMain->Command1_Click();
    ASSERT_EQ(LastRow, static_cast<long>(rows.size()) - 1);
  }
  // Every column shows the same window, as the target horizon leaves them.
  void View(float top, int span) {
    ViewSpan = span;
    for (int i = 0; i <= 4; ++i) {
      frmMain->BoreHole(i).ScaleTop = top;
      frmMain->BoreHole(i).ScaleHeight = static_cast<float>(span);
    }
  }
  const std::vector<DrawOp>& Ops(int column) { return frmMain->BoreHole(column).BaseOps(); }
  long Count(int column, const Match& match) {
    return std::count_if(Ops(column).begin(), Ops(column).end(), match);
  }
  // Position of the first matching operation, or -1.
  long IndexOf(int column, const Match& match) {
    const auto& ops = Ops(column);
    const auto it = std::find_if(ops.begin(), ops.end(), match);
    return it == ops.end() ? -1 : static_cast<long>(it - ops.begin());
  }
  const DrawOp* Text(int column, const std::string& text) {
    for (const DrawOp& op : Ops(column)) {
      if (op.kind == DrawKind::Text && op.text == text) return &op;
    }
    return nullptr;
  }

  // A tephra on bore hole A and two age control points, set as their imports leave them.
  void LoadEventsAndAges() {
    EventList.Dim({{0, 9}, {0, 1}});
    EventCount = 1;
    MergedEventCount = 1;
    EventList(1, 1) = "A";
    EventList(5, 1) = "Tephra X";
    EventList(6, 1) = "220";
    EventList(7, 1) = "230";
    AgeModel.Dim({{0, 11}, {0, 2}});
    AgeModelCount = 2;
    AgeModelLoaded = true;
    const char* rows[][4] = {{"C1", "Lab-1", "A", "240"}, {"C2", "Lab-2", "---", "330"}};
    for (int r = 1; r <= 2; ++r) {
      AgeModel(0, r) = rows[r - 1][0];
      AgeModel(1, r) = rows[r - 1][1];
      AgeModel(2, r) = rows[r - 1][2];
      AgeModel(5, r) = rows[r - 1][3];
    }
  }
};

TEST_F(CoreColumns, boreHoleWithoutSectionTopIsGreyToItsLastRowAndDisabled) {
  Import(TwoSectionsOfA());
  View(0, 500);
  DrawLamina();
  // B has rows but no top: grey down to the last row's depth, no cross.
  EXPECT_EQ(Count(2, Box(kGrey, 0, 360)), 1);
  EXPECT_EQ(Count(2, Box(kGrey, 360, 500)), 1);
  EXPECT_EQ(Count(2, [](const DrawOp& op) { return op.colour == kDarkGrey; }), 0);
  EXPECT_TRUE(HoleAbsent(2));
  EXPECT_FALSE(frmMain->BoreHole(2).Enabled);
  EXPECT_FALSE(frmMain->Label1(2).Enabled);
  // A starts at its first section: grey above with a cross.
  EXPECT_EQ(Count(1, Box(kGrey, 0, 100)), 1);
  EXPECT_EQ(Count(1, LineAt(kDarkGrey, 0, 0, 7.6f, 100)), 1);
  EXPECT_EQ(Count(1, LineAt(kDarkGrey, 0, 100, 7.6f, 0)), 1);
  EXPECT_FALSE(HoleAbsent(1));
  EXPECT_TRUE(frmMain->BoreHole(1).Enabled);
  // The composite column: grey above the first tie with a cross, below the last without.
  EXPECT_EQ(Count(0, Box(kGrey, 0, 100)), 1);
  EXPECT_EQ(Count(0, Box(kGrey, 360, 500)), 1);
  EXPECT_EQ(Count(0, LineAt(kDarkGrey, 0, 360, 7.6f, 500)), 0);
}

TEST_F(CoreColumns, pieceAfterAGapStartsFromThePspOfTheRowAfterTheGap) {
  Import({DefaultHeader(), RowOfA("A-01-top", "0", "100"), RowOfA("L1", "40", "140"),
          RowOfA("L2", "80", "180"), RowOfA("A-01-bottom", "100", "", "Gap"),
          RowOfA("A-02-top", "0", ""), RowOfA("L3", "20", "260"), RowOfA("L4", "60", "300"),
          RowOfA("A-02-bottom", "80", "")});
  View(0, 500);
  DrawLamina();
  // A's band closes at the depth of the row before the gap.
  EXPECT_EQ(Count(1, Box(kCyan, 140, 180)), 1);
  EXPECT_EQ(Count(1, Box(kCyan, 180, 180)), 1);
  // 260 - PSP 20 + PSP 0 of the section top after the gap.
  EXPECT_EQ(Count(1, Box(kCyan, 240, 260)), 1);
  EXPECT_EQ(Count(1, Box(kCyan, 180, 260)), 0);
  EXPECT_EQ(Count(1, Box(kCyan, 260, 300)), 1);
  // The deepest bore hole closes the composite at its core bottom.
  EXPECT_EQ(Count(1, Box(kCyan, 300, CoreBottom(1))), 1);
}

TEST_F(CoreColumns, sectionGapsAreComparedAsTextAndLongOnesStayUncrossed) {
  Import({DefaultHeader(), RowOfA("A-01-top", "0", "900"), RowOfA("A-01-bottom", "98.4", "998.4"),
          RowOfA("A-02-top", "0", "1005.2"), RowOfA("A-02-bottom", "95.3", "1100.5"),
          RowOfA("A-03-top", "0", "1150"), RowOfA("A-03-bottom", "100", "1250"),
          RowOfA("A-04-top", "0", "3250"), RowOfA("A-04-bottom", "100", "3350"),
          RowOfA("A-05-top", "0", "5349"), RowOfA("A-05-bottom", "100", "5449")});
  View(900, 5000);
  DrawLamina();
  // "1005.2" sorts before "998.4": no band there.
  EXPECT_EQ(Count(1, Box(kGrey, 998.4f, 1005.2f)), 0);
  EXPECT_EQ(Count(1, Box(kGrey, 1100.5f, 1150)), 1);
  EXPECT_EQ(Count(1, LineAt(kDarkGrey, 0, 1100.5f, 7.6f, 1150)), 1);
  // 2000 missing: grey without a cross; 1999: crossed.
  EXPECT_EQ(Count(1, Box(kGrey, 1250, 3250)), 1);
  EXPECT_EQ(Count(1, LineAt(kDarkGrey, 0, 1250, 7.6f, 3250)), 0);
  EXPECT_EQ(Count(1, Box(kGrey, 3350, 5349)), 1);
  EXPECT_EQ(Count(1, LineAt(kDarkGrey, 0, 3350, 7.6f, 5349)), 1);
  EXPECT_EQ(Count(1, LineAt(kDarkGrey, 0, 5349, 7.6f, 3350)), 1);
}

TEST_F(CoreColumns, pinIsAGreenDotWithItsLabelAndNoLine) {
  Import({DefaultHeader(), RowOfA("A-01-top", "0", "100"), RowOfA("L1", "50", "150"),
          RowOfA("A-01-bottom", "90", "190"), RowOfA("Pin-02-top", "0", "200"),
          RowOfA("L2", "50", "250"), RowOfA("A-02-bottom", "100", "300")});
  View(0, 500);
  DrawLamina();
  const double k = (500.0 / 60) * (7.0 / 6);
  const long green = RGB(100, 255, 100);
  EXPECT_EQ(Count(1,
                  [&](const DrawOp& op) {
                    return op.kind == DrawKind::Circle && op.colour == green && op.filled &&
                           op.fillColour == green && Near(op.ux1, 0.1f) && Near(op.uy1, 200) &&
                           Near(op.uradius, 0.2f);
                  }),
            1);
  const DrawOp* pin = Text(1, "Pin-02-top (0 cm)");
  ASSERT_NE(pin, nullptr);
  EXPECT_TRUE(Near(pin->ux1, 0.5f));
  EXPECT_TRUE(Near(pin->uy1, static_cast<float>(200 - k / 2)));
  EXPECT_EQ(pin->colour, RGB(80, 80, 80));
  EXPECT_EQ(Count(1,
                  [](const DrawOp& op) {
                    return op.kind == DrawKind::Line && Near(op.uy1, 200) && Near(op.uy2, 200);
                  }),
            0);
  // An ordinary row: a magenta line for a one-letter splice cell, its label above it.
  EXPECT_EQ(Count(1, Mark(RGB(255, 0, 255), 150)), 1);
  EXPECT_EQ(Count(1, Mark(RGB(0, 0, 255), 190)), 1);
  const DrawOp* label = Text(1, "L1 (50 cm)");
  ASSERT_NE(label, nullptr);
  EXPECT_TRUE(Near(label->uy1, static_cast<float>(150 - k)));
  EXPECT_EQ(label->colour, kBlack);

  // A taller form brings the labels nearer their marks.
  frmMain->Height = static_cast<float>(DesignFormHeight * 2);
  View(0, 500);
  DrawLamina();
  ASSERT_NE(Text(1, "L1 (50 cm)"), nullptr);
  EXPECT_TRUE(Near(Text(1, "L1 (50 cm)")->uy1, static_cast<float>(150 - k / 2)));
}

TEST_F(CoreColumns, layersLieInTheirOrderAndRepaintsDoNotPileUp) {
  Import(TwoSectionsOfA());
  LoadEventsAndAges();
  View(0, 500);
  DrawLamina();
  const long splice = IndexOf(1, Box(kCyan, 150, 200));
  const long gap = IndexOf(1, Box(kGrey, 200, 260));
  const long event = IndexOf(1, Box(RGB(150, 150, 255), 220, 230));
  const long cross = IndexOf(1, LineAt(kDarkGrey, 0, 200, 7.6f, 260));
  const long point = IndexOf(1, [](const DrawOp& op) {
    return op.kind == DrawKind::Circle && op.colour == RGB(100, 100, 255) && Near(op.uy1, 240);
  });
  const long mark = IndexOf(1, Mark(RGB(0, 0, 255), 260));
  ASSERT_GE(splice, 0);
  EXPECT_LT(splice, gap);
  EXPECT_LT(gap, event);
  EXPECT_LT(event, cross);
  EXPECT_LT(cross, point);
  EXPECT_LT(point, mark);
  // The control point of no bore hole stands on the composite column alone.
  EXPECT_EQ(Count(0, [](const DrawOp& op) { return op.kind == DrawKind::Circle; }), 2);
  EXPECT_EQ(Count(1, [](const DrawOp& op) { return op.kind == DrawKind::Circle; }), 1);

  // Everything is committed, and the next repaint replaces it.
  const std::size_t size = Ops(1).size();
  EXPECT_TRUE(frmMain->BoreHole(1).WorkingOps().empty());
  DrawLamina();
  EXPECT_EQ(Ops(1).size(), size);
  EXPECT_EQ(SavedDepthText, frmMain->Text2.Text.Get());
}

TEST_F(CoreColumns, sizeOneLeavesNoTextButKeepsMarksAndCircles) {
  Import(TwoSectionsOfA());
  LoadEventsAndAges();
  View(0, 500);
  frmMain->mnuShowLabCodes.Click();
  frmMain->mnuShowTiePoints.Click();
  // Labels, lab codes, tie names and the tephra's name are all there at size 7.
  EXPECT_NE(Text(1, "L1 (50 cm)"), nullptr);
  EXPECT_NE(Text(0, "Lab-1"), nullptr);
  EXPECT_NE(Text(0, "A2"), nullptr);
  EXPECT_NE(Text(0, "X"), nullptr);
  EXPECT_EQ(Count(0, Mark(RGB(255, 0, 0), 310)), 1);

  frmMain->mnuSize(1).Click();
  EXPECT_EQ(LabelFontSize, 1);
  EXPECT_TRUE(frmMain->mnuSize(1).Checked);
  EXPECT_FALSE(frmMain->mnuSize(7).Checked);
  for (int i = 0; i <= 5; ++i) EXPECT_EQ(Count(i, OfKind(DrawKind::Text)), 0) << i;
  for (int i = 0; i <= 4; ++i) EXPECT_EQ(frmMain->Label1(i).FontSize.Get(), 2.0f);
  EXPECT_EQ(Count(0, OfKind(DrawKind::Circle)), 2);
  EXPECT_EQ(Count(1, Mark(RGB(255, 0, 255), 150)), 1);
  EXPECT_EQ(Count(0, Mark(RGB(255, 0, 0), 310)), 1);
}

TEST_F(CoreColumns, pointerLineIsAnOverlayThatClearsAway) {
  Import(TwoSectionsOfA());
  View(0, 500);
  frmMain->mnuHorizontalBH.Click();
  EXPECT_EQ(Count(3, Mark(RGB(0, 170, 0), 250)), 1);
  const std::size_t base = Ops(1).size();

  TargetLine(300);
  for (int i = 0; i <= 4; ++i) {
    const auto& overlay = frmMain->BoreHole(i).WorkingOps();
    ASSERT_EQ(overlay.size(), 1u);
    EXPECT_TRUE(LineAt(kOrange, 0, 300, 7.6f, 300)(overlay[0]));
    EXPECT_EQ(frmMain->Picture1(i).WorkingOps().size(), 1u);
  }
  const auto& strip = frmMain->BoreHole(5).WorkingOps();
  ASSERT_EQ(strip.size(), 2u);
  EXPECT_TRUE(LineAt(kOrange, 7.5f, 300, 9.5f, 300)(strip[0]));
  EXPECT_EQ(strip[1].kind, DrawKind::Circle);
  EXPECT_EQ(Ops(1).size(), base);

  ClearTargetLine();
  for (int i = 0; i <= 5; ++i) EXPECT_TRUE(frmMain->BoreHole(i).WorkingOps().empty());
  EXPECT_EQ(Ops(1).size(), base);

  // Without the horizontal line only the strip shows the pointer.
  frmMain->mnuHorizontal.Click();
  EXPECT_FALSE(frmMain->mnuHorizontal.Checked);
  for (int p = 0; p <= 4; ++p) EXPECT_FALSE(frmMain->mnuHorizontalN(p).Checked);
  TargetLine(300);
  EXPECT_TRUE(frmMain->BoreHole(1).WorkingOps().empty());
  EXPECT_EQ(frmMain->BoreHole(5).WorkingOps().size(), 2u);
  frmMain->mnuHorizontalN(3).Click();
  EXPECT_TRUE(frmMain->mnuHorizontal.Checked);
  EXPECT_TRUE(frmMain->mnuHorizontalN(0).Checked);
}

}  // namespace
}  // namespace ostraline
