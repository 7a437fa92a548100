#pragma once
// What the single position number of a proxy record is: asked at the end of
// its import, over the head of the file.
#include "forms/controls.h"
#include "forms/form.h"

namespace ostraline {

class FrmSelect : public Form {
 public:
  FrmSelect() : FrmSelect("frmSelect", "Vertical axis") {}

  // "Index" at first; the panel number once the form is in use.
  Label Label1{*this, "Label1"};
  Frame Frame1{*this, "Frame1"};
  // 0 "Composite depth", 1 "Age (b1950)", 2 "Age (ka)".
  ControlArray<OptionButton> Option1{*this, "Option1"};
  // Nine rows of three cells: row 0 the file's first three header fields,
  // rows 1 to 8 its first eight samples.
  ControlArray<TextBox> Text1{*this, "Text1"};
  ControlArray<TextBox> Text2{*this, "Text2"};
  ControlArray<TextBox> Text3{*this, "Text3"};
  CommandButton Command1{*this, "Command1"};
  CommandButton Command2{*this, "Command2"};

  void Form_Load() override;
  void Command1_Click();
  void Command2_Click();
  void Cell_MouseDown();
  void Cell_MouseMove(ControlArray<TextBox>& column, int row);
  void Form_MouseMove(int button, int shift, float x, float y) override;
  void Frame1_MouseMove();

 protected:
  FrmSelect(const char* name, const char* caption);
};

inline FormRef<FrmSelect> frmSelect{"frmSelect"};

}  // namespace ostraline
