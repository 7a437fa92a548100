// frmSelect: the end of an import whose rows hold one plain position. The
// user says what the number is, and the panel's positions are turned into
// composite depth before the record is drawn.
#include "display/display_state.h"
#include "display/form_view.h"
#include "events/age_lookup.h"
#include "events/event_free_depth.h"
#include "events/event_state.h"
#include "forms/frm_main.h"
#include "forms/frm_select.h"
#include "forms/platform.h"
#include "proxies/proxy_panel.h"
#include "proxies/proxy_records.h"
#include "runtime/number_text.h"

namespace ostraline {
namespace {

// An age in years before 1950 as a composite depth, through its EFD; the
// EFD is kept in single precision on the way.
Single CompositeFromAge(BoreHoleSet& set, Single age) {
  return EFDToCD(set, GetEFDFromAge(set, age).ToSingle()).ToSingle();
}

// The main form takes the user back whichever button closed the dialog.
void ReturnToMainForm(const FrmSelect& select) {
  MainForm& main = MainFormOf(SetOfTwin(select));
  main.Enabled = true;
  main.ProgressBar1.Visible = false;
  main.ProgressBar1.Value = 0;
  if (main.Text2.Enabled) main.Text2.SetFocus();
  Unload(select.Name());
}

}  // namespace

void FrmSelect::Form_Load() {
  Screen.SetMousePointer(0);
  Option1(0).Value = true;
  // Age can only be turned into depth with an age model.
  Option1(1).Enabled = SetOfTwin(*this).AgeModelLoaded;
  Option1(2).Enabled = SetOfTwin(*this).AgeModelLoaded;
  for (int i = 1; i <= 8; ++i) {
    Text1(i).Top = Text1(i - 1).Top + 225;
    Text2(i).Top = Text1(i).Top.Get();
    Text3(i).Top = Text1(i).Top.Get();
  }
}

void FrmSelect::Command1_Click() {
  BoreHoleSet& set = SetOfTwin(*this);
  ProxyRecords& records = ProxiesOf(set);
  MainForm& main = MainFormOf(set);
  const int p = CInt(CDbl(Label1.Caption.Get())).Get();
  PictureBox& panel = main.Picture1(p);
  panel.BackColor = kWhite;

  const Long rows = records.ProxyRowCount(p);
  main.ProgressBar1.Max = static_cast<float>(rows.Get());
  main.ProgressBar1.Visible = true;
  auto& depth = records.ProxyDepth(p);
  for (Long i = 1; i <= rows; ++i) {
    main.ProgressBar1.Value = static_cast<float>(i.Get());
    Single& position = depth(PlotScale, i);
    if (Option1(1).Value) {
      position = CompositeFromAge(set, position);
    } else if (Option1(2).Value) {
      position = CompositeFromAge(set, position * 1000);
    }
  }

  DrawProxy(set, records, p);
  // The two numbers are in the panel's axis units: a tick on a wide axis,
  // a line across a narrow one.
  const double centre = panel.ScaleTop.Get() + ViewSpanOf(set).Get() / 2.0;
  panel.Line(0, static_cast<float>(centre), 7.6f, static_cast<float>(centre), RGB(0, 170, 0));
  panel.Refresh();
  ReturnToMainForm(*this);
}

// The record stays as read: the next redraw of the panel takes the file's
// numbers as depths.
void FrmSelect::Command2_Click() {
  ReturnToMainForm(*this);
}

// The cells are there to be looked at, not edited.
void FrmSelect::Cell_MouseDown() {
  Command1.SetFocus();
}

// A long header field shows in full in the tool tip.
void FrmSelect::Cell_MouseMove(ControlArray<TextBox>& column, int row) {
  if (row == 0) column(0).ToolTipText = column(0).Text.Get();
}

void FrmSelect::Form_MouseMove(int /*button*/, int /*shift*/, float /*x*/, float /*y*/) {
  Screen.SetMousePointer(0);
}

void FrmSelect::Frame1_MouseMove() {
  Screen.SetMousePointer(0);
}

}  // namespace ostraline
