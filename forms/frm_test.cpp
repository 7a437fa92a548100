#include "forms/frm_test.h"

namespace ostraline {

FrmTest::FrmTest() : Form("frmTest", "Debugging tool (staff only)") {
  Width.SetQuietly(9120);
  Height.SetQuietly(6000);

  // The trace is printed down the left half; the boxes stand on the right.
  constexpr float kLabelLeft = 4680;
  constexpr float kBoxLeft = 5880;
  constexpr float kButtonLeft = 7560;
  constexpr float kRow = 420;
  Label* labels[] = {&Label1, &Label2, &Label3, &Label4, &Label5};
  TextBox* boxes[] = {&Text1, &Text2, &Text3, &Text4, &Text5, &Text6, &Text7};
  for (int i = 0; i < 7; ++i) {
    const float top = 240 + kRow * static_cast<float>(i);
    if (i < 5) {
      labels[i]->Caption.SetQuietly(labels[i]->Name());
      labels[i]->Place(kLabelLeft, top + 15, 1095, 255);
    }
    boxes[i]->Place(kBoxLeft, top, 1575, 285);
  }
  // Each reading button stands beside the box it fills: Command2 beside
  // Text5, Command1 beside Text6.
  Command2.Caption.SetQuietly("Model version");
  Command2.Place(kButtonLeft, 240 + kRow * 4 - 30, 1335, 345);
  Command1.Caption.SetQuietly("Age header");
  Command1.Place(kButtonLeft, 240 + kRow * 5 - 30, 1335, 345);
  Command3.Caption.SetQuietly("Clear");
  Command4.Caption.SetQuietly("Command4");
  Command5.Caption.SetQuietly("Command5");
  CommandButton* lower[] = {&Command3, &Command4, &Command5};
  for (int i = 0; i < 3; ++i) {
    lower[i]->Place(kLabelLeft + 1440 * static_cast<float>(i), 3360, 1335, 345);
  }

  Command1.Click = [this] { Command1_Click(); };
  Command2.Click = [this] { Command2_Click(); };
  Command3.Click = [this] { Command3_Click(); };
}

}  // namespace ostraline
