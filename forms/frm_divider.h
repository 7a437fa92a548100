#pragma once
// The level divider: sampling positions between two tie levels of a section.
#include <string>

#include "forms/canvas.h"
#include "forms/controls.h"
#include "forms/form.h"
#include "runtime/checked_int.h"

namespace ostraline {

class FrmDivider : public Form {
 public:
  FrmDivider() : FrmDivider("frmDivider", "Level Divider") {}

  ControlArray<ComboBox> Combo1{*this, "Combo1"};
  ControlArray<Label> Label2{*this, "Label2"};
  ControlArray<TextBox> Text1{*this, "Text1"};
  Label Label1{*this, "Label1"};
  Label Label3{*this, "Label3"};
  TextBox Text2{*this, "Text2"};
  OptionButton Option1{*this, "Option1"};
  OptionButton Option2{*this, "Option2"};
  LineControl Line1{*this, "Line1"};
  LineControl Line2{*this, "Line2"};
  LineControl Line3{*this, "Line3"};
  PictureBox Picture1{*this, "Picture1"};
  Label Label4{*this, "Label4"};
  // The section caption: bore hole letter, "-", section name.
  Label Label5{*this, "Label5"};
  Label Label6{*this, "Label6"};

  // The two levels and the target, as Divide takes them from the main form.
  Single LevelAbovePSP = 0;
  Single TargetLevelPSP = 0;
  Single LevelBelowPSP = 0;
  std::string LevelAboveLabel;
  std::string LevelBelowLabel;
  // The combos' texts as they stood when the pointer last came.
  std::string KeptCombo1Text[2];

  void Form_Activate() override;
  void Form_Unload(int& cancel) override;
  void Form_Terminate();
  void Form_MouseMove(int button, int shift, float x, float y) override;
  void Divide();
  void Combo1_Click(int index);
  void Combo1_GotFocus();
  void Text1_Change();
  void Text2_Change();
  void Option1_Click();
  void Option2_Click();

 protected:
  FrmDivider(const char* name, const char* caption);
};

inline FormRef<FrmDivider> frmDivider{"frmDivider"};

}  // namespace ostraline
