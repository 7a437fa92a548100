#include "display/target_line.h"

#include "display/display_state.h"
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
  const float y = panel.ScaleTop + static_cast<float>(ViewSpan) / 2;
  panel.Line(panel.ScaleLeft, y, panel.ScaleLeft + panel.ScaleWidth, y, kGreen);
}

}  // namespace

void MarkTargetsOnPanels() {
  MainForm& form = *frmMain;
  for (int i = 0; i <= 4; ++i) {
    if (ProxyLoaded(i)) MarkTarget(form.Picture1(i));
  }
}

// The Duo form's overlay joins here once the Duo has its columns.
void TargetLine(Single y) {
  MainForm& form = *frmMain;
  if (form.mnuHorizontal.Checked) {
    for (int i = 0; i <= 4; ++i) {
      LineAcross(form.BoreHole(i), y);
      PictureBox& panel = form.Picture1(i);
      panel.Cls();
      panel.Line(panel.ScaleLeft, y, panel.ScaleLeft + panel.ScaleWidth, y, kOrange);
      if (ProxyLoaded(i)) MarkTarget(panel);
      panel.Refresh();
    }
  }
  PictureBox& strip = form.BoreHole(5);
  strip.Cls();
  strip.FillColor = kOrange;
  strip.FillStyle = 0;
  strip.Line(7.5f, y, 9.5f, y, kOrange);
  strip.Circle(7.25f, y, 0.25f, kOrange);
  strip.Refresh();
}

void ClearTargetLine() {
  MainForm& form = *frmMain;
  for (int i = 0; i <= 4; ++i) {
    form.BoreHole(i).Cls();
    form.Picture1(i).Cls();
    if (ProxyLoaded(i)) MarkTarget(form.Picture1(i));
  }
  form.BoreHole(5).Cls();
  Screen.SetMousePointer(0);
}

}  // namespace ostraline
