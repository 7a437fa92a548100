// The bare form around the columns: leaving the columns erases the overlay,
// and a click beside a panel shows or hides panels by cutting the window,
// never by moving them.
#include <array>

#include "display/display_state.h"
#include "display/mouse_on_columns.h"
#include "display/target_line.h"
#include "forms/frm_main.h"
#include "forms/platform.h"

namespace ostraline {
namespace {

float Right(const Control& control) {
  return control.Left + control.Width;
}

// The edge cuts a control further right: the form grows, back to the width
// it had before it was narrowed if it was.
void Grow(MainForm& form, float width) {
  form.Width = width;
  if (FormNarrowed) {
    form.Width = RestoreWidth;
  } else {
    RestoreWidth = form.Width;
  }
  FormNarrowed = false;
}

// A click in a gap cuts the form back; a form already narrower than the
// row's limit keeps the new width as the one to return to.
void Narrow(MainForm& form, float limit, float width) {
  if (FormNarrowed) RestoreWidth = form.Width;
  if (form.Width < limit) {
    FormNarrowed = false;
    form.Width = width;
    RestoreWidth = form.Width;
  } else {
    FormNarrowed = true;
    form.Width = width;
  }
}

// One row per pair of neighbours A, B along the form, from the left.
struct Neighbours {
  const Control* a;
  const Control* b;
  float grownWidth;   // when the edge cuts B and the click lies right of A
  float limit;        // a narrower form is not cut further
  float narrowWidth;  // when the click lies in the gap between A and B
};

std::array<Neighbours, 9> Rows(MainForm& form) {
  const auto& b = form.BoreHole;
  const auto& p = form.Picture1;
  const float base = static_cast<float>(BaseFormWidth);
  const float beyond = Right(p(4)) + 360;
  return {{{&b(1), &b(2), b(3).Left + 180, b(3).Left, b(2).Left + 180},
           {&b(2), &b(3), b(4).Left + 180, b(4).Left, b(3).Left + 180},
           {&b(3), &b(4), b(0).Left - 150, b(0).Left, b(4).Left + 180},
           {&form.Slider1, &b(0), base, p(0).Left, b(0).Left - 150},
           {&b(0), &p(0), p(1).Left + 180, p(1).Left, base},
           {&p(0), &p(1), p(2).Left + 180, p(2).Left, p(1).Left + 180},
           {&p(1), &p(2), p(3).Left + 180, p(3).Left, p(2).Left + 180},
           {&p(2), &p(3), p(4).Left + 180, p(4).Left, p(3).Left + 180},
           {&p(3), &p(4), beyond, beyond, p(4).Left + 180}}};
}

}  // namespace

void ToggleCompositeColumn(MainForm& form) {
  if (Right(form.BoreHole(0)) <= form.Width) {
    Narrow(form, form.Picture1(0).Left, form.BoreHole(0).Left - 150);
  } else {
    form.Width = static_cast<float>(BaseFormWidth);
  }
}

// The master notes where the pointer left it, the Duo where its form ends.
void FrmMain::Form_MouseMove(int /*button*/, int /*shift*/, float /*x*/, float y) {
  ClearTargetLines();
  if (IsDuo()) {
    FormEdge(2) = Height + Top;
    return;
  }
  FormEdge(1) = Height + Top;
  FormEdge(0) = y;
}

// The growing rows are tried first, then the gaps; the first that fits acts.
void FrmMain::Form_MouseDown(int /*button*/, int /*shift*/, float x, float /*y*/) {
  const auto rows = Rows(*this);
  for (const Neighbours& row : rows) {
    if (x > Right(*row.a) && Right(*row.b) > Width) {
      Grow(*this, row.grownWidth);
      return;
    }
  }
  for (const Neighbours& row : rows) {
    if (x > Right(*row.a) && x < row.b->Left) {
      Narrow(*this, row.limit, row.narrowWidth);
      return;
    }
  }
}

void FrmMain::Label_MouseMove() {
  Screen.SetMousePointer(1);
  ClearTargetLines();
}

void FrmMain::Text6_MouseMove(int /*index*/) {
  ClearTargetLines();
}

void FrmMain::Slider1_MouseMove() {
  Screen.SetMousePointer(1);
}

}  // namespace ostraline
