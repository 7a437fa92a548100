#include "forms/frm_main.h"

namespace ostraline {

// Each control's events go to the handler of the subsystem that owns it.
void FrmMain::WireHandlers() {
  Command1.Click = [this] { Command1_Click(); };
  Command2.Click = [this] { Command2_Click(); };
  Command3.Click = [this] { Command3_Click(); };
  Command4.Click = [this] { Command4_Click(); };
  Command5.Click = [this] { Command5_Click(); };
  // Photos, the correlation assist, version information, the staff console.
  Command7.Click = [this] { Command7_Click(); };
  mnuPhoto.Click = [this] { mnuPhoto_Click(); };
  mnuKX11.Click = [this] { mnuKX11_Click(); };
  mnuVersion.Click = [this] { mnuVersion_Click(); };
  Image1.DblClick = [this] { Image1_DblClick(); };
  Image1.Click = [this] { Image1_Click(); };
  mnuOLDuo.Click = [this] { mnuOLDuo_Click(); };
  mnuAlign.Click = [this] { mnuAlign_Click(); };
  Slider1.MouseMove = [this](int, int, float, float) { Slider1_MouseMove(); };

  // The level divider.
  mnuDivider.Click = [this] { mnuDivider_Click(); };
  mnuBH.ForEach([this](Menu& entry) {
    const int hole = entry.Index();
    entry.Click = [this, hole] { mnuBH_Click(hole); };
  });

  // The proxy panels.
  Command6.ForEach([this](CommandButton& button) {
    const int p = button.Index();
    button.Click = [this, p] { Command6_Click(p); };
    Combo3(p).Click = [this, p] { Combo3_Click(p); };
    Combo4(p).Click = [this, p] { Combo4_Click(p); };
    Check1(p).Click = [this, p] { Check1_Click(p); };
    Text5(p).Change = [this, p] { Text5_Change(p); };
    Text6(p).Change = [this, p] { Text6_Change(p); };
    mnuFlipH(p).Click = [this, p] { mnuFlipH_Click(p); };
    mnuLine(p).Click = [this, p] { mnuLine_Click(p); };
    mnuMarker(p).Click = [this, p] { mnuMarker_Click(p); };
    mnuFlat3_(p).Click = [this, p] { mnuFlat3__Click(p); };
    mnuFlat5_(p).Click = [this, p] { mnuFlat5__Click(p); };
    mnuFlat11_(p).Click = [this, p] { mnuFlat11__Click(p); };
    mnuFlat208_(p).Click = [this, p] { mnuFlat208__Click(p); };
    mnuCopy(p).Click = [this, p] { mnuCopy_Click(p); };
    mnuFilename(p).Click = [this, p] { mnuFilename_Click(p); };
    mnuExport_(p).Click = [this, p] { mnuExport__Click(p); };
  });
  mnuMulti_0.Click = [this] { mnuMulti_0_Click(); };
  Text4.GotFocus = [this] { Text4_GotFocus(); };
  Text4.Change = [this] { Text4_Change(); };
  Label1(8).Change = [this] { Label1_Change(8); };

  // The target horizon.
  Text1.Change = [this] { Text1_Change(); };
  Text2.Change = [this] { Text2_Change(); };
  Text3.Change = [this] { Text3_Change(); };
  Combo1.Change = [this] { Combo1_Change(); };
  Combo1.Click = [this] { Combo1_Click(); };
  Combo2.Change = [this] { Combo2_Change(); };
  Combo2.Click = [this] { Combo2_Click(); };
  Combo5.Change = [this] { Combo5_Change(); };
  Combo5.Click = [this] { Combo5_Click(); };
  Text1.KeyPress = [this](int& keyAscii) { Text1_KeyPress(keyAscii); };
  Text2.KeyDown = [this](int& keyCode, int shift) { Text2_KeyDown(keyCode, shift); };
  Text3.KeyDown = [this](int& keyCode, int shift) { Text3_KeyDown(keyCode, shift); };
  Text3.KeyPress = [this](int& keyAscii) { Text3_KeyPress(keyAscii); };
  Text3.MouseDown = [this](int, int, float, float) { Text3_MouseDown(); };
  Text4.KeyPress = [this](int& keyAscii) { Text4_KeyPress(keyAscii); };
  Text1.GotFocus = [this] { Text1_GotFocus(); };
  Text2.GotFocus = [this] { Text2_GotFocus(); };
  Text3.GotFocus = [this] { Text3_GotFocus(); };
  Slider1.Scroll = [this] { Slider1_Scroll(); };
  Option1.ForEach([this](OptionButton& option) {
    const int index = option.Index();
    option.Click = [this, index] { Option1_Click(index); };
  });
  Option2.ForEach([this](OptionButton& option) {
    const int index = option.Index();
    option.Click = [this, index] { Option2_Click(index); };
  });
  Option4.ForEach([this](OptionButton& option) {
    const int index = option.Index();
    option.Click = [this, index] { Option4_Click(index); };
  });
  Text1.MouseMove = [this](int, int, float, float) { Text1_MouseMove(); };
  Text2.MouseMove = [this](int, int, float, float) { Text2_MouseMove(); };
  Text3.MouseMove = [this](int, int, float, float) { Text3_MouseMove(); };
  Text4.MouseMove = [this](int, int, float, float) { Text4_MouseMove(); };
  Check1.ForEach([this](CheckBox& box) {
    const int index = box.Index();
    box.MouseMove = [this, index](int, int, float, float) { Check1_MouseMove(index); };
  });

  // What the columns show.
  mnuShowTiePoints.Click = [this] { mnuShowTiePoints_Click(); };
  mnuShowLabCodes.Click = [this] { mnuShowLabCodes_Click(); };
  mnuHorizontal.Click = [this] { mnuHorizontal_Click(); };
  mnuHorizontalN.ForEach([this](Menu& entry) {
    const int panel = entry.Index();
    entry.Click = [this, panel] { mnuHorizontalN_Click(panel); };
  });
  mnuHorizontalBH.Click = [this] { mnuHorizontalBH_Click(); };
  mnuDepth.Click = [this] { mnuDepth_Click(); };
  mnuAge.Click = [this] { mnuAge_Click(); };
  mnuSize.ForEach([this](Menu& entry) {
    const int index = entry.Index();
    entry.Click = [this, index] { mnuSize_Click(index); };
  });
  mnuCopyDepth.Click = [this] { mnuCopyDepth_Click(); };
  mnuCompCopy.Click = [this] { mnuCompCopy_Click(); };
  mnuCopyCore.Click = [this] { mnuCopyCore_Click(); };

  // The pointer on the columns and panels; leaving them over a label clears the overlay.
  BoreHole.ForEach([this](PictureBox& column) {
    const int index = column.Index();
    column.MouseMove = [this, index](int b, int s, float x, float y) {
      BoreHole_MouseMove(index, b, s, x, y);
    };
    column.MouseDown = [this, index](int b, int s, float x, float y) {
      BoreHole_MouseDown(index, b, s, x, y);
    };
  });
  Picture1.ForEach([this](PictureBox& panel) {
    const int index = panel.Index();
    panel.MouseMove = [this, index](int b, int s, float x, float y) {
      Picture1_MouseMove(index, b, s, x, y);
    };
    panel.MouseDown = [this, index](int b, int s, float x, float y) {
      Picture1_MouseDown(index, b, s, x, y);
    };
  });
  Label1.ForEach([this](Label& label) {
    label.MouseMove = [this](int, int, float, float) { Label_MouseMove(); };
  });
  for (Label* label : {&Label2, &Label3, &Label4, &Label5, &Label7, &Label8, &Label9, &Label10}) {
    label->MouseMove = [this](int, int, float, float) { Label_MouseMove(); };
  }
  Text6.ForEach([this](TextBox& box) {
    const int index = box.Index();
    box.MouseMove = [this, index](int, int, float, float) { Text6_MouseMove(index); };
  });

  // The span of the columns and the precision of the texts.
  mnuCM.ForEach([this](Menu& entry) {
    const int span = entry.Index();
    entry.Click = [this, span] { mnuCM_Click(span); };
  });
  mnuLink.Click = [this] { mnuLink_Click(); };
  mnuDepPrec.ForEach([this](Menu& entry) {
    const int digits = entry.Index();
    entry.Click = [this, digits] { mnuDepPrec_Click(digits); };
  });
  mnuAgePrec.ForEach([this](Menu& entry) {
    const int digits = entry.Index();
    entry.Click = [this, digits] { mnuAgePrec_Click(digits); };
  });
}

}  // namespace ostraline
