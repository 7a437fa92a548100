// The user's entries: each resets the synchronisation guard, records which
// box leads, and saves the texts to go back to.
#include "core/entry_focus.h"

#include "core/project_state.h"
#include "events/event_state.h"
#include "forms/frm_main.h"
#include "runtime/number_text.h"

namespace ostraline {

void PointLine2At(MainForm& form, const TextBox& box) {
  const float y = box.Top + 120;
  form.Line2(0).Y2 = y;
  form.Line2(1).Y1 = y;
  form.Line2(1).Y2 = y;
}

void SaveTargetTexts(MainForm& form, bool alwaysEfd) {
  BoreHoleSet& set = SetOf(form);
  set.SavedText2 = form.Text2.Text;
  if (alwaysEfd || set.EventListLoaded) set.SavedText3 = form.Text3.Text;
  if (set.AgeModelLoaded) set.SavedText4 = form.Text4.Text;
}

void FrmMain::Text1_GotFocus() {
  BoreHoleSet& set = SetOf(*this);
  set.DriveIndex = 1;
  PointLine2At(*this, Text1);
}

void FrmMain::Text2_GotFocus() {
  BoreHoleSet& set = SetOf(*this);
  SaveTargetTexts(*this, false);
  set.DriveIndex = 2;
  PointLine2At(*this, Text2);
}

void FrmMain::Text3_GotFocus() {
  BoreHoleSet& set = SetOf(*this);
  SaveTargetTexts(*this, true);
  set.DriveIndex = 3;
  PointLine2At(*this, Text3);
}

void FrmMain::Text1_KeyPress(int&) {
  ActionCount = 0;
}

void FrmMain::Text2_KeyDown(int&, int) {
  BoreHoleSet& set = SetOf(*this);
  ActionCount = 0;
  set.DrivenBy = 2;
}

void FrmMain::Text3_KeyDown(int&, int) {
  EfdEntryActive = true;
}

void FrmMain::Text3_KeyPress(int&) {
  ActionCount = 0;
  EfdEntryActive = true;
}

void FrmMain::Text3_MouseDown() {
  EfdEntryActive = true;
}

void FrmMain::Text4_KeyPress(int&) {
  ActionCount = 0;
}

void FrmMain::Slider1_Scroll() {
  BoreHoleSet& set = SetOf(*this);
  set.DrivenBy = 2;
  ActionCount = 0;
  Text2.Text = Str(static_cast<long long>(Slider1.Value.Get()));
  // Moving the slider switches to the composite scale.
  Option1(1).Value = true;
  Option2(1).Value = true;
  set.DrivenBy = 0;
  set.DriveIndex = 6;
}

}  // namespace ostraline
