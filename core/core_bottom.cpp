#include "core/core_bottom.h"

#include "core/project_state.h"
#include "events/event_state.h"
#include "forms/frm_main.h"
#include "forms/platform.h"

namespace ostraline {

bool BelowEveryCoreBottom(double depth) {
  for (int hole = 1; hole <= 4; ++hole) {
    if (!(depth > CoreBottom(hole))) return false;
  }
  return true;
}

void RefuseBelowCoreBottom(MainForm& form) {
  MsgBox("Requested horizon is below core bottom.", MsgButtons::Ok, "Error", MsgIcon::Exclamation);
  form.Text2.Text = SavedText2;
  if (EventListLoaded) form.Text3.Text = SavedText3;
  if (AgeModelLoaded) form.Text4.Text = SavedText4;
}

}  // namespace ostraline
