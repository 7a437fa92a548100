// The Holy trinity's own controls: the bore hole, the section by ordinal or
// by name. Each leads only when DrivenBy finds the form idle.
#include "core/depth_conversions.h"
#include "core/entry_focus.h"
#include "core/hole_lookup.h"
#include "core/project_state.h"
#include "core/trinity_view.h"
#include "forms/frm_divider.h"
#include "forms/frm_main.h"
#include "runtime/number_text.h"

namespace ostraline {
namespace {

// The section's ordinal as digits, to the ordinal box.
void SelectSectionByName(MainForm& form, bool userPick) {
  BoreHoleSet& set = SetOf(form);
  HoleKey = GetBH(set, form.Combo1.Text).ToText();
  const long hole = static_cast<long>(Val(HoleKey));
  for (I = 1; I <= set.SectionCount(hole); ++I) {
    if (form.Combo5.Text == set.SectionName(hole, I)) {
      if (userPick) {
        ActionCount = 0;
        set.DrivenBy = 0;
      }
      form.Combo2.Text = Str(I);
      return;
    }
  }
}

std::string SectionNameOfCombos(MainForm& form) {
  BoreHoleSet& set = SetOf(form);
  return set.SectionName(static_cast<long>(GetBH(set, form.Combo1.Text).ToDouble()),
                         static_cast<long>(Val(form.Combo2.Text)));
}

void SectionPicked(MainForm& form, bool userPick) {
  BoreHoleSet& set = SetOf(form);
  if (set.DrivenBy != 0) return;
  if (userPick) ActionCount = 0;
  set.DrivenBy = 1;
  form.Text1.Text = "0";
  form.Text2.Text = "";
  if (set.LastRow > 1) {
    SearchCoreTop(set);
    GetCompositDepth(set);
  }
  set.DrivenBy = 0;
  if (userPick) {
    PointLine2At(form, form.Text1);
    set.DriveIndex = 1;
  }
  form.Combo5.Text = SectionNameOfCombos(form);
}

}  // namespace

void FrmMain::BoreHoleChange() {
  BoreHoleSet& set = SetOf(*this);
  const int hole = static_cast<int>(AlphaNum(set, Variant(Combo1.Text.Get())).ToDouble());
  const std::string keptOrdinal = Combo2.Text;
  const std::string keptName = Combo5.Text;
  Combo2.Clear();
  Combo5.Clear();
  for (I = 1; I <= set.SectionCount(hole); ++I) {
    Combo2.AddItem(Str(I));
    Combo5.AddItem(set.SectionName(hole, I));
  }
  if (!(Val(keptOrdinal) > set.SectionCount(hole))) {
    Combo2.Text = keptOrdinal;
    Combo5.Text = keptName;
  } else {
    Combo2.Text = Str(set.SectionCount(hole));
    Combo5.Text = set.SectionName(hole, set.SectionCount(hole));
  }
  if (SuspendTrinity) return;
  Text1.Text = "0";
  Text2.Text = "";
  if (set.LastRow > 1) {
    GetPSP(set, hole, BoreHole(1).ScaleTop + BoreHole(1).ScaleHeight / 2);
    set.DrivenBy = 9999;
    Combo5.Text = Mid(DividerOf(set).Label5.Caption.Get(), 3);
    Text1.Text = Str(TargetPSP);
    const Integer keptCount = ActionCount;
    if (Text1.Text != "n/a") {
      ActionCount = 9999;
      GetCompositDepth(set);
      ActionCount = keptCount;
    }
  }
}

void FrmMain::Combo1_Change() {
  BoreHoleSet& set = SetOf(*this);
  if (set.DrivenBy != 0) return;
  set.DrivenBy = 1;
  for (int hole = 1; hole <= 4; ++hole) {
    if (set.HoleName(hole) == Combo1.Text) BoreHoleChange();
  }
  set.DrivenBy = 0;
}

void FrmMain::Combo1_Click() {
  BoreHoleSet& set = SetOf(*this);
  set.DrivenBy = 1;
  for (int hole = 1; hole <= 4; ++hole) {
    if (set.HoleName(hole) == Combo1.Text) BoreHoleChange();
  }
  set.DriveIndex = 1;
  PointLine2At(*this, Text1);
  set.DrivenBy = 0;
  Combo5.Text = SectionNameOfCombos(*this);
}

void FrmMain::Combo2_Change() {
  SectionPicked(*this, false);
}
void FrmMain::Combo2_Click() {
  SectionPicked(*this, true);
}
void FrmMain::Combo5_Change() {
  SelectSectionByName(*this, false);
}
void FrmMain::Combo5_Click() {
  SelectSectionByName(*this, true);
}

}  // namespace ostraline
