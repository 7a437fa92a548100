#include "display/target_line.h"

#include "forms/frm_main.h"
#include "forms/platform.h"

namespace ostraline {
namespace {

constexpr long kOrange = RGB(255, 150, 0);

void LineAcross(PictureBox& surface, Single y) {
  surface.Cls();
  surface.Line(surface.ScaleLeft, y, surface.ScaleLeft + surface.ScaleWidth, y, kOrange);
  surface.Refresh();
}

}  // namespace

// The proxy panels keep their green target line under the overlay once
// proxy records can be loaded; the Duo form's overlay joins here once the Duo
// has its columns.
void TargetLine(Single y) {
  FrmMain& form = *frmMain;
  if (form.mnuHorizontal.Checked) {
    for (int i = 0; i <= 4; ++i) {
      LineAcross(form.BoreHole(i), y);
      LineAcross(form.Picture1(i), y);
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
  FrmMain& form = *frmMain;
  for (int i = 0; i <= 4; ++i) {
    form.BoreHole(i).Cls();
    form.Picture1(i).Cls();
  }
  form.BoreHole(5).Cls();
  Screen.SetMousePointer(0);
}

}  // namespace ostraline
