// frmExport: the export of a panel's record is not built; the dialog says so
// and gives the two main forms back.
#include "forms/frm2_main.h"
#include "forms/frm_export.h"
#include "forms/frm_main.h"
#include "forms/platform.h"

namespace ostraline {
namespace {

// Both main forms were disabled when the dialog opened. A form that is not
// loaded is enabled when it loads; touching it here would load it.
void EnableMainForms() {
  if (frmMain.IsLoaded()) frmMain->Enabled = true;
  if (frm2Main.IsLoaded()) frm2Main->Enabled = true;
}

}  // namespace

void FrmExport::Command1_Click() {
  MsgBox("Sorry, this function is under construction.", MsgButtons::Ok, "Ostraline");
  EnableMainForms();
  Unload(Name());
}

void FrmExport::Form_Unload(int& /*cancel*/) {
  EnableMainForms();
}

void FrmExport::Form_Terminate() {
  EnableMainForms();
}

}  // namespace ostraline
