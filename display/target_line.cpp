#include "display/target_line.h"

#include "core/project_state.h"
#include "display/display_state.h"
#include "display/form_view.h"
#include "duo/depth_map.h"
#include "duo/duo_state.h"
#include "forms/frm2_main.h"
#include "forms/frm_main.h"
#include "forms/platform.h"
#include "proxies/proxy_records.h"

namespace ostraline {
namespace {

constexpr long kOrange = RGB(255, 150, 0);
constexpr long kGreen = RGB(0, 170, 0);

void LineAcross(PictureBox& surface, Single y) {
  surface.Cls();
  surface.Line(surface.ScaleLeft, y, surface.ScaleLeft + surface.ScaleWidth, y, kOrange);
  surface.Refresh();
}

// A loaded panel keeps the target marked under the pointer's line.
void MarkTarget(PictureBox& panel) {
  const float y = panel.ScaleTop + static_cast<float>(ViewSpanOf(panel)) / 2;
  panel.Line(panel.ScaleLeft, y, panel.ScaleLeft + panel.ScaleWidth, y, kGreen);
}

void Overlay(MainForm& form, const ProxyRecords& records, Single y) {
  for (int i = 0; i <= 4; ++i) {
    LineAcross(form.BoreHole(i), y);
    PictureBox& panel = form.Picture1(i);
    panel.Cls();
    panel.Line(panel.ScaleLeft, y, panel.ScaleLeft + panel.ScaleWidth, y, kOrange);
    if (records.ProxyLoaded(i)) MarkTarget(panel);
    panel.Refresh();
  }
}

void StripMark(PictureBox& strip, float fromX, float toX, float dotX, Single y) {
  strip.Cls();
  strip.FillColor = kOrange;
  strip.FillStyle = 0;
  strip.Line(fromX, y, toX, y, kOrange);
  strip.Circle(dotX, y, 0.25f, kOrange);
  strip.Refresh();
}

// The master's pointer line on the Duo's form: at the same depth when the
// Duo's columns fit the master's core, else mapped to the Duo's scale. The
// strip's three offsets come from a variable that holds nothing, and stay.
void OverlayOnDuo(Single y) {
  if (!DuoOpen || !frm2Main->mnuHorizontal.Checked) return;
  Frm2Main& duo = *frm2Main;
  const Single y2 = duo.Option4(0).Value ? y : MasterToDuo(y);
  Overlay(duo, ProxiesOf(duoSet), y2);
  StripMark(duo.BoreHole(5), -0.3f, 2.2f, 1.95f, y2);
}

}  // namespace

void MarkTargetsOnPanels(BoreHoleSet& set) {
  MainForm& form = MainFormOf(set);
  const ProxyRecords& records = ProxiesOf(set);
  for (int i = 0; i <= 4; ++i) {
    if (records.ProxyLoaded(i)) MarkTarget(form.Picture1(i));
  }
}

void TargetLine(BoreHoleSet& set, Single y) {
  MainForm& form = MainFormOf(set);
  if (form.mnuHorizontal.Checked) Overlay(form, ProxiesOf(set), y);
  StripMark(form.BoreHole(5), 7.5f, 9.5f, 7.25f, y);
  if (!set.IsDuo) OverlayOnDuo(y);
}

void ClearTargetLine(BoreHoleSet& set) {
  MainForm& form = MainFormOf(set);
  const ProxyRecords& records = ProxiesOf(set);
  for (int i = 0; i <= 4; ++i) {
    form.BoreHole(i).Cls();
    form.Picture1(i).Cls();
    if (records.ProxyLoaded(i)) MarkTarget(form.Picture1(i));
  }
  form.BoreHole(5).Cls();
  Screen.SetMousePointer(0);
}

void ClearTargetLines() {
  ClearTargetLine(masterSet);
  if (DuoOpen) ClearTargetLine(duoSet);
}

}  // namespace ostraline
