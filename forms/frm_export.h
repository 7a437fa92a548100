#pragma once
// The export dialog of a proxy panel: the fields an export would write.
#include "forms/controls.h"
#include "forms/form.h"

namespace ostraline {

class FrmExport : public Form {
 public:
  FrmExport() : FrmExport("frmExport", "Export") {}

  // The panel number as text.
  Label Label1{*this, "Label1"};
  Frame Frame1{*this, "Frame1"};
  // 0 "Data", 1 "Sample name", 2 "Composite depth", 3 "Event free depth".
  ControlArray<CheckBox> Check1{*this, "Check1"};
  ProgressBar ProgressBar1{*this, "ProgressBar1"};
  CommandButton Command1{*this, "Command1"};

  void Command1_Click();
  void Form_Unload(int& cancel) override;
  void Form_Terminate();

 protected:
  FrmExport(const char* name, const char* caption);
};

inline FormRef<FrmExport> frmExport{"frmExport"};

}  // namespace ostraline
