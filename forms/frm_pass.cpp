#include "forms/frm_pass.h"

namespace ostraline {

FrmPass::FrmPass() : Form("frmPass", "Staff only") {
  Width.SetQuietly(5520);
  Height.SetQuietly(2280);

  Label1.Caption.SetQuietly("Please enter password to log in to the debugging console.");
  Label1.Place(240, 240, 4935, 255);
  Text1.Place(240, 600, 4935, 315);
  Command1.Caption.SetQuietly("Log in");
  Command1.Place(2340, 1140, 1335, 375);
  // Grey until the password is right.
  Command1.Enabled.SetQuietly(false);
  Command2.Caption.SetQuietly("Cancel");
  Command2.Place(3840, 1140, 1335, 375);

  Text1.Change = [this] { Text1_Change(); };
  Command1.Click = [this] { Command1_Click(); };
  Command2.Click = [this] { Command2_Click(); };
}

}  // namespace ostraline
