#pragma once
// The level divider: sampling positions between two tie levels of a section.
#include "forms/canvas.h"
#include "forms/controls.h"
#include "forms/form.h"

namespace ostraline {

class FrmDivider : public Form {
 public:
  FrmDivider();

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
};

inline FormRef<FrmDivider> frmDivider{"frmDivider"};

}  // namespace ostraline
