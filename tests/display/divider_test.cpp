#include <string>

#include "core/project_state.h"
#include "display/display_state.h"
#include "forms/frm_divider.h"
#include "forms/frm_main.h"
#include "support/age_files.h"

namespace ostraline {
namespace {

// Bore hole A's section 01 has the levels L1 at PSP 10 and L2 at PSP 50.
class Divider : public AgeProgram {
 protected:
  void SetUp() override {
    AgeProgram::SetUp();
    ImportModelAndEvents(kNoLayer);
  }
  // Hands the levels over as a right click near the target would, and opens the form.
  FrmDivider& Open(Single above, Single target, Single below) {
    TieAbovePSP = above;
    ClickedPSP = target;
    TieBelowPSP = below;
    TieAboveLabel = "L1";
    TieBelowLabel = "L2";
    frmDivider->Hide();
    frmMain->mnuDivider_Click();
    return *frmDivider;
  }
  static std::string Green(FrmDivider& form) {
    if (form.Line1.BorderColor == RGB(0, 170, 0)) return "Line1";
    if (form.Line2.BorderColor == RGB(0, 170, 0)) return "Line2";
    return form.Line3.BorderColor == RGB(0, 170, 0) ? "Line3" : "none";
  }
};

TEST_F(Divider, RowsInTheOrderOfTheirPositions) {
  FrmDivider& form = Open(10, 30, 50);
  EXPECT_TRUE(DividerOpen);
  EXPECT_EQ(form.Label3.Caption.Get(), "Target depth = 30 cm");
  EXPECT_EQ(form.Label2(0).Caption.Get(), "= 10 cm");
  EXPECT_EQ(form.Combo1(1).Text.Get(), "L2");
  EXPECT_EQ(form.Text1(0).Text.Get(), "10");  // the numberings agree at first
  EXPECT_EQ(form.Label1.Caption.Get(), "30");
  EXPECT_EQ(Green(form), "Line2");
  EXPECT_EQ(form.Label2(0).Top.Get(), 880);
  EXPECT_EQ(form.Label3.Top.Get(), 1960);
  EXPECT_EQ(form.Text1(1).Top.Get(), 3000);
  EXPECT_EQ(form.Option1.Top.Get(), 1920 + 340);

  Open(10, 5, 50);  // above the upper level
  EXPECT_EQ(Green(form), "Line1");
  EXPECT_EQ(form.Label3.Top.Get(), 880);
  EXPECT_EQ(form.Label2(0).Top.Get(), 1960);
  Open(10, 60, 50);  // below the lower level
  EXPECT_EQ(Green(form), "Line3");
  EXPECT_EQ(form.Label3.Top.Get(), 3040);
  EXPECT_EQ(form.Label2(1).Top.Get(), 1960);

  // Equal levels: nothing to divide, no arrangement.
  form.Label3.Top = 1;
  Open(20, 20, 20);
  EXPECT_EQ(form.Label1.Caption.Get(), "");
  EXPECT_EQ(form.Label3.Top.Get(), 1);
}

TEST_F(Divider, BothWaysBetweenTheNumberings) {
  // Fix target depth: sampling 100 at L1 and 180 at L2, two to the cm.
  FrmDivider& form = Open(10, 30, 50);
  ASSERT_TRUE(form.Option1.Value);
  form.Text1(0).Text = "100";
  form.Text1(1).Text = "180";
  EXPECT_EQ(form.Label1.Caption.Get(), "140");
  // Outside the two levels the offset runs on one to one.
  Open(10, 60, 50);
  form.Text1(0).Text = "100";
  form.Text1(1).Text = "180";
  EXPECT_EQ(form.Label1.Caption.Get(), "150");

  // Fix sampling: 150 typed lies at PSP 10 + 50 / 2, and moves the target.
  Open(10, 30, 50);
  form.Option2.Value = true;
  form.Text1(0).Text = "100";
  form.Text1(1).Text = "180";
  form.Text2.Text = "150";
  EXPECT_EQ(form.Label3.Caption.Get(), "Target depth = 35 cm");
  EXPECT_EQ(frmMain->Text1.Text.Get(), "35");
  EXPECT_EQ(Green(form), "Line2");
  // Equal sampling numbers in other words divide by zero: the fields stay.
  form.Text1(1).Text = "100.0";
  form.Text2.Text = "120";
  EXPECT_EQ(form.Label3.Caption.Get(), "Target depth = 35 cm");
}

TEST_F(Divider, OpenedFromTheToolMenuLevelsPickedInTheListsAndClosed) {
  // The target at 135 cm lies between L1 and L2 of bore hole A.
  TypeCompositeDepth("135");
  frmMain->mnuBH_Click(1);
  FrmDivider& form = *frmDivider;
  ASSERT_TRUE(form.Visible);
  EXPECT_FLOAT_EQ(TieAbovePSP, 10);
  EXPECT_FLOAT_EQ(TieBelowPSP, 50);
  EXPECT_EQ(form.Label3.Caption.Get(), "Target depth = 30 cm");
  // The same level in both lists hides the sampling position. The lists
  // hold the rows of the target's section.
  form.Combo1(1).Text = "L1";
  form.Combo1_Click(1);
  EXPECT_FALSE(form.Label1.Visible);
  EXPECT_EQ(DrivenBy, 0);

  // A section's top can't be the lower level: that list alone is emptied.
  Open(10, 30, 50);
  form.Combo1(1).Text = "A-01-top";
  form.Combo1_Click(1);
  EXPECT_EQ(form.Combo1(1).Text.Get(), "");
  EXPECT_EQ(form.Combo1(0).Text.Get(), "L1");
  // A section's end can't be the upper level: both are emptied.
  form.Combo1(0).Text = "A-01-bottom";
  form.Combo1_Click(0);
  EXPECT_EQ(form.Combo1(0).Text.Get(), "");

  frmDivider.Unload();
  EXPECT_FALSE(DividerOpen);
  EXPECT_EQ(TieAboveLabel, "0");
  EXPECT_TRUE(frmMain->Enabled);
}

}  // namespace
}  // namespace ostraline
