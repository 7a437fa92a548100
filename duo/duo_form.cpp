// The Duo form's start, its age and varve imports, and its end.
#include "core/project_state.h"
#include "duo/duo_state.h"
#include "events/age_lookup.h"
#include "events/age_model.h"
#include "events/event_state.h"
#include "events/varve_counts.h"
#include "forms/frm2_main.h"
#include "forms/frm2_version.h"
#include "forms/frm_main.h"
#include "forms/platform.h"

namespace ostraline {

void FrmMain::mnuOLDuo_Click() {
  LaunchDuo();
}

void FrmMain::Image1_Click() {
  LaunchDuo();
}

void FrmMain::mnuAlign_Click() {
  if (frm2Main.IsLoaded()) frmMain->Top = frm2Main->Top.Get();
}

void FrmMain::LaunchDuo() {
  if (IsDuo()) return;
  if (!EventListLoaded || DuoOpen) return;
  Frm2Main& duo = *frm2Main;
  duo.Height = Height.Get();
  duo.Top = Top.Get();
  // The lower frame and the button below it keep their distance from the
  // form's bottom.
  const float d = duo.Frame2.Height - Frame2.Height;
  duo.Frame2.Top = Frame2.Top + d;
  duo.Command7.Top = Command7.Top + d;
  duo.Show();
  const float besideMaster = Left + Width - 60;
  if (besideMaster + duo.Width <= Screen.Width()) {
    duo.Left = besideMaster;
  } else {
    duo.Left = Screen.Width() - duo.Width - 60;
  }
}

// The Duo's form starts as the master's does, on its own set; its imports
// begin anew, and its columns fit the master's core.
void Frm2Main::Form_Load() {
  FrmMain::Form_Load();
  AgeModelLoaded2 = false;
  DuoScale = Option4(0).Value ? 2 : 1;
  mnuOLDuo.Enabled = false;
}

void Frm2Main::Form_Unload(int& /*cancel*/) {
  DuoOpen = false;
}

void Frm2Main::Form_Terminate() {
  DuoOpen = false;
}

void Frm2Main::Command4_Click() {
  ImportAgeModel(duoSet, *this, *frm2Version, [this] {
    mnuAge.Enabled = true;
    mnuDepth.Enabled = true;
    Command4.Enabled = false;
    Command5.Enabled = true;
    if (Command5.Visible) Command5.SetFocus();
    ProgressBar1.Visible = false;
    ProgressBar1.Value = 0;
  });
}

void Frm2Main::Command5_Click() {
  if (!ImportVarveCounts(duoSet, *this, *frm2Version)) return;
  ostraline::DisplayAge(duoSet, *this);
  Command5.Enabled = false;
}

}  // namespace ostraline
