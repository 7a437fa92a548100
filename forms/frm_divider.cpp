#include "forms/frm_divider.h"

namespace ostraline {

FrmDivider::FrmDivider(const char* name, const char* caption) : Form(name, caption) {
  Width.SetQuietly(5895);
  Height.SetQuietly(4230);

  Label5.Place(120, 120, 2775, 255);
  // Column titles: Label4 over the PSP of the levels, Label6 beside its second
  // line over the sampling positions.
  Label4.Caption.SetQuietly("Position on the\ndefined position (PSP)");
  Label4.Place(2880, 240, 1695, 450);
  Label6.Caption.SetQuietly("position");
  Label6.Place(4560, 480, 1095, 255);
  Picture1.Place(120, 720, 855, 2700);

  // Rows at positions 1 to 3: the level above, the target, the level below.
  constexpr float kLabelTops[] = {880, 1960, 3040};
  LineControl* lines[] = {&Line1, &Line2, &Line3};
  for (int row = 0; row < 3; ++row) {
    LineControl& line = *lines[row];
    line.X1.SetQuietly(1005);
    line.X2.SetQuietly(1365);
    line.Y1.SetQuietly(kLabelTops[row] + 120);
    line.Y2.SetQuietly(kLabelTops[row] + 120);
    line.BorderColor.SetQuietly(RGB(255, 0, 255));
  }
  for (int i = 0; i <= 1; ++i) {
    const float boxTop = kLabelTops[i * 2] - 40;
    Combo1.Add(i).Place(1440, boxTop, 1335, 315);
    Label2.Add(i).Place(2880, kLabelTops[i * 2], 1575, 255);
    Text1.Add(i).Place(4560, boxTop, 1095, 285);
  }
  Label3.Place(1440, kLabelTops[1], 3015, 255);
  Label1.Place(4560, kLabelTops[1], 1095, 255);
  Text2.Place(4560, kLabelTops[1] - 40, 1095, 285);
  Text2.Visible.SetQuietly(false);
  Option1.Caption.SetQuietly("Fix target depth");
  Option1.Place(1440, kLabelTops[1] + 300, 1575, 255);
  Option1.Value.SetQuietly(true);
  Option2.Caption.SetQuietly("Fix sampling");
  Option2.Place(3120, kLabelTops[1] + 300, 1335, 255);

  for (int i = 0; i <= 1; ++i) {
    Combo1(i).Click = [this, i] { Combo1_Click(i); };
    Combo1(i).GotFocus = [this] { Combo1_GotFocus(); };
    Text1(i).Change = [this] { Text1_Change(); };
  }
  Text2.Change = [this] { Text2_Change(); };
  Option1.Click = [this] { Option1_Click(); };
  Option2.Click = [this] { Option2_Click(); };
}

}  // namespace ostraline
