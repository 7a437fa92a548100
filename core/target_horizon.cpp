// The target horizon's faces follow one another once and only once: the
// guards DrivenBy and ActionCount decide which handler leads.
#include <cmath>

#include "core/core_bottom.h"
#include "core/depth_conversions.h"
#include "core/hole_lookup.h"
#include "core/project_state.h"
#include "core/trinity_view.h"
#include "display/core_columns.h"
#include "display/display_state.h"
#include "events/event_free_depth.h"
#include "events/event_state.h"
#include "forms/frm_divider.h"
#include "forms/frm_main.h"
#include "forms/platform.h"
#include "runtime/number_text.h"
#include "service/staff_console.h"

namespace ostraline {
namespace {

// Which cores reach the target: a negative PSP lies above the section.
void EnableBoreHoleMenus(MainForm& form, double target) {
  for (int hole = 1; hole <= 4; ++hole) {
    GetPSP(hole, CSng(target));
    form.mnuBH(hole).Enabled = TargetPSP >= 0;
  }
}

// The section name that GetPSP left in the divider's caption.
std::string DividerSectionName() {
  return Mid(frmDivider->Label5.Caption.Get(), 3);
}

}  // namespace

void FrmMain::Text2_Change() {
  try {
    if (DebugTrace) TraceText2Change(*this);
    const double v = Val(Text2.Text);
    if (ActionCount != 9999 && BelowEveryCoreBottom(v)) {
      RefuseBelowCoreBottom(*this);
      return;
    }
    const bool follow = (DrivenBy == 2 || DrivenBy == 9) && !Command1.Enabled;
    if (DrivenBy == 2 || DrivenBy == 9) {
      // The slider shows the whole part of the depth, cut toward zero
      // (1234.6 and -12.7 show 1234 and -12); CLng still refuses a depth
      // beyond its range.
      Slider1.Value = static_cast<long>(CLng(std::trunc(v)));
      std::string centre;
      if (Option2(1).Value) {
        centre = Text2.Text;
      } else if (Option2(2).Value) {
        centre = Text3.Text;
      } else if (Option2(3).Value) {
        centre = Text4.Text;
      }
      for (int i = 0; i <= 4; ++i) {
        if (Option2(1).Value || Option2(2).Value || Option2(3).Value) {
          BoreHole(i).ScaleTop = CSng(Val(centre) - static_cast<double>(ViewSpan) / 2);
        }
        Picture1(i).ScaleTop = BoreHole(i).ScaleTop.Get();
      }
      if (LastRow > 0) DrawLamina();
    }
    if (!follow) {
      EnableBoreHoleMenus(*this, v);
      DrivenBy = 0;
      DisplayAge();
      return;
    }

    if (DrivenBy == 2) {
      for (int hole = 1; hole <= 4; ++hole) {
        GetPSP(hole, CSng(v));
        if (TargetPSP >= 0) {
          Combo1.Text = HoleName(hole);
          Text1.Text = Str(Round(TargetPSP, DepthPrecision));
          break;
        }
      }
    } else {
      HoleKey = Combo1.Text;
      GetPSP(static_cast<int>(AlphaNum(Variant(HoleKey)).ToDouble()), CSng(v));
      Text1.Text = Str(Round(TargetPSP, DepthPrecision));
    }
    Label1(8).Caption = Text2.Text.Get();
    Combo5.Text = DividerSectionName();
    DrivenBy = 0;

    EnableBoreHoleMenus(*this, v);
    for (int hole = 1; hole <= 4; ++hole) {
      if (CSng(v) > CoreBottom(hole)) mnuBH(hole).Enabled = false;
    }
    DisplayAge();
  } catch (const RuntimeFailure&) {
    // A failure ends the handler silently, DrivenBy as it stood.
  }
}

void FrmMain::Text3_Change() {
  const Single depth = EFDToCD(CSng(Val(Text3.Text))).ToSingle();
  if (ActionCount != 9999 && BelowEveryCoreBottom(depth)) {
    RefuseBelowCoreBottom(*this);
    return;
  }
  if (DriveIndex == 4) EfdEntryActive = true;
  if (EfdEntryActive) {
    DrivenBy = 2;
    Text2.Text = EFDToCD(CSng(Val(Text3.Text))).ToText();
    DrivenBy = 0;
    EfdEntryActive = false;
  }
}

void FrmMain::Text1_Change() {
  if (DrivenBy != 0 && DrivenBy != 8) return;
  // The divider sets 8 again itself.
  if (DrivenBy != 8) DrivenBy = 1;
  if (!SuspendTrinity) {
    SearchCoreTop();
    GetCompositDepth();
  }
  DrivenBy = 0;
}

}  // namespace ostraline
