#include "core/core_bottom.h"

#include "forms/main_form.h"
#include "forms/platform.h"

namespace ostraline {

bool BelowEveryCoreBottom(const BoreHoleSet& set, double depth) {
  for (int hole = 1; hole <= 4; ++hole) {
    if (!(depth > set.CoreBottom(hole))) return false;
  }
  return true;
}

void RefuseBelowCoreBottom(BoreHoleSet& set, MainForm& form) {
  MsgBox("Requested horizon is below core bottom.", MsgButtons::Ok, "Error", MsgIcon::Exclamation);
  form.Text2.Text = set.SavedText2;
  if (set.EventListLoaded) form.Text3.Text = set.SavedText3;
  if (set.AgeModelLoaded) form.Text4.Text = set.SavedText4;
}

}  // namespace ostraline
