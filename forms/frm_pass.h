#pragma once
// The login to the staff console.
#include "forms/controls.h"
#include "forms/form.h"

namespace ostraline {

class FrmPass : public Form {
 public:
  FrmPass();

  Label Label1{*this, "Label1"};
  TextBox Text1{*this, "Text1"};
  CommandButton Command1{*this, "Command1"};
  CommandButton Command2{*this, "Command2"};

  void Text1_Change();
  void Command1_Click();
  void Command2_Click();
};

inline FormRef<FrmPass> frmPass{"frmPass"};

}  // namespace ostraline
