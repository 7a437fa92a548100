#pragma once
// The control model that both main forms share, the master's and the Duo's:
// the controls as the form designer names them, placed and captioned alike.
#include <array>

#include "forms/canvas.h"
#include "forms/controls.h"
#include "forms/form.h"

namespace ostraline {

class MainForm : public Form {
 public:
  // frm2Main, the Duo's form for the parallel set, rather than frmMain.
  bool IsDuo() const { return isDuo_; }

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

 protected:
  // The form's name, its caption and the default names of its bore holes.
  MainForm(const char* name, const char* caption, const std::array<const char*, 4>& holeNames,
           bool isDuo);

 private:
  bool isDuo_;
  void Layout(const std::array<const char*, 4>& holeNames);
  void BuildMenus(const std::array<const char*, 4>& holeNames);
};

}  // namespace ostraline
