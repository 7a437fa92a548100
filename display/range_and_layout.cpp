// The span of the core view, the precision menus and the layout that follows
// the form's size. Each ends in a redraw of what depends on it.
#include "display/range_and_layout.h"

#include <algorithm>
#include <string>

#include "core/project_state.h"
#include "display/core_columns.h"
#include "display/display_state.h"
#include "display/form_view.h"
#include "display/mouse_on_columns.h"
#include "display/target_line.h"
#include "duo/depth_map.h"
#include "duo/duo_state.h"
#include "forms/frm2_main.h"
#include "forms/frm_kx11.h"
#include "forms/frm_main.h"
#include "runtime/number_text.h"

namespace ostraline {
namespace {

constexpr int kWholeCore = 9999;
constexpr float kMinimisedHeight = 500;
constexpr float kLowestFormHeight = 5700;
// Caption, menu bar and the strip of buttons above the columns.
constexpr float kFormChrome = 1320;
constexpr float kPanelBoxHeight = 285;

// The target's depth text by the input mode; false leaves the view where it is.
bool TargetText(MainForm& form, std::string& text) {
  if (form.Option1(0).Value) {
    text = form.Label1(8).Caption;
    return true;
  }
  if (!form.Option1(1).Value) return false;
  if (form.Option2(1).Value) {
    text = form.Text2.Text;
  } else if (form.Option2(2).Value) {
    text = form.Text3.Text;
  } else if (form.Option2(3).Value) {
    text = form.Text4.Text;
  } else {
    return false;  // the drilling scale has no box of its own
  }
  return true;
}

// Puts the target in the middle of every column and of the scale strip; the
// Duo's columns stand on the master's depth of its target.
void RecentreOnTarget(MainForm& form) {
  std::string text;
  if (!TargetText(form, text)) return;
  const BoreHoleSet& set = SetOf(form);
  const double centre = set.IsDuo ? DuoToMaster(CSng(Val(text))) : Val(text);
  const Single top = CSng(centre - static_cast<double>(ViewSpanOf(set)) / 2);
  for (int i = 0; i <= 5; ++i) form.BoreHole(i).ScaleTop = top;
}

// The proxy panels share the depth window of the composite column.
void PanelsFollowColumns(MainForm& form) {
  const float top = form.BoreHole(0).ScaleTop;
  const float height = form.BoreHole(0).ScaleHeight;
  for (int p = 0; p <= 4; ++p) {
    form.Picture1(p).ScaleTop = top;
    form.Picture1(p).ScaleHeight = height;
  }
}

void RedrawColumns(BoreHoleSet& set) {
  if (set.LastRow > 0) DrawLamina(set);
}

// One block of SetViewSpan, on the set's form with its own span and menu.
void ApplySpan(BoreHoleSet& set, Integer Span) {
  MainForm& form = MainFormOf(set);
  Integer& viewSpan = ViewSpanOf(set);
  Integer span = Span;
  if (Span == kWholeCore) {
    // The last composite depth rounded up to thousands, with room below.
    const Integer wholeCore = CInt(Round(Val(set.TieCell(1, set.LastRow)) / 1000 + 0.5, 0) * 1000);
    span = wholeCore + 500;
  }
  viewSpan = span;
  for (int i = 0; i <= 5; ++i) form.BoreHole(i).ScaleHeight = static_cast<float>(viewSpan);
  form.mnuCM.ForEach([](Menu& entry) { entry.Checked = false; });
  form.mnuCM(Span).Checked = true;
  if (Span != kWholeCore) {
    RecentreOnTarget(form);
  } else {
    // A click on the composite column brings the target near the middle of the core.
    MouseDownProcedure(set, 0, 1, 0, 1.0f, static_cast<Single>(viewSpan) / 2 - 750);
  }
  PanelsFollowColumns(form);
  RedrawColumns(set);
  ClearTargetLine(set);
  if (!set.IsDuo) frmKX11->FollowColumnScale();
}

}  // namespace

void SetViewSpan(Integer Source, Integer Span) {
  const bool linked = frmMain->mnuLink.Checked;
  if (Source == 1 || linked) ApplySpan(masterSet, Span);
  if ((Source == 2 || linked) && frm2Main.IsLoaded()) ApplySpan(duoSet, Span);
}

void FrmMain::mnuCM_Click(int index) {
  SetViewSpan(IsDuo() ? 2 : 1, index);
}

// The link couples the ranges of the two forms; either form's entry sets it
// on both.
void FrmMain::mnuLink_Click() {
  MainForm& master = *frmMain;
  const bool linked = master.mnuLink.Checked;
  master.mnuLink.Checked = !linked;
  if (frm2Main.IsLoaded()) frm2Main->mnuLink.Checked = !linked;
  if (linked) return;
  if (frm2Main.IsLoaded()) frm2Main->mnuCM.ForEach([](Menu& entry) { entry.Checked = false; });
  // The entries run from the shortest span up, as the menu lists them.
  int checked = 0;
  master.mnuCM.ForEach([&checked](Menu& entry) {
    if (checked == 0 && entry.Checked) checked = entry.Index();
  });
  if (checked == 0) return;
  SetViewSpan(2, checked);
  if (frm2Main.IsLoaded()) frm2Main->mnuCM(checked).Checked = true;
}

void FrmMain::mnuDepPrec_Click(int index) {
  mnuDepPrec.ForEach([](Menu& entry) { entry.Checked = false; });
  mnuDepPrec(index).Checked = true;
  DepthPrecision = index;
}

void FrmMain::mnuAgePrec_Click(int index) {
  mnuAgePrec.ForEach([](Menu& entry) { entry.Checked = false; });
  mnuAgePrec(index).Checked = true;
  AgePrecision = index;
}

void FrmMain::Form_Resize() {
  try {
    if (Height < kMinimisedHeight) return;
    BoreHoleSet& set = SetOf(*this);
    // The Duo's form keeps the master's height, and its top where the
    // pointer left the master's form at its top.
    if (!set.IsDuo && frm2Main.IsLoaded() && frm2Main->Height >= 360) {
      Frm2Main& duo = *frm2Main;
      duo.Height = Height.Get();
      if (FormEdge(0) < 500) duo.Top = std::max(0.0f, FormEdge(2) - duo.Height);
    }
    if (Height < kLowestFormHeight) Height = kLowestFormHeight;

    for (int i = 0; i <= 5; ++i) BoreHole(i).Height = Height - kFormChrome;
    const float columnHeight = BoreHole(0).Height;
    Slider1.Height = columnHeight + 240;
    for (int p = 0; p <= 4; ++p) {
      PictureBox& panel = Picture1(p);
      panel.Height = columnHeight;
      const float panelBottom = panel.Top + panel.Height;
      for (TextBox* box : {&Text5(p), &Text6(p)}) {
        box->Height = kPanelBoxHeight;
        box->Top = panelBottom - kPanelBoxHeight;
      }
    }

    RecentreOnTarget(*this);
    for (int i = 0; i <= 4; ++i) BoreHole(i).ScaleHeight = static_cast<float>(ViewSpanOf(set));
    PanelsFollowColumns(*this);

    // The elbow of the target line stays at the middle of the columns.
    CentreLineY = CInt(BoreHole(0).Height / 2 + BoreHole(1).Top);
    Line1.Y1 = static_cast<float>(CentreLineY);
    Line1.Y2 = static_cast<float>(CentreLineY);
    Line2(0).Y1 = static_cast<float>(CentreLineY);

    RedrawColumns(set);
    BoreHole(5).Visible = BoreHole(5).Left + BoreHole(5).Width <= Width;
    ClearTargetLines();
  } catch (const RuntimeFailure&) {
    // A resize never interrupts the user: the layout stays as far as it got.
  }
}

}  // namespace ostraline
