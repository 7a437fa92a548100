// The end of the correlation model's import: the form fills its lists,
// opens its controls and takes up its first target horizon.
#include "core/correlation_model.h"
#include "core/depth_conversions.h"
#include "core/project_state.h"
#include "forms/frm_kx11.h"
#include "forms/frm_main.h"
#include "forms/platform.h"
#include "runtime/number_text.h"

namespace ostraline {

void OpenFormForWork(BoreHoleSet& set, MainForm& form) {
  for (int i = 1; i <= set.SectionCount(1); ++i) {
    form.Combo2.AddItem(Right("00" + Str(i), 2));
    form.Combo5.AddItem(set.SectionName(1, i));
  }

  for (int i = 0; i <= 4; ++i) form.BoreHole(i).BackColor = kWhite;
  for (int i = 0; i <= 5; ++i) form.BoreHole(i).Enabled = true;
  form.Label11.Enabled = true;
  for (int i = 0; i <= 2; ++i) form.Option1(i).Enabled = true;
  form.Option2(0).Enabled = true;
  form.Option2(1).Enabled = true;
  form.Option1(0).Value = true;
  form.Combo1.Enabled = true;
  form.Combo2.Enabled = true;
  form.Combo5.Enabled = true;
  form.Text1.Enabled = true;
  form.Text2.Enabled = true;
  form.Frame5.Enabled = true;
  for (int i = 5; i <= 8; ++i) form.Label1(i).Enabled = true;
  form.Label1(11).Enabled = true;
  form.Label2.Enabled = true;
  for (int p = 0; p <= 4; ++p) form.Command6(p).Enabled = true;
  form.Command7.Enabled = true;
  // A model is read once per run.
  form.Command1.Enabled = false;
  form.Command2.Enabled = true;
  form.Command3.Enabled = true;
  form.Command3.SetFocus();
  for (Menu* menu :
       {&form.mnuRange, &form.mnuFont, &form.mnuTool, &form.mnuInfo, &form.mnuPrecision}) {
    menu->Enabled = true;
  }

  set.DrivenBy = 2;
  ActionCount = 0;
  form.Text2.Text = "240";
  set.DrivenBy = 0;

  for (int hole = 1; hole <= 4; ++hole) {
    GetPSP(set, hole, CSng(Val(form.Text2.Text)));
    form.mnuBH(hole).Enabled = TargetPSP >= 0;
  }
  for (int hole = 1; hole <= 4; ++hole) {
    if (CSng(Val(form.Text2.Text)) > set.CoreBottom(hole)) form.mnuBH(hole).Enabled = false;
  }

  form.Combo1.Text = set.HoleName(1);
  form.Combo1.AddItem(set.HoleName(1));
  for (int hole = 2; hole <= 4; ++hole) {
    if (set.CoreBottom(hole) != 9999) form.Combo1.AddItem(set.HoleName(hole));
  }
  form.mnuCopyDepth.Enabled = true;

  // The correlation assist's ruler, from the master's columns as they stand now.
  if (!set.IsDuo) frmKX11->FollowColumnScale();

  form.ProgressBar1.Value = 0;
  form.ProgressBar1.Visible = false;
  Screen.SetMousePointer(0);
}

}  // namespace ostraline
