// The controls under each proxy panel: the plotted column, the ratio and its
// denominator, and the two limits of the horizontal axis.
#include "core/project_state.h"
#include "forms/frm_main.h"
#include "proxies/proxy_panel.h"
#include "proxies/proxy_records.h"

namespace ostraline {
namespace {

// Another column: the limits are emptied so that they fit it.
void RefitPanel(MainForm& form, int p) {
  form.Text5(p).Text = "";
  form.Text6(p).Text = "";
  DrawPanel(form, p);
  if (form.Text2.Enabled) form.Text2.SetFocus();
}

void LimitChanged(MainForm& form, int p) {
  PictureBox& panel = form.Picture1(p);
  if (!ProxyAxisEventsOn) {
    panel.Cls();
    return;
  }
  if (!ProxiesOf(SetOf(form)).ProxyLoaded(p)) return;
  // Equal limits would give the axis no width.
  if (form.Text5(p).Text.Get() == form.Text6(p).Text.Get()) {
    panel.Cls();
    return;
  }
  DrawPanel(form, p);
}

}  // namespace

void FrmMain::Combo3_Click(int p) {
  RefitPanel(*this, p);
}

void FrmMain::Combo4_Click(int p) {
  RefitPanel(*this, p);
}

// The box moves by 300 form units expressed in the panel's vertical scale,
// making room for the denominator's list.
void FrmMain::Check1_Click(int p) {
  const float shift = Picture1(p).ScaleHeight / Picture1(p).Height * 300;
  if (Check1(p).Value == 1) {
    Check1(p).Top = Check1(p).Top + shift;
    Combo4(p).Visible = true;
  } else {
    Check1(p).Top = Check1(p).Top - shift;
    Combo4(p).Visible = false;
  }
  RefitPanel(*this, p);
}

void FrmMain::Text5_Change(int p) {
  LimitChanged(*this, p);
}

void FrmMain::Text6_Change(int p) {
  LimitChanged(*this, p);
}

}  // namespace ostraline
