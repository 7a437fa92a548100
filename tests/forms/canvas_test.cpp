#include <gtest/gtest.h>

#include <cmath>

#include "forms/canvas.h"
#include "forms/form.h"

namespace ostraline {
namespace {

// A bore hole column as the main form has it: 975 x 8775 twips with a border,
// so 915 x 8715 inside, and the column's scale of 7.6 by 500.
struct Column {
  Form form{"frmCanvasProbe", "Probe"};
  PictureBox box{form, "BoreHole", 1};
  Column() {
    box.Place(3120, 240, 975, 8775);
    box.ScaleHeight = 500;
    box.ScaleWidth = 7.6f;
  }
};

TEST(CanvasTest, clsWithoutPictureShowsBackColorAndReturnsToTheOrigin) {
  Column c;
  c.box.ScaleTop = 1000;
  c.box.BackColor = RGB(220, 255, 255);
  c.box.Line(0, 1100, 7.6f, 1200, kBlack);
  c.box.Print("x");
  c.box.Cls();
  const Picture shown = c.box.Image();
  EXPECT_TRUE(shown.ops.empty());
  EXPECT_EQ(shown.backColour, RGB(220, 255, 255));
  EXPECT_EQ(c.box.CurrentX, 0);
  EXPECT_EQ(c.box.CurrentY, 1000);
}

TEST(CanvasTest, changeOfScaleLeavesWhatWasDrawnInPlace) {
  Column c;
  c.box.ScaleTop = 1000;
  c.box.Line(0, 1250, 7.6f, 1250, kBlack);
  c.box.ScaleTop = 2000;
  c.box.ScaleHeight = 1000;
  c.box.Line(0, 2250, 7.6f, 2250, kBlack);
  const auto& ops = c.box.WorkingOps();
  ASSERT_EQ(ops.size(), 2u);
  EXPECT_FLOAT_EQ(ops[0].y1, 250.0f * 8715 / 500);
  EXPECT_FLOAT_EQ(ops[0].x2, 915);
  EXPECT_FLOAT_EQ(ops[1].y1, 250.0f * 8715 / 1000);
}

TEST(CanvasTest, committedPictureSurvivesCls) {
  Column c;
  c.box.LineBF(0, 100, 7.6f, 240, RGB(170, 170, 170));
  c.box.CommitImage();
  c.box.Line(0, 250, 7.6f, 250, RGB(255, 150, 0));
  c.box.Cls();
  ASSERT_EQ(c.box.BaseOps().size(), 1u);
  EXPECT_TRUE(c.box.WorkingOps().empty());
  const Picture shown = c.box.Image();
  ASSERT_EQ(shown.ops.size(), 1u);
  EXPECT_EQ(shown.ops[0].kind, DrawKind::Box);
  EXPECT_EQ(shown.ops[0].colour, RGB(170, 170, 170));
}

TEST(CanvasTest, degenerateAndOutOfScaleDrawingNeverFails) {
  Column c;
  // Equal end points leave one dot.
  c.box.Line(3, 250, 3, 250, kBlack);
  ASSERT_EQ(c.box.WorkingOps().size(), 1u);
  const DrawOp& dot = c.box.WorkingOps()[0];
  EXPECT_EQ(dot.x1, dot.x2);
  EXPECT_EQ(dot.y1, dot.y2);

  c.box.CurrentY = 520;
  EXPECT_NO_THROW(c.box.Print("below the scale"));
  c.box.CurrentX = -50;
  c.box.CurrentY = -50;
  EXPECT_NO_THROW(c.box.Print(12.5f));
  EXPECT_NO_THROW(c.box.Circle(1e30f, -1e30f, 0.25f, kBlack));
  EXPECT_NO_THROW(c.box.Line(0, NAN, 7.6f, NAN, kBlack));
  EXPECT_EQ(c.box.WorkingOps().size(), 1u);
}

// The drawing clears a column with a box over its scale from ScaleTop to
// ScaleTop + ScaleHeight; at such a top the float sums fall short of the edge.
TEST(CanvasTest, opaqueBoxOverTheWholeSurfaceDropsWhatIsUnderIt) {
  Column c;
  c.box.ScaleTop = 1010.96f;
  c.box.Line(0, 1100, 7.6f, 1100, kBlack);
  c.box.CommitImage();
  for (int repaint = 0; repaint < 3; ++repaint) {
    c.box.Line(0, 1200, 7.6f, 1200, kBlack);
    const float top = c.box.ScaleTop;
    c.box.LineBF(0, top, 7.6f, top + c.box.ScaleHeight, kWhite);
    c.box.Line(0, 1300, 7.6f, 1300, kBlack);
  }
  EXPECT_TRUE(c.box.WorkingCoversBase());
  EXPECT_EQ(c.box.Image().ops.size(), 2u);
  c.box.Cls();
  EXPECT_EQ(c.box.Image().ops.size(), 1u);
}

TEST(CanvasTest, printedNumberKeepsItsSignPositionAndTrailingBlank) {
  Column c;
  c.box.Print(5);
  c.box.Print(-2.5f);
  c.box.Print(0.5);
  const auto& ops = c.box.WorkingOps();
  ASSERT_EQ(ops.size(), 3u);
  EXPECT_EQ(ops[0].text, " 5 ");
  EXPECT_EQ(ops[1].text, "-2.5 ");
  EXPECT_EQ(ops[2].text, " 0.5 ");
  // Each Print moves down a line and back to the left edge.
  EXPECT_GT(ops[1].y1, ops[0].y1);
  EXPECT_EQ(ops[1].x1, 0);
}

}  // namespace
}  // namespace ostraline
