// The staff console: reached through a login that protects nothing but the
// console itself; the login holds until the program ends.
#include "service/staff_console.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "core/project_state.h"
#include "events/event_state.h"
#include "forms/frm_main.h"
#include "forms/frm_pass.h"
#include "forms/frm_test.h"
#include "forms/platform.h"
#include "runtime/number_text.h"

namespace ostraline {
namespace {

// Compared with the exact case.
constexpr std::array<std::string_view, 4> kPasswords = {"marlow2019", "Fern4471", "marlow",
                                                        "Marlow"};

// The project manager's address: a setting of the deployment.
constexpr std::string_view kProjectManagerAddress = "staff@ostraline.org";

bool IsPassword(const std::string& text) {
  return std::find(kPasswords.begin(), kPasswords.end(), text) != kPasswords.end();
}

}  // namespace

void TraceText2Change(MainForm& form) {
  FrmTest& console = *frmTest;
  console.Print("frmMain.Text2_Change");
  console.Print("ActionCount: " + Str(ActionCount));
  console.Print("DrivenBy: " + Str(DrivenBy));
  console.Print("DriveIndex: " + Str(DriveIndex));
  console.Print("Y: ");
  console.Print("text2.text: " + form.Text2.Text.Get());
  console.Print("----------");
}

void FrmMain::Image1_DblClick() {
  if (DebugTrace) {
    frmTest->Show();
    return;
  }
  FrmPass& login = *frmPass;
  login.Show();
  login.Left = Left + 7200;
  login.Top = Top + 360;
}

// The button stays grey until the password is right.
void FrmPass::Text1_Change() {
  if (IsPassword(Text1.Text)) {
    Command1.Enabled = true;
    Command1.SetFocus();
  } else {
    Text1.SetFocus();
    Command1.Enabled = false;
  }
}

void FrmPass::Command1_Click() {
  if (IsPassword(Text1.Text)) {
    frmTest->Show();
    DebugTrace = true;
    Text1.Text = "";
    Hide();
    return;
  }
  MsgBox(
      "Incorrect password. Contact project manager. (" + std::string(kProjectManagerAddress) + ")",
      MsgButtons::Ok, "Unauthorised");
  Text1.Text = "";
}

void FrmPass::Command2_Click() {
  frmPass.Unload();
}

// The age model's version date, as its header cell carries it.
void FrmTest::Command1_Click() {
  Text6.Text = Trim(ostraline::Left(Right(AgeModel(5, 0), 13), 12));
}

void FrmTest::Command2_Click() {
  Text5.Text = ModelVersion;
}

void FrmTest::Command3_Click() {
  Cls();
}

}  // namespace ostraline
