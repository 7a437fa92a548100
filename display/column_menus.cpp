// The menu entries that decide what the core view shows. Each flips its
// setting and then redraws what depends on it.
#include "core/project_state.h"
#include "display/core_columns.h"
#include "display/display_state.h"
#include "display/scale_strip.h"
#include "display/target_line.h"
#include "forms/frm2_main.h"
#include "forms/frm_main.h"
#include "forms/platform.h"

namespace ostraline {
namespace {

void RedrawColumns(MainForm& form) {
  BoreHoleSet& set = SetOf(form);
  if (set.LastRow > 0) DrawLamina(set);
}

void Toggle(Menu& entry) {
  entry.Checked = !entry.Checked;
}

// The pointer's line on the columns and on every panel is one setting.
void ToggleHorizontalLine(MainForm& form) {
  const bool shown = !form.mnuHorizontal.Checked;
  form.mnuHorizontal.Checked = shown;
  for (int p = 0; p <= 4; ++p) form.mnuHorizontalN(p).Checked = shown;
  ClearTargetLine(SetOf(form));
}

void ShowStripScale(MainForm& form, Menu& chosen, Menu& other) {
  chosen.Checked = true;
  other.Checked = false;
  form.BoreHole(5).Cls();
  DrawBH5(SetOf(form));
  form.BoreHole(5).CommitImage();
}

}  // namespace

void FrmMain::mnuShowTiePoints_Click() {
  Toggle(mnuShowTiePoints);
  RedrawColumns(*this);
}

void FrmMain::mnuShowLabCodes_Click() {
  Toggle(mnuShowLabCodes);
  RedrawColumns(*this);
}

void FrmMain::mnuHorizontal_Click() {
  ToggleHorizontalLine(*this);
}

void FrmMain::mnuHorizontalN_Click(int /*panel*/) {
  ToggleHorizontalLine(*this);
}

// The fixed horizon is its own setting, not a seventh switch of the pointer's
// line: the columns and the strip draw it from this check mark alone, and
// were the click to flip the pointer's line instead, nothing could ever turn
// the horizon on or off. It is part of the committed picture, not of the
// overlay, so it redraws the columns.
void FrmMain::mnuHorizontalBH_Click() {
  Toggle(mnuHorizontalBH);
  RedrawColumns(*this);
}

void FrmMain::mnuDepth_Click() {
  ShowStripScale(*this, mnuDepth, mnuAge);
}

void FrmMain::mnuAge_Click() {
  ShowStripScale(*this, mnuAge, mnuDepth);
}

// Size 1 ("---") means no labels at all; the column captions then take size
// 2, on both main forms.
void FrmMain::mnuSize_Click(int index) {
  LabelFontSize = index;
  mnuSize.ForEach([](Menu& entry) { entry.Checked = false; });
  mnuSize(index).Checked = true;
  RedrawColumns(*this);
  for (FormSlot* slot : {static_cast<FormSlot*>(&frmMain), static_cast<FormSlot*>(&frm2Main)}) {
    if (!slot->IsLoaded()) continue;
    MainForm& form = static_cast<MainForm&>(slot->GetForm());
    for (int i = 0; i <= 4; ++i) form.Label1(i).FontSize = static_cast<float>(index + 1);
  }
}

// The strip goes to the clipboard on white, then back to its own colour.
// The committed picture of a column, without the pointer's overlay.
void FrmMain::mnuCompCopy_Click() {
  CopyToClipboard(BoreHole(0).GetPicture());
}

void FrmMain::mnuCopyCore_Click() {
  CopyToClipboard(BoreHole(CopyHole).GetPicture());
}

void FrmMain::mnuCopyDepth_Click() {
  PictureBox& strip = BoreHole(5);
  const long ownColour = strip.BackColor;
  strip.BackColor = kWhite;
  DrawBH5(SetOf(*this));
  CopyToClipboard(strip.Image());
  strip.BackColor = ownColour;
  DrawBH5(SetOf(*this));
}

}  // namespace ostraline
