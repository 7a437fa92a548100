#pragma once
// The batch conversion: the scale a data file holds (" From ") and the scales
// to write (" To "), each option and box indexed by its scale's code.
#include "forms/controls.h"
#include "forms/form.h"

namespace ostraline {

class FrmConversion : public Form {
 public:
  FrmConversion() : FrmConversion("frmConversion", "Convert from data file") {}
  // The Duo's twin converts through the parallel set.
  virtual bool ForDuo() const { return false; }

  Frame Frame1{*this, "Frame1"};
  ControlArray<OptionButton> Option1{*this, "Option1"};
  Label Label1{*this, "Label1"};
  Frame Frame2{*this, "Frame2"};
  ControlArray<CheckBox> Check1{*this, "Check1"};
  Label Label2{*this, "Label2"};
  CommandButton Command1{*this, "Command1"};
  ProgressBar ProgressBar1{*this, "ProgressBar1"};

  void Form_Load() override;
  void Form_Unload(int& cancel) override;
  void On_Off_buttons();
  void Option1_Click(int index);
  void Check1_Click(int index);
  void Command1_Click();

 protected:
  FrmConversion(const char* name, const char* caption);
};

inline FormRef<FrmConversion> frmConversion{"frmConversion"};

}  // namespace ostraline
