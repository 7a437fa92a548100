// The version form: the program's version and the version date of each
// imported file.
#include <string>
#include <string_view>
#include <utility>

#include "core/project_state.h"
#include "forms/frm_main.h"
#include "forms/frm_version.h"

namespace ostraline {
namespace {

// The main form's caption begins with the program's name and a blank.
constexpr std::string_view kProgramName = "Ostraline ";

}  // namespace

void FrmVersion::Form_Load() {
  const std::pair<int, const std::string*> versions[] = {
      {1, &ModelVersion}, {3, &EventListVersion}, {4, &AgeModelVersion}, {5, &VarveVersion}};
  for (const auto& [file, version] : versions) {
    Label2(file).Caption = version->empty() ? std::string("n/a") : *version;
  }
  // Last, so that it shows the model's file name too once the main form's caption holds it.
  const std::string& caption = frmMain->Caption;
  Label4.Caption =
      caption.starts_with(kProgramName) ? caption.substr(kProgramName.size()) : caption;
}

// The form keeps its height.
void FrmVersion::Form_Resize() {
  Height = 2100;
}

}  // namespace ostraline
