// The context menu of a proxy panel: what the panel draws, the copy of its
// picture, and the export dialog.
#include <string>

#include "forms/frm2_export.h"
#include "forms/frm2_main.h"
#include "forms/frm_export.h"
#include "forms/frm_main.h"
#include "forms/platform.h"
#include "proxies/proxy_panel.h"
#include "runtime/number_text.h"

namespace ostraline {
namespace {

void Toggle(Menu& entry) {
  entry.Checked = !entry.Checked;
}

// At most one overlay stands on a panel: checking one entry clears the others.
void ChooseSmoothing(MainForm& form, Menu& chosen, int p) {
  if (chosen.Checked) {
    chosen.Checked = false;
  } else {
    for (Menu* entry :
         {&form.mnuFlat3_(p), &form.mnuFlat5_(p), &form.mnuFlat11_(p), &form.mnuFlat208_(p)}) {
      entry->Checked = false;
    }
    chosen.Checked = true;
  }
  DrawPanel(form, p);
}

}  // namespace

void FrmMain::mnuFlat3__Click(int p) {
  ChooseSmoothing(*this, mnuFlat3_(p), p);
}

void FrmMain::mnuFlat5__Click(int p) {
  ChooseSmoothing(*this, mnuFlat5_(p), p);
}

void FrmMain::mnuFlat11__Click(int p) {
  ChooseSmoothing(*this, mnuFlat11_(p), p);
}

void FrmMain::mnuFlat208__Click(int p) {
  ChooseSmoothing(*this, mnuFlat208_(p), p);
}

// Each write runs the limit's Change handler, so the panel may be drawn
// in between, on the way to the swapped axis.
void FrmMain::mnuFlipH_Click(int p) {
  const std::string left = Text5(p).Text.Get();
  Text5(p).Text = Text6(p).Text.Get();
  Text6(p).Text = left;
  DrawPanel(*this, p);
}

void FrmMain::mnuLine_Click(int p) {
  Toggle(mnuLine(p));
  DrawPanel(*this, p);
}

void FrmMain::mnuMarker_Click(int p) {
  Toggle(mnuMarker(p));
  DrawPanel(*this, p);
}

// Nothing reads this mark; the redraw gives the same picture.
void FrmMain::mnuMulti_0_Click() {
  Toggle(mnuMulti_0);
  DrawPanel(*this, 0);
}

// The committed picture: curve, overlay and background, not the target line.
void FrmMain::mnuCopy_Click(int p) {
  CopyToClipboard(Picture1(p).GetPicture());
}

// Takes effect at the next pointer move over the panel.
void FrmMain::mnuFilename_Click(int p) {
  Toggle(mnuFilename(p));
}

// The dialog, the master's or the Duo's, gives both main forms back when it
// closes. A Duo form that is not loaded starts enabled; touching it here
// would load it.
void FrmMain::mnuExport__Click(int p) {
  FrmExport& dialog = IsDuo() ? static_cast<FrmExport&>(*frm2Export) : *frmExport;
  dialog.Label1.Caption = Str(p);
  dialog.Show();
  Enabled = false;
  if (frm2Main.IsLoaded()) frm2Main->Enabled = false;
  Screen.SetMousePointer(0);
}

}  // namespace ostraline
