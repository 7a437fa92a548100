#pragma once
// The main form: its controls as the form designer names them, and its
// handlers, each defined in the subsystem that owns it.
#include "forms/canvas.h"
#include "forms/controls.h"
#include "forms/form.h"

namespace ostraline {

class FrmMain : public Form {
 public:
  FrmMain();

  // The import frame and the buttons of the import chain.
  Frame Frame4{*this, "Frame4"};
  CommandButton Command1{*this, "Command1"};
  CommandButton Command3{*this, "Command3"};
  CommandButton Command4{*this, "Command4"};
  CommandButton Command5{*this, "Command5"};
  CommandButton Command2{*this, "Command2"};
  CommandButton Command7{*this, "Command7"};
  CommonDialog CommonDialog1{*this, "CommonDialog1"};
  ProgressBar ProgressBar1{*this, "ProgressBar1"};

  // The Holy trinity and the depth boxes.
  Frame Frame5{*this, "Frame5"};
  ControlArray<Label> Label1{*this, "Label1"};
  ComboBox Combo1{*this, "Combo1"};
  ComboBox Combo2{*this, "Combo2"};
  ComboBox Combo5{*this, "Combo5"};
  TextBox Text1{*this, "Text1"};
  Label Label2{*this, "Label2"};
  TextBox Text2{*this, "Text2"};
  Label Label3{*this, "Label3"};
  TextBox Text3{*this, "Text3"};
  Label Label7{*this, "Label7"};
  TextBox Text4{*this, "Text4"};
  Label Label8{*this, "Label8"};
  Label Label9{*this, "Label9"};
  Label Label4{*this, "Label4"};
  Label Label10{*this, "Label10"};
  ControlArray<OptionButton> Option1{*this, "Option1"};

  // The vertical scale and the extrapolation method.
  Frame Frame2{*this, "Frame2"};
  Label Label11{*this, "Label11"};
  ControlArray<OptionButton> Option2{*this, "Option2"};
  Frame Frame3{*this, "Frame3"};
  ControlArray<OptionButton> Option4{*this, "Option4"};

  // The legacy frame: overlapping event layers.
  Frame Frame1{*this, "Frame1"};
  Label Label5{*this, "Label5"};
  ControlArray<OptionButton> Option3{*this, "Option3"};

  // The target elbow from the boxes to the middle of the columns.
  LineControl Line1{*this, "Line1"};
  ControlArray<LineControl> Line2{*this, "Line2"};

  // The columns, the scale strip, the slider and the proxy panels.
  ControlArray<PictureBox> BoreHole{*this, "BoreHole"};
  Slider Slider1{*this, "Slider1"};
  ControlArray<PictureBox> Picture1{*this, "Picture1"};
  ControlArray<CommandButton> Command6{*this, "Command6"};
  ControlArray<TextBox> Text5{*this, "Text5"};
  ControlArray<TextBox> Text6{*this, "Text6"};
  ControlArray<CheckBox> Check1{*this, "Check1"};
  ControlArray<ComboBox> Combo3{*this, "Combo3"};
  ControlArray<ComboBox> Combo4{*this, "Combo4"};
  ImageControl Image1{*this, "Image1"};

  // The menu bar.
  Menu mnuRange{*this, "mnuRange"};
  Menu mnuLink{*this, "mnuLink"};
  Menu mnuRangeBreak{*this, "mnuRangeBreak"};
  ControlArray<Menu> mnuCM{*this, "mnuCM"};
  Menu mnuFont{*this, "mnuFont"};
  ControlArray<Menu> mnuSize{*this, "mnuSize"};
  Menu mnuTool{*this, "mnuTool"};
  Menu mnuCompCopy{*this, "mnuCompCopy"};
  Menu break98{*this, "break98"};
  Menu mnuHorizontal{*this, "mnuHorizontal"};
  Menu mnuHorizontalBH{*this, "mnuHorizontalBH"};
  Menu mnuShowTiePoints{*this, "mnuShowTiePoints"};
  Menu mnuShowLabCodes{*this, "mnuShowLabCodes"};
  Menu mnuToolBreak1{*this, "mnuToolBreak1"};
  ControlArray<Menu> mnuBH{*this, "mnuBH"};
  Menu mnuToolBreak2{*this, "mnuToolBreak2"};
  Menu mnuKX11{*this, "mnuKX11"};
  Menu mnuPhoto{*this, "mnuPhoto"};
  Menu mnuOLDuo{*this, "mnuOLDuo"};
  Menu mnuAlign{*this, "mnuAlign"};
  Menu mnuLFDuo{*this, "mnuLFDuo"};
  Menu mnuPrecision{*this, "mnuPrecision"};
  Menu mnuDepthDigits{*this, "mnuDepthDigits"};
  ControlArray<Menu> mnuDepPrec{*this, "mnuDepPrec"};
  Menu mnuAgeDigits{*this, "mnuAgeDigits"};
  ControlArray<Menu> mnuAgePrec{*this, "mnuAgePrec"};
  Menu mnuInfo{*this, "mnuInfo"};
  Menu mnuVersion{*this, "mnuVersion"};

  // Pop-up menus: a bore hole column, the scale strip, each proxy panel.
  Menu mnuRB{*this, "mnuRB"};
  Menu mnuDivider{*this, "mnuDivider"};
  Menu mnuCopyCore{*this, "mnuCopyCore"};
  Menu mnuRBdepth{*this, "mnuRBdepth"};
  Menu mnuDepth{*this, "mnuDepth"};
  Menu mnuAge{*this, "mnuAge"};
  Menu mnuRBdepthBreak{*this, "mnuRBdepthBreak"};
  Menu mnuCopyDepth{*this, "mnuCopyDepth"};
  // Each panel p has its own entries: mnuLine<p> is mnuLine(p) here.
  ControlArray<Menu> mnuPicRB{*this, "mnuPicRB"};
  ControlArray<Menu> mnuFlipH{*this, "mnuFlipH"};
  ControlArray<Menu> mnuLine{*this, "mnuLine"};
  ControlArray<Menu> mnuMarker{*this, "mnuMarker"};
  ControlArray<Menu> mnuHorizontalN{*this, "mnuHorizontal"};
  ControlArray<Menu> mnuSmooth{*this, "mnuSmooth"};
  ControlArray<Menu> mnuFlat3_{*this, "mnuFlat3_"};
  ControlArray<Menu> mnuFlat5_{*this, "mnuFlat5_"};
  ControlArray<Menu> mnuFlat11_{*this, "mnuFlat11_"};
  ControlArray<Menu> mnuFlat208_{*this, "mnuFlat208_"};
  ControlArray<Menu> mnuCopy{*this, "mnuCopy"};
  ControlArray<Menu> mnuFilename{*this, "mnuFilename"};
  ControlArray<Menu> mnuExport_{*this, "mnuExport_"};
  Menu mnuMulti_0{*this, "mnuMulti_0"};

  // Start-up and shutdown.
  void Form_Load() override;
  void Form_Activate() override;
  void Form_Click() override;
  void Form_GotFocus() override;
  void Form_Unload(int& cancel) override;
  void Form_Terminate();
  void CloseAllForms();
  void Text1_MouseMove();
  void Text2_MouseMove();
  void Text3_MouseMove();
  void Text4_MouseMove();
  void Check1_MouseMove(int index);

  // The correlation model.
  void Command1_Click();

  // The target horizon.
  void Text1_Change();
  void Text2_Change();
  void Text3_Change();
  void Combo1_Change();
  void Combo1_Click();
  void Combo2_Change();
  void Combo2_Click();
  void Combo5_Change();
  void Combo5_Click();
  void BoreHoleChange();
  void Option1_Click(int index);
  void Option2_Click(int index);
  void Option4_Click(int index);
  void Text1_KeyPress(int& keyAscii);
  void Text2_KeyDown(int& keyCode, int shift);
  void Text3_KeyDown(int& keyCode, int shift);
  void Text3_KeyPress(int& keyAscii);
  void Text3_MouseDown();
  void Text4_KeyPress(int& keyAscii);
  void Text1_GotFocus();
  void Text2_GotFocus();
  void Text3_GotFocus();
  void Slider1_Scroll();

  // Event layers.
  void Command3_Click();
  void CombineAndSortEvents();
  void Label1_Change(int index);

  // The age-depth model, varve counts and the age of the target.
  void Command4_Click();
  void Command5_Click();
  void DisplayAge();
  void Text4_GotFocus();
  void Text4_Change();

  // Batch conversion of a data file.
  void Command2_Click();

  // Photos, the correlation assist, version information, the staff console.
  void Command7_Click();
  void mnuPhoto_Click();
  void mnuKX11_Click();
  void mnuVersion_Click();
  void Image1_DblClick();
  void Slider1_MouseMove();

  // The level divider.
  void mnuDivider_Click();
  void mnuBH_Click(int index);

  // Proxy panels.
  void Command6_Click(int p);
  void Combo3_Click(int p);
  void Combo4_Click(int p);
  void Check1_Click(int p);
  void Text5_Change(int p);
  void Text6_Change(int p);
  void mnuFlipH_Click(int p);
  void mnuLine_Click(int p);
  void mnuMarker_Click(int p);
  void mnuMulti_0_Click();
  void mnuFlat3__Click(int p);
  void mnuFlat5__Click(int p);
  void mnuFlat11__Click(int p);
  void mnuFlat208__Click(int p);
  void mnuCopy_Click(int p);
  void mnuFilename_Click(int p);
  void mnuExport__Click(int p);

  // What the columns show.
  void mnuShowTiePoints_Click();
  void mnuShowLabCodes_Click();
  void mnuHorizontal_Click();
  void mnuHorizontalN_Click(int panel);
  void mnuHorizontalBH_Click();
  void mnuDepth_Click();
  void mnuAge_Click();
  void mnuSize_Click(int index);
  void mnuCopyDepth_Click();
  void mnuCompCopy_Click();
  void mnuCopyCore_Click();

  // The pointer on the columns, the panels and the bare form.
  void BoreHole_MouseMove(int index, int button, int shift, float x, float y);
  void BoreHole_MouseDown(int index, int button, int shift, float x, float y);
  void Picture1_MouseMove(int index, int button, int shift, float x, float y);
  void Picture1_MouseDown(int index, int button, int shift, float x, float y);
  void Form_MouseMove(int button, int shift, float x, float y) override;
  void Form_MouseDown(int button, int shift, float x, float y) override;
  // Label1 to Label10 alike.
  void Label_MouseMove();
  void Text6_MouseMove(int index);

  // The span of the columns, the precision of the texts and the layout.
  void mnuCM_Click(int index);
  void mnuLink_Click();
  void mnuDepPrec_Click(int index);
  void mnuAgePrec_Click(int index);
  void Form_Resize() override;

 private:
  void Layout();
  void BuildMenus();
  void WireHandlers();
};

inline FormRef<FrmMain> frmMain{"frmMain"};

}  // namespace ostraline
