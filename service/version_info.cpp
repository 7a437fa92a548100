// The version form: the program's version and the version date of each
// imported file.
#include <string>
#include <string_view>
#include <utility>

#include "core/project_state.h"
#include "duo/duo_state.h"
#include "forms/frm2_version.h"
#include "forms/frm_main.h"
#include "forms/frm_version.h"
#include "forms/platform.h"

namespace ostraline {
namespace {

// The main form's caption begins with the program's name and a blank.
constexpr std::string_view kProgramName = "Ostraline ";

// What has not been imported reads "n/a".
void ShowVersions(FrmVersion& form, const BoreHoleSet& set) {
  const std::pair<int, const std::string*> versions[] = {{1, &set.ModelVersion},
                                                         {3, &set.EventListVersion},
                                                         {4, &set.AgeModelVersion},
                                                         {5, &set.VarveVersion}};
  for (const auto& [file, version] : versions) {
    form.Label2(file).Caption = version->empty() ? std::string("n/a") : *version;
  }
}

}  // namespace

void FrmMain::mnuVersion_Click() {
  if (IsDuo()) {
    frm2Version->Show();
  } else {
    frmVersion->Show();
  }
}

void FrmVersion::Form_Load() {
  ShowVersions(*this, masterSet);
  // Last, so that it shows the model's file name too once the main form's caption holds it.
  const std::string& caption = frmMain->Caption;
  Label4.Caption =
      caption.starts_with(kProgramName) ? caption.substr(kProgramName.size()) : caption;
}

void Frm2Version::Form_Load() {
  ShowVersions(*this, duoSet);
}

// The form keeps its height.
void FrmVersion::Form_Resize() {
  Height = 2100;
}

// The focus goes back to the first import button that can take it, in the
// order the buttons stand on the main form.
void FrmVersion::Form_Unload(int& /*cancel*/) {
  if (!frmMain.IsLoaded()) return;
  MainForm& main = *frmMain;
  for (CommandButton* import :
       {&main.Command1, &main.Command3, &main.Command4, &main.Command5, &main.Command2}) {
    if (import->Enabled && import->Visible) {
      import->SetFocus();
      return;
    }
  }
}

void FrmVersion::Form_MouseMove(int /*button*/, int /*shift*/, float /*x*/, float /*y*/) {
  Screen.SetMousePointer(0);
}

void FrmVersion::Label1_MouseMove(int /*index*/) {
  Screen.SetMousePointer(0);
}

void FrmVersion::Label2_MouseMove(int /*index*/) {
  Screen.SetMousePointer(0);
}

}  // namespace ostraline
