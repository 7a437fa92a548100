// The correlation assist: a strip of 100 length units that the user stretches
// against the core columns, with the marks of another core typed in.
#include <string>

#include "forms/frm_kx11.h"
#include "forms/frm_main.h"
#include "runtime/number_text.h"

namespace ostraline {
namespace {

constexpr long kMarkColour = RGB(0, 0, 255);
constexpr long kFocusMarkColour = RGB(255, 0, 0);
constexpr long kGreyColour = RGB(150, 150, 150);

// The height that 100 length units have on the core columns.
float TrueScaleHeight() {
  const PictureBox& column = frmMain->BoreHole(0);
  return column.Height * 100 / column.ScaleHeight;
}

// The strip's stretch against true scale, in per cent.
std::string Stretch(FrmKX11& form) {
  return Str(Round(Divide(form.Picture1.Height * 100, Val(form.Label2.Caption.Get())), 1)) + " %";
}

}  // namespace

void FrmMain::mnuKX11_Click() {
  frmKX11->Show();
}

void FrmKX11::Form_Load() {
  Text1.ForEach([](TextBox& mark) { mark.Text = ""; });
  Text2.Text = "";
  Picture1.Height = TrueScaleHeight();
  Picture1.ScaleHeight = -100;
  Picture1.ScaleTop = 100;
}

void FrmKX11::Form_Resize() {
  if (Height < kMinimumHeight) Height = kMinimumHeight;
  Picture1.Height = Height - kFrame;
  Width = kFixedWidth;
}

void FrmKX11::Picture1_Resize() {
  const float height = Picture1.Height + kFrame;
  const bool changed = Height != height;
  Height = height;
  Picture1.ScaleHeight = -100;
  Picture1.ScaleTop = 100;
  DrawKX11();
  // A form whose height is written runs its Resize, which keeps the minimum.
  if (changed) Form_Resize();
}

void FrmKX11::DrawKX11() {
  Picture1.Cls();
  const float left = Picture1.ScaleLeft;
  const float right = left + Picture1.ScaleWidth;
  const double focused = Val(Label4.Caption.Get());
  for (int i = 1; i <= 20; ++i) {
    const auto y = static_cast<float>(Val(Text1(i).Text.Get()));
    Picture1.Line(left, y, right, y, focused == i ? kFocusMarkColour : kMarkColour);
  }
  if (!Text2.Text.Get().empty()) {
    Picture1.LineBF(left, Picture1.ScaleTop, right, static_cast<float>(Val(Text2.Text.Get())),
                    kGreyColour);
  }
  Label3.Caption = Stretch(*this);
}

void FrmKX11::Text1_Change(int /*index*/) {
  DrawKX11();
}

void FrmKX11::Text2_Change() {
  DrawKX11();
}

void FrmKX11::Text1_GotFocus(int index) {
  Label4.Caption = Str(index);
  DrawKX11();
}

void FrmKX11::Command1_Click() {
  Text1.ForEach([](TextBox& mark) { mark.Text = ""; });
  Picture1.Cls();
}

void FrmKX11::FollowColumnScale() {
  const float height = TrueScaleHeight();
  Picture1.Height = height;
  Label2.Caption = Str(height);
  Label3.Caption = Stretch(*this);
}

}  // namespace ostraline
