#pragma once
// The master's main form: the shared control model and the master's
// handlers, each defined in the subsystem that owns it.
#include "forms/hole_names.h"
#include "forms/main_form.h"

namespace ostraline {

class FrmMain : public MainForm {
 public:
  FrmMain() : FrmMain("frmMain", "Ostraline 7.7.4", kMasterHoleNames, false) {}

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

  // The Duo, opened beside this form, and the two forms aligned.
  void LaunchDuo();
  void mnuOLDuo_Click();
  void Image1_Click();
  void mnuAlign_Click();

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

 protected:
  FrmMain(const char* name, const char* caption, const std::array<const char*, 4>& holeNames,
          bool isDuo);

 private:
  void WireHandlers();
};

inline FormRef<FrmMain> frmMain{"frmMain"};

}  // namespace ostraline
