#pragma once
// The staff console: a running trace printed on the form, and a few boxes and
// buttons that read the shared state.
#include "forms/controls.h"
#include "forms/form.h"

namespace ostraline {

class FrmTest : public Form {
 public:
  FrmTest();

  Label Label1{*this, "Label1"};
  Label Label2{*this, "Label2"};
  Label Label3{*this, "Label3"};
  Label Label4{*this, "Label4"};
  Label Label5{*this, "Label5"};
  TextBox Text1{*this, "Text1"};
  TextBox Text2{*this, "Text2"};
  TextBox Text3{*this, "Text3"};
  TextBox Text4{*this, "Text4"};
  TextBox Text5{*this, "Text5"};
  TextBox Text6{*this, "Text6"};
  TextBox Text7{*this, "Text7"};
  CommandButton Command1{*this, "Command1"};
  CommandButton Command2{*this, "Command2"};
  CommandButton Command3{*this, "Command3"};
  CommandButton Command4{*this, "Command4"};
  CommandButton Command5{*this, "Command5"};

  // Command4 and Command5 have no handler.
  void Command1_Click();
  void Command2_Click();
  void Command3_Click();
};

inline FormRef<FrmTest> frmTest{"frmTest"};

}  // namespace ostraline
