// frmConversion: the scale the file holds (" From ") decides which scales can
// be written (" To "); the input scale is always written.
#include "core/project_state.h"
#include "events/batch_conversion.h"
#include "events/batch_state.h"
#include "events/event_state.h"
#include "forms/frm2_main.h"
#include "forms/frm_conversion.h"
#include "forms/frm_main.h"
#include "forms/platform.h"

namespace ostraline {

void FrmConversion::Form_Load() {
  // Opened before any data file was read, the form has no input scale.
  if (Option1.Has(InputKind)) Option1(InputKind).Value = true;
  FromKind = InputKind;
  ProgressBar1.Visible = false;
  Screen.SetMousePointer(0);
  if (Left < 15) Left = 15;
  if (Top < 15) Top = 15;
  On_Off_buttons();
}

void FrmConversion::Form_Unload(int& /*cancel*/) {
  const BoreHoleSet& set = SetOf(*this);
  if (!(set.IsDuo ? frm2Main.IsLoaded() : frmMain.IsLoaded())) return;
  MainForm& main = MainFormOf(set);
  for (CommandButton* next : {&main.Command1, &main.Command3, &main.Command4, &main.Command5}) {
    if (next->Enabled && next->Visible) {
      next->SetFocus();
      return;
    }
  }
}

void FrmConversion::On_Off_buttons() {
  const BoreHoleSet& set = SetOf(*this);
  Option1(kScaleTrinity).Enabled = true;
  for (int scale : {kScaleComposite, kScaleEfd, kScaleAge}) Option1(scale).Enabled = false;
  if (FromKind != kScaleTrinity) {
    Option1(kScaleTrinity).Enabled = false;
    Option1(kScaleComposite).Enabled = true;
    Option1(kScaleEfd).Enabled = set.EventListLoaded;
    Option1(kScaleAge).Enabled = set.AgeModelLoaded;
  }
  Label1.Enabled = Option1(kScaleTrinity).Enabled.Get();

  // A position can be written only when it was given; every other scale is
  // ticked, and only the input scale is dark.
  Check1(kScaleTrinity).Enabled = false;
  Check1(kScaleTrinity).Value = FromKind == kScaleTrinity ? 1 : 0;
  for (int scale : {kScaleComposite, kScaleEfd, kScaleAge}) {
    Check1(scale).Enabled = FromKind != scale;
    Check1(scale).Value = 1;
  }
  if (!set.EventListLoaded) {
    Check1(kScaleEfd).Enabled = false;
    Check1(kScaleEfd).Value = 0;
  }
  if (!set.AgeModelLoaded) {
    Check1(kScaleAge).Enabled = false;
    Check1(kScaleAge).Value = 0;
  }
  Label2.Enabled = Check1(kScaleTrinity).Enabled.Get();
}

void FrmConversion::Option1_Click(int index) {
  FromKind = index;
  On_Off_buttons();
}

int TickedScales(const FrmConversion& form) {
  int sum = 0;
  form.Check1.ForEach([&sum](const CheckBox& box) {
    if (box.Value == 1) sum += box.Index();
  });
  return sum;
}

int ChosenScale(const FrmConversion& form) {
  int chosen = 0;
  form.Option1.ForEach([&chosen](const OptionButton& option) {
    if (option.Value) chosen += option.Index();
  });
  return chosen;
}

void FrmConversion::Check1_Click(int /*index*/) {
  ToMask = TickedScales(*this);
  Command1.SetFocus();
}

}  // namespace ostraline
