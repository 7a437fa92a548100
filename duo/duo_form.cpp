// The Duo form's start, its age and varve imports, and its end.
#include <initializer_list>

#include "core/project_state.h"
#include "duo/duo_state.h"
#include "events/age_lookup.h"
#include "events/age_model.h"
#include "events/batch_conversion.h"
#include "events/event_state.h"
#include "events/varve_counts.h"
#include "forms/frm2_main.h"
#include "forms/frm2_version.h"
#include "forms/frm_main.h"
#include "forms/platform.h"

namespace ostraline {

void FrmMain::LaunchDuo() {
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

// The Duo's imports begin anew: only its model's button is open.
void Frm2Main::Form_Load() {
  AgeModelLoaded2 = false;
  DrivenBy2 = 9999;
  Frame5.Enabled = false;
  for (Menu* menu : {&mnuAge, &mnuDepth, &mnuRange, &mnuFont, &mnuTool, &mnuInfo}) {
    menu->Enabled = false;
  }
  for (Control* control : std::initializer_list<Control*>{
           &Command3, &Command4, &Command5, &Command7, &Label5, &Option3(0), &Option3(1)}) {
    control->Enabled = false;
  }
  Option4(1).Value = true;
  DuoScale = 1;
  EventCount2 = -9999;
  MergedEventCount2 = -9999;
  DrivenBy2 = 0;
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

void Frm2Main::Command2_Click() {
  ConvertFromDataFile(duoSet, *this);
}

void Frm2Main::Command5_Click() {
  if (!ImportVarveCounts(duoSet, *this, *frm2Version)) return;
  DisplayAge(duoSet, *this);
  Command5.Enabled = false;
}

}  // namespace ostraline
