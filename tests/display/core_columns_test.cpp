// The core view: the columns, the events on them and the scale strip.
#include <algorithm>
#include <cmath>
#include <functional>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "core/project_state.h"
#include "display/core_columns.h"
#include "display/display_state.h"
#include "display/event_view.h"
#include "display/scale_strip.h"
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
constexpr long kYellow = RGB(225, 225, 125);
constexpr long kTephraBlue = RGB(150, 150, 255);
constexpr long kGreen = RGB(0, 170, 0);
constexpr long kBlue = RGB(0, 0, 255);

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

struct Layer {
  const char* hole;
  const char* description;
  const char* top;
  const char* bottom;
};

// The list as the import leaves it: composite top and bottom in columns 6
// and 7, the EFD of the top in column 8.
void LoadLayers(const std::vector<Layer>& layers) {
  EventList.Dim({{0, 9}, {0, static_cast<long>(layers.size())}});
  EventCount = static_cast<long>(layers.size());
  MergedEventCount = EventCount;
  for (long r = 1; r <= EventCount; ++r) {
    const Layer& layer = layers[static_cast<std::size_t>(r - 1)];
    EventList(1, r) = layer.hole;
    EventList(5, r) = layer.description;
    EventList(6, r) = layer.top;
    EventList(7, r) = layer.bottom;
    EventList(8, r) = layer.top;
  }
}

class CoreColumns : public FreshProgram {
 protected:
  void Import(const std::vector<ModelRow>& rows) {
    ImportModel(rows);
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
  // The dark grey diagonals across a column between two depths: 2 for a cross.
  long Crosses(int column, float upper, float lower) {
    return Count(column, LineAt(kDarkGrey, 0, upper, 7.6f, lower)) +
           Count(column, LineAt(kDarkGrey, 0, lower, 7.6f, upper));
  }
  const DrawOp* Text(int column, const std::string& text) {
    for (const DrawOp& op : Ops(column)) {
      if (op.kind == DrawKind::Text && op.text == text) return &op;
    }
    return nullptr;
  }

  // A tephra on bore hole A and two age control points, set as their imports leave them.
  void LoadEventsAndAges() {
    LoadLayers({{"A", "Tephra X", "220", "230"}});
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

TEST_F(CoreColumns, boreHoleWithoutSectionTopIsGreyAndDisabledAndThePointerLineClearsAway) {
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
  EXPECT_EQ(Crosses(1, 0, 100), 2);
  EXPECT_FALSE(HoleAbsent(1));
  EXPECT_TRUE(frmMain->BoreHole(1).Enabled);
  // The composite column: grey above the first tie with a cross, below the last without.
  EXPECT_EQ(Count(0, Box(kGrey, 0, 100)), 1);
  EXPECT_EQ(Count(0, Box(kGrey, 360, 500)), 1);
  EXPECT_EQ(Crosses(0, 360, 500), 0);

  // The fixed horizon has a check mark of its own that the drawing reads.
  frmMain->mnuHorizontalBH.Click();
  EXPECT_TRUE(frmMain->mnuHorizontalBH.Checked);
  EXPECT_EQ(Count(3, Mark(kGreen, 250)), 1);
  EXPECT_TRUE(frmMain->mnuHorizontal.Checked);
  EXPECT_TRUE(frmMain->mnuHorizontalN(4).Checked);

  // The pointer line is an overlay that clears away.
  const std::size_t base = Ops(1).size();

  TargetLine(masterSet, 300);
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

  ClearTargetLine(masterSet);
  for (int i = 0; i <= 5; ++i) EXPECT_TRUE(frmMain->BoreHole(i).WorkingOps().empty());
  EXPECT_EQ(Ops(1).size(), base);

  // Without the horizontal line only the strip shows the pointer.
  frmMain->mnuHorizontal.Click();
  EXPECT_FALSE(frmMain->mnuHorizontal.Checked);
  for (int p = 0; p <= 4; ++p) EXPECT_FALSE(frmMain->mnuHorizontalN(p).Checked);
  TargetLine(masterSet, 300);
  EXPECT_TRUE(frmMain->BoreHole(1).WorkingOps().empty());
  EXPECT_EQ(frmMain->BoreHole(5).WorkingOps().size(), 2u);
  frmMain->mnuHorizontalN(3).Click();
  EXPECT_TRUE(frmMain->mnuHorizontal.Checked);
  EXPECT_TRUE(frmMain->mnuHorizontalN(0).Checked);
  // The pointer line's six switches and the fixed horizon leave each other alone.
  EXPECT_TRUE(frmMain->mnuHorizontalBH.Checked);
  frmMain->mnuHorizontalBH.Click();
  EXPECT_FALSE(frmMain->mnuHorizontalBH.Checked);
  EXPECT_EQ(Count(3, Mark(kGreen, 250)), 0);
  EXPECT_TRUE(frmMain->mnuHorizontal.Checked);
}

TEST_F(CoreColumns, pieceAfterAGapStartsFromThePspOfTheRowAfterTheGap) {
  Import({DefaultHeader(), RowOfA("A-01-top", "0", "100"), RowOfA("L1", "40", "140"),
          RowOfA("L2", "80", "180"), RowOfA("A-01-bottom", "100", "", "Gap"),
          RowOfA("A-02-top", "0", ""), RowOfA("L3", "20", "260"), RowOfA("L4", "60", "300"),
          RowOfA("A-02-bottom", "80", "")});
  View(0, 500);
  DrawLamina();
  // A's band closes at the depth of the row before the gap.
  EXPECT_EQ(Count(1, Box(kCyan, 180, 180)), 1);
  // The gap row and the untied section top paint A's last band again, and
  // that ends the reach back: the next piece starts where A's last one ended.
  EXPECT_EQ(Count(1, Box(kCyan, 140, 180)), 3);
  EXPECT_EQ(Count(1, Box(kCyan, 180, 260)), 1);
  EXPECT_EQ(Count(1, Box(kCyan, 240, 260)), 0);
  EXPECT_EQ(Count(1, Box(kCyan, 260, 300)), 1);
  // The deepest bore hole closes the composite at its core bottom.
  EXPECT_EQ(Count(1, Box(kCyan, 300, CoreBottom(1))), 1);

  // With the piece before the gap above the view nothing ends the reach
  // back: 260 - PSP 20 + PSP 0 of the section top after the gap.
  View(185, 500);
  DrawLamina();
  EXPECT_EQ(Count(1, Box(kCyan, 240, 260)), 1);
  EXPECT_EQ(Count(1, Box(kCyan, 180, 260)), 0);
}

TEST_F(CoreColumns, rowsWithoutATieStillPaintTheLastBandOnTheEventFreeScale) {
  // Splice, then label, PSP and EFD of A and B, and the composite EFD.
  const std::vector<std::vector<std::string>> cells = {
      {"A", "A-01-top", "0", "90", "B-01-top", "0", "90", "9999"},
      {"A", "L1", "10", "100", "M1", "10", "100", "100"},
      {"B", "L2", "50", "140", "M2", "50", "140", "140"},
      {"Gap", "A-01-bottom", "90", "180", "B-01-bottom", "90", "180", "9999"},
      {"A", "A-02-top", "0", "230", "*", "*", "*", "9999"},
      {"A", "L3", "20", "260", "*", "*", "*", "260"},
      {"A", "A-02-bottom", "60", "300", "*", "*", "*", "300"}};
  std::vector<ModelRow> model{DefaultHeader()};
  for (const auto& c : cells) {
    const std::string tie = c[7] == "9999" ? "" : c[7];
    model.push_back(Row(c[0], {c[1], c[2], c[3]}, {c[4], c[5], c[6]}, tie));
  }
  Import(model);
  // The event free depths as the event list import leaves them.
  for (long r = 1; r <= LastRow; ++r) {
    const auto& c = cells[static_cast<std::size_t>(r - 1)];
    for (int hole = 1; hole <= 2; ++hole) {
      const bool empty = c[static_cast<std::size_t>(hole * 3 - 1)] == "*";
      ModelCell(2, hole, 1, r) = empty ? "9999" : c[static_cast<std::size_t>(hole * 3 - 1)];
      ModelCell(2, hole, 2, r) = empty ? "9999" : c[static_cast<std::size_t>(hole * 3)];
    }
    TieCell(2, r) = c[7];
  }
  DepthAxis = 2;
  View(0, 500);
  DrawLamina();
  // Before the first tie the band reaches from 0 down to the first tie.
  EXPECT_EQ(Count(1, Box(kCyan, 0, 100)), 1);
  // The untied section top after the gap repaints A's band of 100 to 140,
  // though B carried the composite there, and the piece after it starts at
  // 140 instead of reaching back to 240 by the PSP.
  EXPECT_EQ(Count(1, Box(kCyan, 100, 140)), 1);
  EXPECT_EQ(Count(1, Box(kCyan, 140, 260)), 1);
  EXPECT_EQ(Count(1, Box(kCyan, 240, 260)), 0);
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
  EXPECT_EQ(Crosses(1, 1100.5f, 1150), 2);
  // 2000 missing: grey without a cross; 1999: crossed.
  EXPECT_EQ(Count(1, Box(kGrey, 1250, 3250)), 1);
  EXPECT_EQ(Crosses(1, 1250, 3250), 0);
  EXPECT_EQ(Count(1, Box(kGrey, 3350, 5349)), 1);
  EXPECT_EQ(Crosses(1, 3350, 5349), 2);
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
  EXPECT_EQ(Count(1, Mark(kBlue, 190)), 1);
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

TEST_F(CoreColumns, layersLieInTheirOrderRepaintsDoNotPileUpAndSizeOneLeavesNoText) {
  Import(TwoSectionsOfA());
  LoadEventsAndAges();
  View(0, 500);
  DrawLamina();
  // Splice band, gap, tephra, gap cross, control point, section mark.
  const Match point = [](const DrawOp& op) {
    return op.kind == DrawKind::Circle && op.colour == RGB(100, 100, 255) && Near(op.uy1, 240);
  };
  std::vector<long> order;
  for (const Match& match : {Box(kCyan, 150, 200), Box(kGrey, 200, 260), Box(kTephraBlue, 220, 230),
                             LineAt(kDarkGrey, 0, 200, 7.6f, 260), point, Mark(kBlue, 260)}) {
    order.push_back(IndexOf(1, match));
  }
  EXPECT_GE(order.front(), 0);
  EXPECT_TRUE(std::adjacent_find(order.begin(), order.end(), std::greater_equal<long>()) ==
              order.end())
      << testing::PrintToString(order);
  // The control point of no bore hole stands on the composite column alone.
  EXPECT_EQ(Count(0, [](const DrawOp& op) { return op.kind == DrawKind::Circle; }), 2);
  EXPECT_EQ(Count(1, [](const DrawOp& op) { return op.kind == DrawKind::Circle; }), 1);

  // Everything is committed, and the next repaint replaces it.
  const std::size_t size = Ops(1).size();
  EXPECT_TRUE(frmMain->BoreHole(1).WorkingOps().empty());
  DrawLamina();
  EXPECT_EQ(Ops(1).size(), size);
  EXPECT_EQ(SavedDepthText, frmMain->Text2.Text.Get());

  // Size one leaves no text but keeps the marks and circles.
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

class EventView : public CoreColumns {
 protected:
  void SetUp() override {
    CoreColumns::SetUp();
    View(0, 500);
  }
  const std::vector<DrawOp>& Drawn(int column) { return frmMain->BoreHole(column).WorkingOps(); }
  static bool IsBand(const DrawOp& op, long colour, float upper, float lower) {
    return Box(colour, upper, lower)(op) && Near(op.ux1, 0) && Near(op.ux2, 7.6f);
  }
  static bool IsCross(const DrawOp& op, float y1, float y2) {
    return LineAt(kDarkGrey, 0, y1, 7.6f, y2)(op);
  }
};

TEST(TephraNameTest, nameBesideTheWordAtEitherEnd) {
  const std::pair<const char*, const char*> names[] = {
      {"Tephra X", "X"}, {"X Tephra", "X"}, {"Tephra", ""}, {"Tephra ", ""},
      {" tephra Mount 7", "Mount 7"}, {"Mount 7 tephra ", "Mount 7"}, {"Laacher Tephra layer", ""}};
  for (auto [description, name] : names) EXPECT_EQ(GetTephraName(description), name) << description;
  EXPECT_TRUE(IsTephra("Tephra in void"));
  EXPECT_TRUE(IsVoid("Tephra in void"));
  EXPECT_FALSE(IsTephra("Tephr"));
  EXPECT_TRUE(IsVoid("void"));
  EXPECT_FALSE(IsVoid("Voi"));
  EXPECT_FALSE(IsVoid("VOID"));
}

TEST_F(EventView, tephrasLieOverLayersAndVoidsOverBoth) {
  // The slump spans the whole view; the last tephra lies just below it.
  LoadLayers({{"D", "Slump", "-10", "600"},
              {"A", "Sand", "100", "120"},
              {"B", "Tephra T1", "110", "115"},
              {"A", "Void", "200", "260"},
              {"C", "Tephra in void", "300", "310"},
              {"B", "Tephra Below", "505", "510"}});
  DrawEvents();
  const auto& composite = Drawn(0);
  ASSERT_EQ(composite.size(), 9u);
  EXPECT_TRUE(IsBand(composite[0], kYellow, -10, 600));
  EXPECT_TRUE(IsBand(composite[1], kYellow, 100, 120));
  EXPECT_TRUE(IsBand(composite[2], kTephraBlue, 110, 115));
  const double k = (500.0 / 60) * (7.0 / 6);
  EXPECT_EQ(composite[3].text, "T1");
  EXPECT_TRUE(Near(composite[3].ux1, 0.2f) && Near(composite[3].uy1, static_cast<float>(110 - k)));
  EXPECT_TRUE(IsBand(composite[4], kTephraBlue, 300, 310));
  EXPECT_EQ(composite[5].text, "in void");
  EXPECT_TRUE(IsBand(composite[6], kGrey, 200, 260));
  EXPECT_TRUE(IsCross(composite[7], 200, 260));
  EXPECT_TRUE(IsCross(composite[8], 260, 200));
  // Each layer also stands on its own bore hole's column.
  ASSERT_EQ(Drawn(1).size(), 4u);
  EXPECT_TRUE(IsBand(Drawn(1)[0], kYellow, 100, 120));
  EXPECT_TRUE(IsBand(Drawn(1)[1], kGrey, 200, 260));
  ASSERT_EQ(Drawn(2).size(), 1u);
  EXPECT_TRUE(IsBand(Drawn(2)[0], kTephraBlue, 110, 115));
  ASSERT_EQ(Drawn(3).size(), 1u);
  ASSERT_EQ(Drawn(4).size(), 1u);

  // No names at size 1; on the event free scale a layer has no thickness.
  for (int i = 0; i <= 4; ++i) frmMain->BoreHole(i).Cls();
  frmMain->mnuSize(1).Checked = true;
  DepthAxis = 2;
  DrawEvents();
  EXPECT_EQ(EventColumnTop, 8);
  EXPECT_EQ(EventColumnBottom, 8);
  for (const DrawOp& op : Drawn(0)) {
    EXPECT_NE(op.kind, DrawKind::Text);
    EXPECT_TRUE(Near(op.uy1, op.uy2) || op.kind == DrawKind::Line);
  }
  ASSERT_FALSE(Drawn(1).empty());
  EXPECT_TRUE(IsBand(Drawn(1)[0], kYellow, 100, 100));
}

// A layer of a bore hole that the set does not know has the depth 9999: a
// view brought down there leaves it out and draws the others.
TEST_F(EventView, aLayerOfAnUnknownBoreHoleIsLeftOut) {
  LoadLayers({{"Q", "Tephra Q", "9990", "10010"}, {"A", "Sand", "9995", "9998"}});
  View(9900, 500);
  DrawEvents();
  ASSERT_EQ(Drawn(0).size(), 1u);
  EXPECT_TRUE(IsBand(Drawn(0)[0], kYellow, 9995, 9998));
  EXPECT_EQ(Drawn(1).size(), 1u);
}

class ScaleStrip : public CoreColumns {
 protected:
  // The form loads first: its defaults must not undo what a test sets.
  void SetUp() override {
    CoreColumns::SetUp();
    frmMain.GetForm();
  }
  bool HasTick(float fromX, float y) { return Count(5, LineAt(kBlack, fromX, y, 9, y)) > 0; }
  bool HasNumber(const std::string& text, float x, float y) {
    return Count(5, [&](const DrawOp& op) {
             return op.kind == DrawKind::Text && op.text == text && Near(op.ux1, x) &&
                    Near(op.uy1, y);
           }) > 0;
  }
  struct Tick {
    float fromX, y;
  };
  struct Number {
    const char* text;
    float x, y;
  };
  void ExpectStrip(std::initializer_list<Tick> ticks, std::initializer_list<Number> numbers) {
    for (const Tick& t : ticks) EXPECT_TRUE(HasTick(t.fromX, t.y)) << t.fromX << ", " << t.y;
    for (const Number& n : numbers) EXPECT_TRUE(HasNumber(n.text, n.x, n.y)) << n.text;
  }
  long TicksFrom(float fromX) {
    return Count(5, [&](const DrawOp& op) {
      return op.kind == DrawKind::Line && Near(op.ux1, fromX) && op.uy1 == op.uy2;
    });
  }

  // Control points of (composite depth = EFD, age), no event layer.
  void LoadAgeModel(const std::vector<std::pair<std::string, std::string>>& points) {
    LoadLayers({});
    EventListLoaded = true;
    const long count = static_cast<long>(points.size());
    AgeModel.Dim({{0, 11}, {0, count}});
    AgeModelCount = count;
    AgeModelLoaded = true;
    for (long r = 1; r <= count; ++r) {
      const auto& [depth, age] = points[static_cast<std::size_t>(r - 1)];
      AgeModel(0, r) = "C1";
      AgeModel(5, r) = depth;
      AgeModel(11, r) = depth;
      AgeModel(7, r) = age;
      AgeModel(6, r) = std::to_string(r);
      AgeModel(8, r) = std::to_string(2 * r);
      AgeModel(9, r) = "yr";
    }
  }
  // Age is ten times the depth.
  void LoadLinearAgeModel() { LoadAgeModel({{"0", "0"}, {"20000", "200000"}}); }
  // Cuts layers of 30 cm out of the scale at EFD 50 and 140.
  void CutTwoLayers() {
    EventCount = 3;
    EventTop.Dim({{0, 3}, {0, 3}});
    EventBottom.Dim({{0, 3}, {0, 3}});
    const float tops[] = {0, 50, 170, 400};
    for (long r = 0; r <= 3; ++r) {
      EventTop(1, r) = tops[r];
      EventBottom(1, r) = r == 0 || r == 3 ? tops[r] : tops[r] + 30;
    }
  }
};

TEST_F(ScaleStrip, depthScaleTicksAndNumbersStandLevelWithTheColumnsBySpan) {
  View(0, 500);
  frmMain->mnuDepth.Click();
  PictureBox& strip = frmMain->BoreHole(5);
  // Round(503.5 as a Double, which lies just below it) + 0.14, centred on the columns.
  EXPECT_NEAR(strip.ScaleHeight, 503.14f, 1e-4);
  EXPECT_NEAR(strip.ScaleTop, -1.57f, 1e-4);
  EXPECT_TRUE(frmMain->mnuDepth.Checked);
  EXPECT_FALSE(frmMain->mnuAge.Checked);
  EXPECT_TRUE(strip.WorkingOps().empty());
  ExpectStrip({{7, 0}, {7, 100}, {8, 50}, {8, 450}, {8.5f, 10}, {8.5f, 490}},
              {{" 0 ", 4.8f, -5}, {" 100 ", 2.8f, 95}, {" 50 ", 3.8f, 45}});
  // What lies outside the strip is clipped away.
  EXPECT_FALSE(HasTick(7, 1000));
  EXPECT_EQ(platform.MousePointer(), 0);

  // A span of 2000 has no ticks of 50.
  View(0, 2000);
  frmMain->mnuDepth.Click();
  EXPECT_EQ(TicksFrom(8), 0);
  EXPECT_FALSE(HasNumber(" 150 ", 2.8f, 130));
  ExpectStrip({{7, 1000}, {8.5f, 1990}}, {{" 1000 ", 1.8f, 980}});

  View(0, 1000);
  frmMain->mnuDepth.Click();
  EXPECT_TRUE(HasNumber(" 150 ", 2.8f, 140));
}

TEST_F(ScaleStrip, varveBandFixedHorizonAndCopyOnWhite) {
  View(0, 500);
  VarveCountsLoaded = true;
  VarveTopCD = 120;
  VarveBottomCD = 330;
  frmMain->mnuHorizontalBH.Checked = true;
  frmMain->mnuDepth.Click();
  PictureBox& strip = frmMain->BoreHole(5);
  const float middle = strip.ScaleTop + strip.ScaleHeight / 2;
  EXPECT_EQ(Count(5,
                  [](const DrawOp& op) {
                    return Box(RGB(255, 150, 150), 120, 330)(op) && Near(op.ux1, 8.2f) &&
                           Near(op.ux2, 9);
                  }),
            1);
  EXPECT_EQ(Count(5, LineAt(kGreen, 7.5f, middle, 9.5f, middle)), 1);
  EXPECT_TRUE(std::any_of(Ops(5).begin(), Ops(5).end(), [&](const DrawOp& op) {
    return op.kind == DrawKind::Circle && op.filled && op.fillColour == kGreen &&
           Near(op.ux1, 7.25f);
  }));

  const long own = strip.BackColor;
  ASSERT_NE(own, kWhite);
  frmMain->mnuCopyDepth.Click();
  ASSERT_TRUE(platform.clipboard.has_value());
  ASSERT_FALSE(platform.clipboard->ops.empty());
  EXPECT_EQ(platform.clipboard->ops.front().kind, DrawKind::Box);
  EXPECT_EQ(platform.clipboard->ops.front().colour, kWhite);
  EXPECT_EQ(strip.BackColor.Get(), own);

  // The columns' copies take the committed picture, not the pointer's line.
  frmMain->BoreHole(2).Line(0, 10, 7.6f, 10, RGB(255, 150, 0));
  CopyHole = 2;
  frmMain->mnuCopyCore.Click();
  EXPECT_EQ(platform.clipboard->ops.size(), frmMain->BoreHole(2).BaseOps().size());
  EXPECT_FALSE(frmMain->BoreHole(2).WorkingOps().empty());
  frmMain->mnuCompCopy.Click();
  EXPECT_EQ(platform.clipboard->ops.size(), frmMain->BoreHole(0).BaseOps().size());
}

TEST_F(ScaleStrip, ageScaleLabelsEachThousandYearsAndSkipsWhereItIsTold) {
  LoadLinearAgeModel();
  View(0, 500);
  frmMain->mnuAge.Click();
  EXPECT_TRUE(frmMain->mnuAge.Checked);
  EXPECT_FALSE(frmMain->mnuDepth.Checked);
  ExpectStrip({{8, 0}, {8, 100}, {8.1f, 50}, {8.55f, 10}},
              {{" 0 ", 6.2f, -5}, {" 1000 ", 2.8f, 95}, {" 5000 ", 2.8f, 495}});
  EXPECT_EQ(platform.MousePointer(), 0);

  // With both ends past 9900 and 99100 years the loop of ten thousands is
  // skipped, and its 99000 goes without a number; from 100000 on the numbers
  // are thousands.
  View(9850, 500);
  frmMain->mnuAge.Click();
  EXPECT_EQ(Count(5, [](const DrawOp& op) { return op.text == " 99000 "; }), 0);
  ExpectStrip({{8.55f, 9900}, {8, 10000}}, {{" 100 ", 3.8f, 9995}, {" 103 ", 3.8f, 10295}});

  // Size one leaves the fine depth ticks and only the age axis.
  View(0, 500);
  frmMain->mnuSize(1).Click();
  frmMain->mnuDepth.Click();
  EXPECT_EQ(Count(5, OfKind(DrawKind::Text)), 0);
  EXPECT_EQ(TicksFrom(7), 0);
  EXPECT_EQ(TicksFrom(8.5f), 50);

  frmMain->mnuAge.Click();
  ASSERT_EQ(Ops(5).size(), 2u);
  EXPECT_EQ(Ops(5)[0].kind, DrawKind::Box);
  EXPECT_EQ(Ops(5)[1].kind, DrawKind::Line);
  EXPECT_TRUE(Near(Ops(5)[1].ux1, 9) && Near(Ops(5)[1].uy1, 0) && Near(Ops(5)[1].ux2, 9));
}

// A steep model makes loops of tens of thousands of ticks, of which only
// those that can show are computed: the strip must show the same pixels at
// any pixel ratio and the same other operations, and the loop must leave the
// same counter, errors and caption, on several stretches and layers, also
// with the core top in view and with everything below the model.
TEST_F(ScaleStrip, longAgeLoopsShowWhatTheFullLoopShows) {
  LoadAgeModel({{"0", "0"}, {"35", "400000"}, {"90", "1000000"}, {"260", "2600000"}});
  CutTwoLayers();
  DriveIndex = 4;
  struct Drawing {
    std::vector<DrawOp> ops;
    long counter;
    float plus, minus;
    std::string caption;
  };
  const auto draw = [&](bool onlyWhatShows) {
    DrawOnlyWhatShows = onlyWhatShows;
    frmMain->Label9.Caption = "";
    frmMain->mnuAge.Click();
    return Drawing{Ops(5), I, AgeErrorPlus, AgeErrorMinus, frmMain->Label9.Caption};
  };
  const auto isTick = [](const DrawOp& op) {
    return op.kind == DrawKind::Line && op.uy1 == op.uy2 && (op.ux1 == 8.1f || op.ux1 == 8.55f);
  };
  const auto rows = [&](const std::vector<DrawOp>& ops, float fromX, int ratio) {
    std::vector<long> covered;
    for (const DrawOp& op : ops) {
      if (isTick(op) && op.ux1 == fromX)
        covered.push_back(std::lround(std::floor(op.y1 * ratio / 15)));
    }
    std::sort(covered.begin(), covered.end());
    covered.erase(std::unique(covered.begin(), covered.end()), covered.end());
    return covered;
  };
  for (const auto& [top, span] : {std::pair{0.0f, 500}, {-40.0f, 300}, {600.0f, 200}}) {
    View(top, span);
    const Drawing full = draw(false);
    const Drawing fast = draw(true);
    const long fullTicks = std::count_if(full.ops.begin(), full.ops.end(), isTick);
    EXPECT_GT(fullTicks, 10000) << top;
    if (top == 0) {
      EXPECT_LT(std::count_if(fast.ops.begin(), fast.ops.end(), isTick), fullTicks / 2);
    }
    // Everything else, in its order.
    const auto others = [&](const std::vector<DrawOp>& ops) {
      std::vector<std::pair<float, std::string>> kept;
      for (const DrawOp& op : ops) {
        if (isTick(op)) continue;
        kept.emplace_back(op.y1, std::to_string(static_cast<int>(op.kind)) + op.text);
      }
      return kept;
    };
    EXPECT_EQ(others(fast.ops), others(full.ops)) << top;
    for (const float fromX : {8.1f, 8.55f}) {
      for (const int ratio : {1, 2, 3}) {
        EXPECT_EQ(rows(fast.ops, fromX, ratio), rows(full.ops, fromX, ratio))
            << top << " " << ratio;
      }
    }
    EXPECT_EQ(fast.counter, full.counter);
    EXPECT_EQ(fast.plus, full.plus);
    EXPECT_EQ(fast.minus, full.minus);
    EXPECT_EQ(fast.caption, "(interpolated by EFD)");
    EXPECT_EQ(fast.caption, full.caption);
  }
}

}  // namespace
}  // namespace ostraline
