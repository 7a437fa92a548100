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
#include "display/form_view.h"
#include "duo/depth_map.h"
#include "duo/duo_state.h"
#include "events/age_lookup.h"
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
void EnableBoreHoleMenus(BoreHoleSet& set, MainForm& form, double target) {
  for (int hole = 1; hole <= 4; ++hole) {
    GetPSP(set, hole, CSng(target));
    form.mnuBH(hole).Enabled = TargetPSP >= 0;
  }
}

// The section name that GetPSP left in the divider's caption.
std::string DividerSectionName(const BoreHoleSet& set) {
  return Mid(DividerOf(set).Label5.Caption.Get(), 3);
}

// The Duo's bottom test reads the master's cores on the Duo's scale beside
// its own; the master's reads the Duo's cores too while the Duo is open.
bool BelowEveryCore(const BoreHoleSet& set, double v) {
  if (set.IsDuo) {
    for (int hole = 1; hole <= 4; ++hole) {
      if (!(v > MasterToDuo(CoreBottom(hole)))) return false;
    }
    return BelowEveryCoreBottom(duoSet, v);
  }
  return BelowEveryCoreBottom(masterSet, v) && (!DuoOpen || BelowEveryCoreBottom(duoSet, v));
}

// The Duo's columns stand on the master's depth whichever box drives: the
// view's centre is mapped to the master's scale.
double ViewCentre(const BoreHoleSet& set, const std::string& text) {
  if (!set.IsDuo) return Val(text);
  return DuoToMaster(CSng(Val(text)));
}

// A user's entry crosses to the other form once: the change that lands
// there finds ActionCount 1 and goes no further.
void CrossToTheOtherForm(const BoreHoleSet& set, double v) {
  if (!DuoOpen || ActionCount != 0) return;
  BoreHoleSet& other = set.IsDuo ? masterSet : duoSet;
  MainForm& form = MainFormOf(other);
  other.DrivenBy = 2;
  ActionCount = 1;
  form.Text2.Text = Str(set.IsDuo ? DuoToMaster(CSng(v)) : MasterToDuo(CSng(v)));
  other.DrivenBy = 0;
}

}  // namespace

void CrossToDuo(double v) {
  CrossToTheOtherForm(masterSet, v);
}

void FrmMain::Text2_Change() {
  BoreHoleSet& set = SetOf(*this);
  // The view follows the master's axis on both forms.
  const ControlArray<OptionButton>& axis = frmMain->Option2;
  try {
    if (DebugTrace && !set.IsDuo) TraceText2Change(*this);
    const double v = Val(Text2.Text);
    if (ActionCount != 9999 && BelowEveryCore(set, v)) {
      RefuseBelowCoreBottom(set, *this);
      return;
    }
    const bool follow = (set.DrivenBy == 2 || set.DrivenBy == 9) && !Command1.Enabled;
    if (set.DrivenBy == 2 || set.DrivenBy == 9) {
      // The slider shows the whole part of the depth, cut toward zero
      // (1234.6 and -12.7 show 1234 and -12); CLng still refuses a depth
      // beyond its range.
      Slider1.Value = static_cast<long>(CLng(std::trunc(v)));
      std::string centre;
      if (axis(1).Value) {
        centre = Text2.Text;
      } else if (axis(2).Value) {
        centre = Text3.Text;
      } else if (axis(3).Value) {
        centre = Text4.Text;
      }
      for (int i = 0; i <= 4; ++i) {
        if (axis(1).Value || axis(2).Value || axis(3).Value) {
          BoreHole(i).ScaleTop =
              CSng(ViewCentre(set, centre) - static_cast<double>(ViewSpanOf(set)) / 2);
        }
        Picture1(i).ScaleTop = BoreHole(i).ScaleTop.Get();
      }
      if (set.LastRow > 0) DrawLamina(set);
    }
    if (!follow) {
      EnableBoreHoleMenus(set, *this, v);
      set.DrivenBy = 0;
      ostraline::DisplayAge(set, *this);
      CrossToTheOtherForm(set, v);
      return;
    }

    if (set.DrivenBy == 2) {
      for (int hole = 1; hole <= 4; ++hole) {
        GetPSP(set, hole, CSng(v));
        if (TargetPSP >= 0) {
          Combo1.Text = set.HoleName(hole);
          Text1.Text = Str(Round(TargetPSP, DepthPrecision));
          break;
        }
      }
    } else {
      HoleKey = Combo1.Text;
      GetPSP(set, static_cast<int>(AlphaNum(set, Variant(HoleKey)).ToDouble()), CSng(v));
      Text1.Text = Str(Round(TargetPSP, DepthPrecision));
    }
    Label1(8).Caption = Text2.Text.Get();
    Combo5.Text = DividerSectionName(set);
    // A word that nothing else compares: the Duo clears the section with it.
    if (set.IsDuo && Combo5.Text.Get() == "bel5") {
      Combo5.Text = "---";
      Text1.Text = "---";
    }
    set.DrivenBy = 0;

    EnableBoreHoleMenus(set, *this, v);
    for (int hole = 1; hole <= 4; ++hole) {
      if (CSng(v) > set.CoreBottom(hole)) mnuBH(hole).Enabled = false;
    }
    ostraline::DisplayAge(set, *this);
    CrossToTheOtherForm(set, v);
  } catch (const RuntimeFailure&) {
    // A failure ends the handler silently, DrivenBy as it stood.
  }
}

void FrmMain::Text3_Change() {
  BoreHoleSet& set = SetOf(*this);
  const Single depth = EFDToCD(set, CSng(Val(Text3.Text))).ToSingle();
  if (ActionCount != 9999 && BelowEveryCore(set, depth)) {
    RefuseBelowCoreBottom(set, *this);
    return;
  }
  if (set.DriveIndex == 4) EfdEntryActive = true;
  if (EfdEntryActive) {
    set.DrivenBy = 2;
    Text2.Text = EFDToCD(set, CSng(Val(Text3.Text))).ToText();
    set.DrivenBy = 0;
    EfdEntryActive = false;
  }
}

void FrmMain::Text1_Change() {
  BoreHoleSet& set = SetOf(*this);
  if (set.DrivenBy != 0 && set.DrivenBy != 8) return;
  // The divider sets 8 again itself.
  if (set.DrivenBy != 8) set.DrivenBy = 1;
  if (!SuspendTrinity) {
    SearchCoreTop(set);
    GetCompositDepth(set);
  }
  set.DrivenBy = 0;
}

}  // namespace ostraline
