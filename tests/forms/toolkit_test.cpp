#include <gtest/gtest.h>

#include <string>
#include <vector>

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

TEST_F(ToolkitTest, textWriteRunsChangeOnlyWhenTheValueDiffers) {
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
}

TEST_F(ToolkitTest, comboPickRunsClickButNotChange) {
  Probe p;
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

}  // namespace
}  // namespace ostraline
