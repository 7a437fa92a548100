#include <cmath>
#include <string>
#include <vector>

#include "core/project_state.h"
#include "display/display_state.h"
#include "display/event_view.h"
#include "events/event_state.h"
#include "forms/frm_main.h"
#include "support/fresh_program.h"

namespace ostraline {
namespace {

constexpr long kYellow = RGB(225, 225, 125);
constexpr long kTephraBlue = RGB(150, 150, 255);
constexpr long kGrey = RGB(170, 170, 170);
constexpr long kDarkGrey = RGB(100, 100, 100);

bool Near(float a, float b) {
  return std::fabs(a - b) < 1e-3f;
}

struct Layer {
  const char* hole;
  const char* description;
  const char* top;
  const char* bottom;
};

class EventView : public FreshProgram {
 protected:
  void SetUp() override {
    FreshProgram::SetUp();
    ViewSpan = 500;
    for (int i = 0; i <= 4; ++i) frmMain->BoreHole(i).ScaleTop = 0;
  }
  // The list as the import leaves it: composite top and bottom in columns 6
  // and 7, the EFD of the top in column 8.
  void Load(const std::vector<Layer>& layers) {
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
  const std::vector<DrawOp>& Ops(int column) { return frmMain->BoreHole(column).WorkingOps(); }
  static bool IsBand(const DrawOp& op, long colour, float upper, float lower) {
    return op.kind == DrawKind::Box && op.colour == colour && Near(op.ux1, 0) &&
           Near(op.ux2, 7.6f) && Near(op.uy1, upper) && Near(op.uy2, lower);
  }
  static bool IsLine(const DrawOp& op, float y1, float y2) {
    return op.kind == DrawKind::Line && op.colour == kDarkGrey && Near(op.uy1, y1) &&
           Near(op.uy2, y2);
  }
};

TEST(TephraNameTest, nameBesideTheWordAtEitherEnd) {
  EXPECT_EQ(GetTephraName("Tephra X"), "X");
  EXPECT_EQ(GetTephraName("X Tephra"), "X");
  EXPECT_EQ(GetTephraName("Tephra"), "");
  EXPECT_EQ(GetTephraName("Tephra "), "");
  EXPECT_EQ(GetTephraName(" tephra Mount 7"), "Mount 7");
  EXPECT_EQ(GetTephraName("Mount 7 tephra "), "Mount 7");
  EXPECT_EQ(GetTephraName("Laacher Tephra layer"), "");
  EXPECT_TRUE(IsTephra("Tephra in void"));
  EXPECT_TRUE(IsVoid("Tephra in void"));
  EXPECT_FALSE(IsTephra("Tephr"));
  EXPECT_TRUE(IsVoid("void"));
  EXPECT_FALSE(IsVoid("Voi"));
  EXPECT_FALSE(IsVoid("VOID"));
}

TEST_F(EventView, tephrasLieOverLayersAndVoidsOverBoth) {
  // The slump spans the whole view; the last tephra lies just below it.
  Load({{"D", "Slump", "-10", "600"},
        {"A", "Sand", "100", "120"},
        {"B", "Tephra T1", "110", "115"},
        {"A", "Void", "200", "260"},
        {"C", "Tephra in void", "300", "310"},
        {"B", "Tephra Below", "505", "510"}});
  DrawEvents();
  const auto& composite = Ops(0);
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
  EXPECT_TRUE(IsLine(composite[7], 200, 260));
  EXPECT_TRUE(IsLine(composite[8], 260, 200));
  // Each layer also stands on its own bore hole's column.
  ASSERT_EQ(Ops(1).size(), 4u);
  EXPECT_TRUE(IsBand(Ops(1)[0], kYellow, 100, 120));
  EXPECT_TRUE(IsBand(Ops(1)[1], kGrey, 200, 260));
  ASSERT_EQ(Ops(2).size(), 1u);
  EXPECT_TRUE(IsBand(Ops(2)[0], kTephraBlue, 110, 115));
  ASSERT_EQ(Ops(3).size(), 1u);
  ASSERT_EQ(Ops(4).size(), 1u);

  // No names at size 1; on the event free scale a layer has no thickness.
  for (int i = 0; i <= 4; ++i) frmMain->BoreHole(i).Cls();
  frmMain->mnuSize(1).Checked = true;
  DepthAxis = 2;
  DrawEvents();
  EXPECT_EQ(EventColumnTop, 8);
  EXPECT_EQ(EventColumnBottom, 8);
  for (const DrawOp& op : Ops(0)) {
    EXPECT_NE(op.kind, DrawKind::Text);
    EXPECT_TRUE(Near(op.uy1, op.uy2) || op.kind == DrawKind::Line);
  }
  ASSERT_FALSE(Ops(1).empty());
  EXPECT_TRUE(IsBand(Ops(1)[0], kYellow, 100, 100));
}

}  // namespace
}  // namespace ostraline
