#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "display/display_state.h"
#include "display/scale_strip.h"
#include "events/event_state.h"
#include "forms/frm_main.h"
#include "support/fresh_program.h"

namespace ostraline {
namespace {

bool Near(float a, float b) {
  return std::fabs(a - b) < 1e-3f;
}

class ScaleStrip : public FreshProgram {
 protected:
  // The form loads first: its defaults must not undo what a test sets.
  void SetUp() override {
    FreshProgram::SetUp();
    frmMain.GetForm();
  }
  // The composite column shows this window; the strip follows it.
  void View(float top, int span) {
    ViewSpan = span;
    frmMain->BoreHole(0).ScaleTop = top;
    frmMain->BoreHole(0).ScaleHeight = static_cast<float>(span);
  }
  const std::vector<DrawOp>& Ops() { return frmMain->BoreHole(5).BaseOps(); }
  bool HasTick(float fromX, float y) {
    return std::any_of(Ops().begin(), Ops().end(), [&](const DrawOp& op) {
      return op.kind == DrawKind::Line && op.colour == kBlack && Near(op.ux1, fromX) &&
             Near(op.uy1, y) && Near(op.ux2, 9) && Near(op.uy2, y);
    });
  }
  bool HasNumber(const std::string& text, float x, float y) {
    return std::any_of(Ops().begin(), Ops().end(), [&](const DrawOp& op) {
      return op.kind == DrawKind::Text && op.text == text && Near(op.ux1, x) && Near(op.uy1, y);
    });
  }
  long CountOf(DrawKind kind) {
    return std::count_if(Ops().begin(), Ops().end(),
                         [&](const DrawOp& op) { return op.kind == kind; });
  }
  long TicksFrom(float fromX) {
    return std::count_if(Ops().begin(), Ops().end(), [&](const DrawOp& op) {
      return op.kind == DrawKind::Line && Near(op.ux1, fromX) && op.uy1 == op.uy2;
    });
  }

  // Age is ten times the depth, and no event layer: EFD equals composite depth.
  void LoadLinearAgeModel() {
    EventListLoaded = true;
    EventCount = 0;
    MergedEventCount = 0;
    AgeModel.Dim({{0, 11}, {0, 2}});
    AgeModelCount = 2;
    AgeModelLoaded = true;
    const char* depth[] = {"0", "20000"};
    const char* age[] = {"0", "200000"};
    for (int r = 1; r <= 2; ++r) {
      AgeModel(0, r) = "C1";
      AgeModel(5, r) = depth[r - 1];
      AgeModel(11, r) = depth[r - 1];
      AgeModel(7, r) = age[r - 1];
      AgeModel(6, r) = "0";
      AgeModel(8, r) = "0";
      AgeModel(9, r) = "yr";
    }
  }
};

TEST_F(ScaleStrip, depthScaleTicksAndNumbersStandLevelWithTheColumns) {
  View(0, 500);
  frmMain->mnuDepth.Click();
  PictureBox& strip = frmMain->BoreHole(5);
  // Round(503.5 as a Double, which lies just below it) + 0.14, centred on the columns.
  EXPECT_NEAR(strip.ScaleHeight, 503.14f, 1e-4);
  EXPECT_NEAR(strip.ScaleTop, -1.57f, 1e-4);
  EXPECT_TRUE(frmMain->mnuDepth.Checked);
  EXPECT_FALSE(frmMain->mnuAge.Checked);
  EXPECT_TRUE(strip.WorkingOps().empty());
  EXPECT_TRUE(HasTick(7, 0));
  EXPECT_TRUE(HasNumber(" 0 ", 4.8f, -5));
  EXPECT_TRUE(HasTick(7, 100));
  EXPECT_TRUE(HasNumber(" 100 ", 2.8f, 95));
  EXPECT_TRUE(HasTick(8, 50));
  EXPECT_TRUE(HasNumber(" 50 ", 3.8f, 45));
  EXPECT_TRUE(HasTick(8, 450));
  EXPECT_TRUE(HasTick(8.5f, 10));
  EXPECT_TRUE(HasTick(8.5f, 490));
  // What lies outside the strip is clipped away.
  EXPECT_FALSE(HasTick(7, 1000));
  EXPECT_EQ(platform.MousePointer(), 0);
}

TEST_F(ScaleStrip, spanOf2000HasNoTicksOf50) {
  View(0, 2000);
  frmMain->mnuDepth.Click();
  EXPECT_EQ(TicksFrom(8), 0);
  EXPECT_FALSE(HasNumber(" 150 ", 2.8f, 130));
  EXPECT_TRUE(HasTick(7, 1000));
  EXPECT_TRUE(HasNumber(" 1000 ", 1.8f, 980));
  EXPECT_TRUE(HasTick(8.5f, 1990));

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
  const long green = RGB(0, 170, 0);
  const float middle = strip.ScaleTop + strip.ScaleHeight / 2;
  EXPECT_TRUE(std::any_of(Ops().begin(), Ops().end(), [](const DrawOp& op) {
    return op.kind == DrawKind::Box && op.colour == RGB(255, 150, 150) && Near(op.ux1, 8.2f) &&
           Near(op.uy1, 120) && Near(op.ux2, 9) && Near(op.uy2, 330);
  }));
  EXPECT_TRUE(std::any_of(Ops().begin(), Ops().end(), [&](const DrawOp& op) {
    return op.kind == DrawKind::Line && op.colour == green && Near(op.ux1, 7.5f) &&
           Near(op.ux2, 9.5f) && Near(op.uy1, middle);
  }));
  EXPECT_TRUE(std::any_of(Ops().begin(), Ops().end(), [&](const DrawOp& op) {
    return op.kind == DrawKind::Circle && op.filled && op.fillColour == green &&
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
}

TEST_F(ScaleStrip, ageScaleLabelsEachThousandYearsAndSkipsWhereItIsTold) {
  LoadLinearAgeModel();
  View(0, 500);
  frmMain->mnuAge.Click();
  EXPECT_TRUE(frmMain->mnuAge.Checked);
  EXPECT_FALSE(frmMain->mnuDepth.Checked);
  EXPECT_TRUE(HasTick(8, 0));
  EXPECT_TRUE(HasNumber(" 0 ", 6.2f, -5));
  EXPECT_TRUE(HasTick(8, 100));
  EXPECT_TRUE(HasNumber(" 1000 ", 2.8f, 95));
  EXPECT_TRUE(HasNumber(" 5000 ", 2.8f, 495));
  EXPECT_TRUE(HasTick(8.1f, 50));
  EXPECT_TRUE(HasTick(8.55f, 10));
  EXPECT_EQ(platform.MousePointer(), 0);

  // With both ends past 9900 and 99100 years the loop of ten thousands is
  // skipped, and its 99000 goes without a number; from 100000 on the numbers
  // are thousands.
  View(9850, 500);
  frmMain->mnuAge.Click();
  EXPECT_TRUE(HasTick(8.55f, 9900));
  EXPECT_EQ(std::count_if(Ops().begin(), Ops().end(),
                          [](const DrawOp& op) { return op.text == " 99000 "; }),
            0);
  EXPECT_TRUE(HasTick(8, 10000));
  EXPECT_TRUE(HasNumber(" 100 ", 3.8f, 9995));
  EXPECT_TRUE(HasNumber(" 103 ", 3.8f, 10295));
}

TEST_F(ScaleStrip, sizeOneLeavesFineDepthTicksAndOnlyTheAgeAxis) {
  LoadLinearAgeModel();
  View(0, 500);
  frmMain->mnuSize(1).Click();
  frmMain->mnuDepth.Click();
  EXPECT_EQ(CountOf(DrawKind::Text), 0);
  EXPECT_EQ(TicksFrom(7), 0);
  EXPECT_EQ(TicksFrom(8.5f), 50);

  frmMain->mnuAge.Click();
  ASSERT_EQ(Ops().size(), 2u);
  EXPECT_EQ(Ops()[0].kind, DrawKind::Box);
  EXPECT_EQ(Ops()[1].kind, DrawKind::Line);
  EXPECT_TRUE(Near(Ops()[1].ux1, 9) && Near(Ops()[1].uy1, 0) && Near(Ops()[1].ux2, 9));
}

}  // namespace
}  // namespace ostraline
