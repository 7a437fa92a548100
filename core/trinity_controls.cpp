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
  HoleKey = GetBH(form.Combo1.Text).ToText();
  const long hole = static_cast<long>(Val(HoleKey));
  for (I = 1; I <= SectionCount(hole); ++I) {
    if (form.Combo5.Text == SectionName(hole, I)) {
      if (userPick) {
        ActionCount = 0;
        DrivenBy = 0;
      }
      form.Combo2.Text = Str(I);
      return;
    }
  }
}

std::string SectionNameOfCombos(MainForm& form) {
  return SectionName(static_cast<long>(GetBH(form.Combo1.Text).ToDouble()),
                     static_cast<long>(Val(form.Combo2.Text)));
}

void SectionPicked(MainForm& form, bool userPick) {
  if (DrivenBy != 0) return;
  if (userPick) ActionCount = 0;
  DrivenBy = 1;
  form.Text1.Text = "0";
  form.Text2.Text = "";
  if (LastRow > 1) {
    SearchCoreTop();
    GetCompositDepth();
  }
  DrivenBy = 0;
  if (userPick) {
    PointLine2At(form, form.Text1);
    DriveIndex = 1;
  }
  form.Combo5.Text = SectionNameOfCombos(form);
}

}  // namespace

void FrmMain::BoreHoleChange() {
  const int hole = static_cast<int>(AlphaNum(Variant(Combo1.Text.Get())).ToDouble());
  const std::string keptOrdinal = Combo2.Text;
  const std::string keptName = Combo5.Text;
  Combo2.Clear();
  Combo5.Clear();
  for (I = 1; I <= SectionCount(hole); ++I) {
    Combo2.AddItem(Str(I));
    Combo5.AddItem(SectionName(hole, I));
  }
  if (!(Val(keptOrdinal) > SectionCount(hole))) {
    Combo2.Text = keptOrdinal;
    Combo5.Text = keptName;
  } else {
    Combo2.Text = Str(SectionCount(hole));
    Combo5.Text = SectionName(hole, SectionCount(hole));
  }
  if (SuspendTrinity) return;
  Text1.Text = "0";
  Text2.Text = "";
  if (LastRow > 1) {
    GetPSP(hole, BoreHole(1).ScaleTop + BoreHole(1).ScaleHeight / 2);
    DrivenBy = 9999;
    Combo5.Text = Mid(frmDivider->Label5.Caption.Get(), 3);
    Text1.Text = Str(TargetPSP);
    const Integer keptCount = ActionCount;
    if (Text1.Text != "n/a") {
      ActionCount = 9999;
      GetCompositDepth();
      ActionCount = keptCount;
    }
  }
}

void FrmMain::Combo1_Change() {
  if (DrivenBy != 0) return;
  DrivenBy = 1;
  for (int hole = 1; hole <= 4; ++hole) {
    if (HoleName(hole) == Combo1.Text) BoreHoleChange();
  }
  DrivenBy = 0;
}

void FrmMain::Combo1_Click() {
  DrivenBy = 1;
  for (int hole = 1; hole <= 4; ++hole) {
    if (HoleName(hole) == Combo1.Text) BoreHoleChange();
  }
  DriveIndex = 1;
  PointLine2At(*this, Text1);
  DrivenBy = 0;
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
