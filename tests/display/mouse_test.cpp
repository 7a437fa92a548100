#include <string>
#include <vector>

#include "core/project_state.h"
#include "display/display_state.h"
#include "display/mouse_on_columns.h"
#include "forms/frm_main.h"
#include "support/event_files.h"
#include "support/fresh_program.h"
#include "support/model_files.h"
#include "support/screen_recorder.h"

namespace ostraline {
namespace {

class MouseOnColumns : public FreshProgram {
 protected:
  void SetUp() override {
    FreshProgram::SetUp();
    SetScreenObserver(&popups);
    ImportModel(FourHoleModel());
    ASSERT_TRUE(platform.messages.empty());
    ASSERT_EQ(frmMain->Text2.Text.Get(), "240");
    ASSERT_TRUE(frmMain->Option2(1).Value);
  }
  ScreenRecorder popups;
};

TEST_F(MouseOnColumns, LeftClickOnABoreHoleMovesTheTarget) {
  FrmMain& form = *frmMain;
  form.BoreHole(2).MouseDown(1, 0, 3.0f, 275.0f);
  EXPECT_TRUE(platform.messages.empty());
  // Ties at 250 (PSP 50) and 300 (PSP 100) in the first section of B.
  EXPECT_EQ(form.Text2.Text.Get(), "275");
  EXPECT_EQ(form.Combo1.Text.Get(), "B");
  EXPECT_EQ(form.Text1.Text.Get(), "75");
  EXPECT_EQ(ClickedHole, "B");
  EXPECT_FLOAT_EQ(form.BoreHole(0).ScaleTop, 275 - 250);
  EXPECT_EQ(DrivenBy, 0);
  EXPECT_EQ(DriveIndex, 5);
  EXPECT_EQ(CopyHole, 2);
  EXPECT_FALSE(SuspendTrinity);
  EXPECT_TRUE(popups.opened.empty());

  // The rounded depth, not the pointer's raw value.
  form.BoreHole(3).MouseDown(1, 0, 3.0f, 310.126f);
  EXPECT_EQ(form.Text2.Text.Get(), "310.13");
  EXPECT_EQ(form.Combo1.Text.Get(), "C");

  // Below the core bottom nothing moves and no message is shown.
  form.BoreHole(1).MouseDown(1, 0, 3.0f, CoreBottom(1) + 5);
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(form.Text2.Text.Get(), "310.13");
  EXPECT_EQ(form.Combo1.Text.Get(), "C");
  EXPECT_EQ(DrivenBy, 0);
}

TEST_F(MouseOnColumns, ToolTipsAndBracketsFollowThePointer) {
  FrmMain& form = *frmMain;
  // 0.2 % of this span reaches 60 cm: the rows at 250 and 300 are both near 275.
  ViewSpan = 30000;
  form.BoreHole(1).MouseMove(0, 0, 3.0f, 275.0f);
  EXPECT_EQ(form.BoreHole(1).ToolTipText.Get(), "L2A (100 cm)");
  EXPECT_EQ(Screen.MousePointer(), 2);
  // The overlay: a line across the column and the strip's marker.
  ASSERT_FALSE(form.BoreHole(1).WorkingOps().empty());
  EXPECT_FLOAT_EQ(form.BoreHole(1).WorkingOps().back().uy1, 275.0f);

  // Near the centre line the ties around the pointer are taken.
  ViewSpan = 500;
  form.BoreHole(1).MouseMove(0, 0, 3.0f, 240.5f);
  EXPECT_EQ(TieAboveLabel, "A-01-top");
  EXPECT_EQ(TieBelowLabel, "L1A");
  EXPECT_FLOAT_EQ(TieAbovePSP, 0);
  EXPECT_FLOAT_EQ(TieBelowPSP, 50);
  EXPECT_FLOAT_EQ(ClickedPSP, TargetPSP);

  // Below the core bottom: no tool tip changes and the brackets stay.
  ViewSpan = 30000;
  form.BoreHole(4).ToolTipText = "kept";
  form.BoreHole(4).MouseMove(0, 0, 3.0f, CoreBottom(4) + 1);
  EXPECT_EQ(form.BoreHole(4).ToolTipText.Get(), "kept");
  EXPECT_EQ(TieBelowLabel, "L1A");

  // The strip takes the default pointer.
  form.BoreHole(5).MouseMove(0, 0, 3.0f, 275.0f);
  EXPECT_EQ(Screen.MousePointer(), 0);
}

TEST_F(MouseOnColumns, RightClicksOpenTheirMenusOnce) {
  FrmMain& form = *frmMain;
  // The target 240 lies between two ties: the bore hole's menu opens once,
  // the programmed call at the target keeps it shut.
  form.BoreHole(3).MouseDown(2, 0, 3.0f, 400.0f);
  EXPECT_EQ(popups.opened, std::vector<std::string>{"mnuRB"});
  EXPECT_EQ(form.Combo1.Text.Get(), "C");
  EXPECT_TRUE(SuspendTrinity);
  EXPECT_EQ(form.Text2.Text.Get(), "240");
  EXPECT_FALSE(SuppressPopup);

  // At the core bottom, below the last tie, both brackets fall on the same
  // row: nothing to divide between, no menu.
  DrivenBy = 2;
  form.Text2.Text = "500";
  ASSERT_EQ(DrivenBy, 0);
  popups.opened.clear();
  form.BoreHole(1).MouseDown(2, 0, 3.0f, 400.0f);
  EXPECT_FLOAT_EQ(TieAbovePSP, TieBelowPSP);
  EXPECT_TRUE(popups.opened.empty());
  EXPECT_EQ(form.Combo1.Text.Get(), "A");
  EXPECT_EQ(DrivenBy, 0);

  // The composite column opens the tool menu with its copy entry shown.
  popups.opened.clear();
  SuspendTrinity = false;
  form.BoreHole(0).MouseDown(2, 0, 3.0f, 300.0f);
  EXPECT_EQ(popups.opened, std::vector<std::string>{"mnuTool"});
  EXPECT_FALSE(form.mnuCompCopy.Visible);
  EXPECT_EQ(CopyHole, 0);

  // The strip's menu, and a panel's own menu.
  popups.opened.clear();
  form.BoreHole(5).MouseDown(2, 0, 3.0f, 300.0f);
  form.Picture1(3).MouseDown(2, 0, 3.0f, 300.0f);
  EXPECT_EQ(popups.opened, (std::vector<std::string>{"mnuRBdepth", "mnuPicRB(3)"}));
}

TEST_F(MouseOnColumns, CompositeClickOnTheEfdScaleConvertsBack) {
  ImportEventList(EventListText(kTwoLayersOfFourHoles));
  ASSERT_TRUE(platform.messages.empty());
  FrmMain& form = *frmMain;
  form.Option2(2).Value = true;
  // EFD 300 lies below the first layer: 20 cm of it come back.
  form.BoreHole(0).MouseDown(1, 0, 3.0f, 300.0f);
  EXPECT_EQ(form.Text2.Text.Get(), "320");
  EXPECT_EQ(DrivenBy, 0);
  // A panel without a record under the pointer ignores a left click.
  Screen.SetMousePointer(0);
  form.Picture1(0).MouseDown(1, 0, 3.0f, 250.0f);
  EXPECT_EQ(form.Text2.Text.Get(), "320");
}

TEST_F(MouseOnColumns, OpenDividerBlocksClicksButNotTheLine) {
  FrmMain& form = *frmMain;
  DividerOpen = true;
  DrivenBy = 1;
  form.BoreHole(2).MouseDown(1, 0, 3.0f, 275.0f);
  EXPECT_EQ(form.Text2.Text.Get(), "240");
  EXPECT_EQ(DrivenBy, 0);
  form.BoreHole(0).MouseDown(1, 0, 3.0f, 275.0f);
  EXPECT_EQ(form.Text2.Text.Get(), "240");

  form.BoreHole(1).ToolTipText = "kept";
  form.BoreHole(1).MouseMove(0, 0, 3.0f, 250.0f);
  EXPECT_EQ(form.BoreHole(1).ToolTipText.Get(), "kept");
  ASSERT_FALSE(form.BoreHole(5).WorkingOps().empty());

  // Leaving the columns over the form erases the overlay.
  form.Form_MouseMove(0, 0, 2000, 700);
  EXPECT_TRUE(form.BoreHole(5).WorkingOps().empty());
  EXPECT_FLOAT_EQ(FormEdge(0), 700);
  EXPECT_FLOAT_EQ(FormEdge(1), form.Height + form.Top);
  form.BoreHole(1).MouseMove(0, 0, 3.0f, 250.0f);
  form.Label1(8).MouseMove(0, 0, 1, 1);
  EXPECT_TRUE(form.BoreHole(1).WorkingOps().empty());
}

TEST_F(MouseOnColumns, ClicksBesideTheColumnsCutAndWidenTheForm) {
  FrmMain& form = *frmMain;
  ASSERT_FLOAT_EQ(form.Width, static_cast<float>(BaseFormWidth));
  const float gapRightOfB2 =
      (form.BoreHole(2).Left + form.BoreHole(2).Width + form.BoreHole(3).Left) / 2;
  form.Form_MouseDown(1, 0, gapRightOfB2, 500);
  EXPECT_FLOAT_EQ(form.Width, form.BoreHole(3).Left + 180);
  EXPECT_TRUE(FormNarrowed);
  form.Form_MouseDown(1, 0, gapRightOfB2, 500);
  EXPECT_FALSE(FormNarrowed);

  // The strip as a switch for the composite column.
  form.Width = static_cast<float>(BaseFormWidth);
  FormNarrowed = false;
  form.BoreHole(5).MouseDown(1, 0, 3.0f, 300.0f);
  EXPECT_FLOAT_EQ(form.Width, form.BoreHole(0).Left - 150);
  EXPECT_TRUE(FormNarrowed);
  form.BoreHole(5).MouseDown(1, 0, 3.0f, 300.0f);
  EXPECT_FLOAT_EQ(form.Width, static_cast<float>(BaseFormWidth));
  form.BoreHole(5).MouseDown(1, 0, 3.0f, 300.0f);
  EXPECT_FLOAT_EQ(form.Width, form.BoreHole(0).Left - 150);
  EXPECT_EQ(form.Text2.Text.Get(), "240");  // the strip's click moves no target

  // Right of the composite column with the panels cut off: the form grows to show them.
  form.Width = static_cast<float>(BaseFormWidth);
  FormNarrowed = false;
  form.Form_MouseDown(1, 0, form.BoreHole(0).Left + form.BoreHole(0).Width + 100, 500);
  EXPECT_FLOAT_EQ(form.Width, form.Picture1(1).Left + 180);
  EXPECT_FLOAT_EQ(RestoreWidth, form.Picture1(1).Left + 180);
}

}  // namespace
}  // namespace ostraline
