#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "forms/canvas.h"
#include "forms/controls.h"
#include "forms/form.h"
#include "forms/frm_test.h"
#include "support/fresh_program.h"

namespace ostraline {
namespace {

struct Probe {
  Form form{"frmToolkitProbe", "Probe"};
  Frame frame{form, "Frame1"};
  TextBox text1{form, "Text1"};
  TextBox text2{form, "Text2"};
  ComboBox combo{form, "Combo1"};
  OptionButton option0{form, "Option1", 0};
  OptionButton option1{form, "Option1", 1};
  OptionButton framed{form, "Option2"};
};

class ToolkitTest : public FreshProgram {};

TEST_F(ToolkitTest, writesRunChangeOnlyWhenTheValueDiffersAndPicksRunClick) {
  Probe p;
  std::vector<std::string> seen;
  p.text1.Change = [&] { seen.push_back(p.text1.Text); };
  p.text1.Text = "240";
  p.text1.Text = "240";
  p.text1.Text = "";
  EXPECT_EQ(seen, (std::vector<std::string>{"240", ""}));

  // A handler that writes back the same text ends there instead of recursing.
  int depth = 0;
  p.text2.Change = [&] {
    ++depth;
    p.text2.Text = "5";
  };
  p.text2.Text = "5";
  EXPECT_EQ(depth, 1);

  // A combo's pick runs Click but not Change.
  int changes = 0;
  int clicks = 0;
  p.combo.Change = [&] { ++changes; };
  p.combo.Click = [&] { ++clicks; };
  p.combo.AddItem("A");
  p.combo.AddItem("B");
  p.combo.UserPick(1);
  EXPECT_EQ(p.combo.Text.Get(), "B");
  EXPECT_EQ(changes, 0);
  EXPECT_EQ(clicks, 1);
  p.combo.Text = "A";
  EXPECT_EQ(changes, 1);
}

TEST_F(ToolkitTest, optionButtonClearsItsGroupAndRunsClick) {
  Probe p;
  p.framed.SetContainer(&p.frame);
  p.framed.Value = true;
  std::vector<std::string> clicks;
  p.option0.Click = [&] { clicks.push_back("0, other set: " + std::to_string(p.option1.Value)); };
  p.option1.Click = [&] { clicks.push_back("1, other set: " + std::to_string(p.option0.Value)); };

  p.option1.Value = true;
  p.option0.Value = true;
  p.option0.Value = true;  // already set: nothing runs
  EXPECT_EQ(clicks, (std::vector<std::string>{"1, other set: 0", "0, other set: 0"}));
  EXPECT_FALSE(p.option1.Value);
  // A button in another container belongs to another group.
  EXPECT_TRUE(p.framed.Value);
}

TEST_F(ToolkitTest, setFocusRunsLostFocusThenGotFocusInsideTheCall) {
  Probe p;
  std::vector<std::string> events;
  p.text1.LostFocus = [&] { events.push_back("Text1 lost"); };
  p.text2.GotFocus = [&] { events.push_back("Text2 got"); };
  p.text1.SetFocus();
  events.push_back("before");
  p.text2.SetFocus();
  events.push_back("after");
  EXPECT_EQ(events, (std::vector<std::string>{"before", "Text1 lost", "Text2 got", "after"}));
  EXPECT_TRUE(p.text2.HasFocus());

  p.text1.Enabled = false;
  EXPECT_THROW(p.text1.SetFocus(), RuntimeFailure);
  EXPECT_TRUE(p.text2.HasFocus());
}

TEST_F(ToolkitTest, formLoadsAtFirstUseAndAnewAfterUnload) {
  EXPECT_FALSE(frmTest.IsLoaded());
  frmTest->Text1.Text = "traced";
  EXPECT_TRUE(frmTest.IsLoaded());
  EXPECT_EQ(frmTest->Text1.Text.Get(), "traced");
  frmTest.Unload();
  EXPECT_FALSE(frmTest.IsLoaded());
  // The next use starts again from the design.
  EXPECT_EQ(frmTest->Text1.Text.Get(), "");
  EXPECT_EQ(frmTest->Caption.Get(), "Debugging tool (staff only)");
}

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

TEST(CanvasTest, clsDropsTheWorkingLayerShowsBackColorAndReturnsToTheOrigin) {
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

  // A committed picture survives Cls.
  c.box.LineBF(0, 1100, 7.6f, 1240, RGB(170, 170, 170));
  c.box.CommitImage();
  c.box.Line(0, 1250, 7.6f, 1250, RGB(255, 150, 0));
  c.box.Cls();
  ASSERT_EQ(c.box.BaseOps().size(), 1u);
  EXPECT_TRUE(c.box.WorkingOps().empty());
  ASSERT_EQ(c.box.Image().ops.size(), 1u);
  EXPECT_EQ(c.box.Image().ops[0].colour, RGB(170, 170, 170));
}

TEST(CanvasTest, changeOfScaleLeavesWhatWasDrawnInPlaceAndNoDrawingFails) {
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

  // Equal end points leave one dot.
  c.box.Cls();
  c.box.Line(3, 2250, 3, 2250, kBlack);
  ASSERT_EQ(ops.size(), 1u);
  EXPECT_EQ(ops[0].x1, ops[0].x2);
  EXPECT_EQ(ops[0].y1, ops[0].y2);
  // Out of the scale and out of range: nothing drawn, nothing failed.
  c.box.CurrentY = 3020;
  EXPECT_NO_THROW(c.box.Print("below the scale"));
  c.box.CurrentX = -50;
  c.box.CurrentY = 1950;
  EXPECT_NO_THROW(c.box.Print(12.5f));
  EXPECT_NO_THROW(c.box.Circle(1e30f, -1e30f, 0.25f, kBlack));
  EXPECT_NO_THROW(c.box.Line(0, NAN, 7.6f, NAN, kBlack));
  EXPECT_EQ(ops.size(), 1u);
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
