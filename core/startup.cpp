// Start-up and shutdown of the main form: every run starts from the same
// defaults, with only the model's import open, and closing the main form
// takes every other form with it.
#include <initializer_list>

#include "core/project_state.h"
#include "display/display_state.h"
#include "display/form_view.h"
#include "events/event_state.h"
#include "forms/frm2_conversion.h"
#include "forms/frm2_divider.h"
#include "forms/frm2_export.h"
#include "forms/frm2_main.h"
#include "forms/frm2_photo.h"
#include "forms/frm2_select.h"
#include "forms/frm2_version.h"
#include "forms/frm3_photo.h"
#include "forms/frm4_photo.h"
#include "forms/frm_conversion.h"
#include "forms/frm_divider.h"
#include "forms/frm_export.h"
#include "forms/frm_kx11.h"
#include "forms/frm_main.h"
#include "forms/frm_pass.h"
#include "forms/frm_photo.h"
#include "forms/frm_select.h"
#include "forms/frm_test.h"
#include "forms/frm_version.h"
#include "forms/platform.h"

namespace ostraline {
namespace {

// The digits are those of the checked entry; with several checked the last wins.
Integer CheckedDigits(const ControlArray<Menu>& digits, Integer current) {
  for (int i = 0; i <= 4; ++i) {
    if (digits(i).Checked) current = i;
  }
  return current;
}

void EndProgram(FrmMain& form) {
  form.CloseAllForms();
  CurrentPlatform().Quit();
}

}  // namespace

// The Duo's form starts the same way on its own set; the program's settings
// are the master's to reset.
void FrmMain::Form_Load() {
  BoreHoleSet& set = SetOf(*this);
  Integer& viewSpan = ViewSpanOf(set);
  if (!set.IsDuo) {
    DepthPrecision = CheckedDigits(mnuDepPrec, DepthPrecision);
    AgePrecision = CheckedDigits(mnuAgePrec, AgePrecision);
    DebugTrace = false;
  }
  Frame5.Enabled = false;

  // The proxy panels' loaded flags are cleared here once the proxy state exists.
  viewSpan = 500;
  if (!set.IsDuo) {
    displayState.ColumnFontSmall = 5;
    displayState.ColumnFontLarge = 6;
  }
  DuoOpen = false;

  for (Menu* menu : {&mnuAge, &mnuDepth, &mnuLFDuo, &mnuAlign, &mnuPhoto}) menu->Enabled = false;
  for (int p = 0; p <= 4; ++p) {
    for (Menu* menu : {&mnuFlipH(p), &mnuLine(p), &mnuMarker(p), &mnuSmooth(p), &mnuFlat3_(p),
                       &mnuFlat5_(p), &mnuCopy(p), &mnuHorizontalN(p), &mnuFilename(p)}) {
      menu->Enabled = false;
    }
  }
  mnuCopyDepth.Enabled = false;
  Combo2.Enabled = false;
  Combo5.Enabled = false;
  Label10.Caption = "";

  for (int p = 0; p <= 4; ++p) {
    Combo3(p).Text = "---";
    Combo4(p).Text = "---";
    Text5(p).Text = "";
    Text6(p).Text = "";
    Check1(p).Visible = false;
    Combo3(p).Visible = false;
    Combo4(p).Visible = false;
    Text5(p).Visible = false;
    Text6(p).Visible = false;
    Command6(p).Enabled = false;
  }

  for (Menu* menu : {&mnuRange, &mnuFont, &mnuTool, &mnuInfo}) menu->Enabled = false;
  mnuCM(500).Checked = true;

  // The first writes must not move a target that does not exist yet.
  set.DrivenBy = 9999;
  Combo1.Text = set.HoleName(1);
  Combo2.Clear();
  Combo2.Text = "01";

  for (int i = 0; i <= 4; ++i) {
    BoreHole(i).ScaleHeight = static_cast<float>(viewSpan);
    BoreHole(i).ScaleWidth = 7.6f;
    Picture1(i).ScaleHeight = static_cast<float>(viewSpan);
  }

  Text2.Text = "---";
  Text1.Text = "0";
  Line1.Visible = true;
  for (int i = 0; i <= 4; ++i) BoreHole(i).Enabled = false;
  set.DrivenBy = 0;

  // The Duo's axis is the master's.
  int axis = 1;
  for (int i : {2, 3}) {
    if (set.IsDuo && frmMain->Option2(i).Value) axis = i;
  }
  Option2(axis).Value = true;
  Option2(0).Enabled = false;
  Option2(1).Enabled = false;
  if (!set.IsDuo) DepthAxis = 1;

  CentreLineY = CInt(BoreHole(0).Top + BoreHole(0).Height / 2);
  Line1.Y1 = static_cast<float>(CentreLineY);
  Line1.Y2 = static_cast<float>(CentreLineY);
  Line2(0).Y1 = static_cast<float>(CentreLineY);

  if (set.IsDuo) {
    frm2Divider.Unload();
  } else {
    frmDivider.Unload();
  }
  DividerOpen = false;

  for (Control* control : std::initializer_list<Control*>{
           &Command3, &Command4, &Command5, &Command7, &Label5, &Option3(0), &Option3(1)}) {
    control->Enabled = false;
  }

  set.EventCount = -9999;
  set.MergedEventCount = -9999;
  EfdEntryActive = false;
  SuppressPopup = false;
  SuspendTrinity = false;

  Height = Frame2.Top + Frame2.Height + 1080;

  // The label offsets of the drawing scale with the form's height against this one.
  if (!set.IsDuo) {
    DesignFormHeight = CInt(Height);
    BaseFormWidth = CInt(Picture1(0).Left + 120);
  }
}

void FrmMain::Form_Activate() {
  if (IsDuo()) {
    frm2Divider.Unload();
  } else {
    frmDivider.Unload();
  }
  DividerOpen = false;
  Refresh();
}

void FrmMain::Form_Click() {
  Cls();
}

// The Duo form's bottom edge, for the alignment of the two forms.
void FrmMain::Form_GotFocus() {
  if (IsDuo() || !frm2Main.IsLoaded()) return;
  FormEdge(2) = frm2Main->Height + frm2Main->Top;
}

void FrmMain::Form_Unload(int& /*cancel*/) {
  EndProgram(*this);
}

void FrmMain::Form_Terminate() {
  EndProgram(*this);
}

void FrmMain::CloseAllForms() {
  const std::initializer_list<FormSlot*> order = {
      &frm2Conversion, &frm2Divider, &frm2Export, &frm2Main,  &frm2Photo,
      &frm2Select,     &frm2Version, &frm3Photo,  &frm4Photo, &frmConversion,
      &frmDivider,     &frmExport,   &frmMain,    &frmPass,   &frmPhoto,
      &frmSelect,      &frmKX11,     &frmTest,    &frmVersion};
  for (FormSlot* form : order) form->Unload();
}

// The cross-hair of the columns must not stay over the boxes.
void FrmMain::Text1_MouseMove() {
  Screen.SetMousePointer(0);
}
void FrmMain::Text2_MouseMove() {
  Screen.SetMousePointer(0);
}
void FrmMain::Text3_MouseMove() {
  Screen.SetMousePointer(0);
}
void FrmMain::Text4_MouseMove() {
  Screen.SetMousePointer(0);
}
void FrmMain::Check1_MouseMove(int /*index*/) {
  Screen.SetMousePointer(0);
}

}  // namespace ostraline
