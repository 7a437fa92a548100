#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/project_state.h"
#include "forms/frm_main.h"
#include "forms/frm_pass.h"
#include "forms/frm_test.h"
#include "runtime/number_text.h"
#include "support/age_files.h"

namespace ostraline {
namespace {

class StaffConsole : public AgeProgram {};

TEST_F(StaffConsole, onlyAnExactPasswordOpensTheConsoleAndTheLoginHolds) {
  FrmMain& main = *frmMain;
  main.Image1_DblClick();
  FrmPass& login = *frmPass;
  EXPECT_TRUE(login.Visible);
  EXPECT_EQ(login.Left.Get(), main.Left.Get() + 7200);
  EXPECT_EQ(login.Top.Get(), main.Top.Get() + 360);

  for (const char* wrong : {"MARLOW", "marlow2019 ", "fern4471"}) {
    login.Text1.Text = wrong;
    EXPECT_FALSE(login.Command1.Enabled) << wrong;
    EXPECT_EQ(FocusedControl(), &login.Text1) << wrong;
  }
  login.Command1_Click();
  EXPECT_EQ(OnlyMessage(),
            "Unauthorised: Incorrect password. Contact project manager. (staff@ostraline.org)");
  EXPECT_EQ(login.Text1.Text.Get(), "");
  EXPECT_FALSE(DebugTrace);
  EXPECT_FALSE(frmTest.IsLoaded());

  login.Text1.Text = "Fern4471";
  EXPECT_TRUE(login.Command1.Enabled);
  EXPECT_EQ(FocusedControl(), &login.Command1);
  login.Command1_Click();
  EXPECT_TRUE(DebugTrace);
  EXPECT_TRUE(frmTest->Visible);
  EXPECT_FALSE(login.Visible);
  EXPECT_EQ(login.Text1.Text.Get(), "");

  frmTest.Unload();
  main.Image1_DblClick();
  EXPECT_TRUE(frmTest->Visible);
  EXPECT_FALSE(frmPass->Visible);

  frmPass->Command2_Click();
  EXPECT_FALSE(frmPass.IsLoaded());
  EXPECT_EQ(platform.messages.size(), 1u);
}

TEST_F(StaffConsole, eachChangeOfTheCompositeDepthAddsSevenLines) {
  ImportAll();
  FrmMain& main = *frmMain;
  main.Text2.Text = "150";
  EXPECT_FALSE(frmTest.IsLoaded());  // no trace before the login

  DebugTrace = true;
  main.Text2.Text = "160";
  main.Text2.Text = "160";  // the same text is no change
  main.Text2.Text = "170";
  ASSERT_TRUE(platform.messages.empty()) << OnlyMessage();
  FrmTest& console = *frmTest;
  EXPECT_FALSE(console.Visible);
  const std::vector<std::string>& lines = console.PrintedLines();
  ASSERT_EQ(lines.size(), 14u);
  EXPECT_EQ(lines[5], "text2.text: 160");
  EXPECT_EQ(std::vector<std::string>(lines.begin() + 7, lines.end()),
            (std::vector<std::string>{"frmMain.Text2_Change", "ActionCount: " + Str(ActionCount),
                                      "DrivenBy: 0", "DriveIndex: " + Str(DriveIndex),
                                      "Y: ", "text2.text: 170", "----------"}));

  console.Command2_Click();
  EXPECT_EQ(console.Text5.Text.Get(), ModelVersion);
  // The age model's header cell ends in "(05 Mar. 2011)".
  console.Command1_Click();
  EXPECT_EQ(console.Text6.Text.Get(), "05 Mar. 2011");
  console.Command3_Click();
  EXPECT_TRUE(console.PrintedLines().empty());
}

}  // namespace
}  // namespace ostraline
