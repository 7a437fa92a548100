// The span of the core view, the precision menus and the layout that follows
// the form's size. Each ends in a redraw of what depends on it.
#include "display/range_and_layout.h"

#include <string>

#include "core/project_state.h"
#include "display/core_columns.h"
#include "display/display_state.h"
#include "display/mouse_on_columns.h"
#include "display/target_line.h"
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

// Puts the target in the middle of every column and of the scale strip.
void RecentreOnTarget(MainForm& form) {
  std::string text;
  if (!TargetText(form, text)) return;
  const Single top = CSng(Val(text) - static_cast<double>(ViewSpan) / 2);
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

void RedrawColumns() {
  if (LastRow > 0) DrawLamina();
}

}  // namespace

void SetViewSpan(Integer Source, Integer Span) {
  MainForm& form = *frmMain;
  // The Duo's columns take the span here too once the Duo has its own set.
  if (Source != 1 && !form.mnuLink.Checked) return;
  Integer span = Span;
  if (Span == kWholeCore) {
    // The last composite depth rounded up to thousands, with room below.
    const Integer wholeCore = CInt(Round(Val(TieCell(1, LastRow)) / 1000 + 0.5, 0) * 1000);
    span = wholeCore + 500;
  }
  ViewSpan = span;
  for (int i = 0; i <= 5; ++i) form.BoreHole(i).ScaleHeight = static_cast<float>(ViewSpan);
  form.mnuCM.ForEach([](Menu& entry) { entry.Checked = false; });
  form.mnuCM(Span).Checked = true;
  if (Span != kWholeCore) {
    RecentreOnTarget(form);
  } else {
    // A click on the composite column brings the target near the middle of the core.
    MouseDownProcedure(0, 1, 0, 1.0f, static_cast<Single>(ViewSpan) / 2 - 750);
  }
  PanelsFollowColumns(form);
  RedrawColumns();
  ClearTargetLine();
  frmKX11->FollowColumnScale();
}

void FrmMain::mnuCM_Click(int index) {
  SetViewSpan(1, index);
}

void FrmMain::mnuLink_Click() {
  if (mnuLink.Checked) {
    mnuLink.Checked = false;
    return;
  }
  mnuLink.Checked = true;
  // The Duo's range menu follows here once the Duo has one.
  // The entries run from the shortest span up, as the menu lists them.
  int checked = 0;
  mnuCM.ForEach([&checked](Menu& entry) {
    if (checked == 0 && entry.Checked) checked = entry.Index();
  });
  if (checked != 0) SetViewSpan(2, checked);
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
    // The Duo's form takes this height here once it has its columns.
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
    for (int i = 0; i <= 4; ++i) BoreHole(i).ScaleHeight = static_cast<float>(ViewSpan);
    PanelsFollowColumns(*this);

    // The elbow of the target line stays at the middle of the columns.
    CentreLineY = CInt(BoreHole(0).Height / 2 + BoreHole(1).Top);
    Line1.Y1 = static_cast<float>(CentreLineY);
    Line1.Y2 = static_cast<float>(CentreLineY);
    Line2(0).Y1 = static_cast<float>(CentreLineY);

    RedrawColumns();
    BoreHole(5).Visible = BoreHole(5).Left + BoreHole(5).Width <= Width;
    ClearTargetLine();
  } catch (const RuntimeFailure&) {
    // A resize never interrupts the user: the layout stays as far as it got.
  }
}

}  // namespace ostraline
