#include "forms/canvas.h"

#include <algorithm>
#include <cmath>

#include "forms/form.h"
#include "runtime/number_text.h"

namespace ostraline {

PictureBox::PictureBox(Form& form, std::string name, int index)
    : Control(form, ControlKind::PictureBox, std::move(name), index) {}

float PictureBox::InnerWidth() const {
  return std::max(0.0f, Width.Get() - (BorderStyle.Get() == 1 ? 60.0f : 0.0f));
}

float PictureBox::InnerHeight() const {
  return std::max(0.0f, Height.Get() - (BorderStyle.Get() == 1 ? 60.0f : 0.0f));
}

float PictureBox::ScaleW() const {
  return userScale_ ? ScaleWidth.Get() : InnerWidth();
}
float PictureBox::ScaleH() const {
  return userScale_ ? ScaleHeight.Get() : InnerHeight();
}

float PictureBox::ToTwipsX(float x) const {
  const float w = ScaleW();
  return w == 0 ? 0 : (x - ScaleLeft.Get()) * InnerWidth() / w;
}

float PictureBox::ToTwipsY(float y) const {
  const float h = ScaleH();
  return h == 0 ? 0 : (y - ScaleTop.Get()) * InnerHeight() / h;
}

float PictureBox::FromTwipsX(float twips) const {
  const float inner = InnerWidth();
  return inner == 0 ? ScaleLeft.Get() : ScaleLeft.Get() + twips * ScaleW() / inner;
}

float PictureBox::FromTwipsY(float twips) const {
  const float inner = InnerHeight();
  return inner == 0 ? ScaleTop.Get() : ScaleTop.Get() + twips * ScaleH() / inner;
}

void PictureBox::Written(std::string_view name, bool changed) {
  if (name == "ScaleLeft" || name == "ScaleTop" || name == "ScaleWidth" || name == "ScaleHeight") {
    if (!userScale_) {
      // The first user scale starts from the surface's own twips.
      userScale_ = true;
      if (name != "ScaleWidth" && ScaleWidth.Get() == 0) ScaleWidth.SetQuietly(InnerWidth());
      if (name != "ScaleHeight" && ScaleHeight.Get() == 0) ScaleHeight.SetQuietly(InnerHeight());
    }
    return;
  }
  if ((name == "Width" || name == "Height" || name == "BorderStyle") && !userScale_) {
    ScaleWidth.SetQuietly(InnerWidth());
    ScaleHeight.SetQuietly(InnerHeight());
  }
  if (changed && (name == "Width" || name == "Height" || name == "BackColor")) {
    ++revision_;
  }
}

void PictureBox::Record(DrawOp&& op) {
  const float w = InnerWidth();
  const float h = InnerHeight();
  float left;
  float right;
  float top;
  float bottom;
  if (op.kind == DrawKind::Circle) {
    left = op.x1 - op.radius;
    right = op.x1 + op.radius;
    top = op.y1 - op.radius;
    bottom = op.y1 + op.radius;
  } else if (op.kind == DrawKind::Text) {
    left = op.x1;
    right = op.x1 + TextMetrics::TextWidth(op.text, op.fontSize);
    top = op.y1;
    bottom = op.y1 + TextMetrics::LineAdvance(op.fontSize);
  } else {
    left = std::min(op.x1, op.x2);
    right = std::max(op.x1, op.x2);
    top = std::min(op.y1, op.y2);
    bottom = std::max(op.y1, op.y2);
  }
  const float pen = static_cast<float>(op.drawWidth) * 15.0f;
  if (!(right + pen >= 0 && left - pen <= w && bottom + pen >= 0 && top - pen <= h)) return;
  // A box drawn over the whole scale lands a rounding error short of the edges.
  constexpr float kEdgeSlack = 1.0f;
  if (op.kind == DrawKind::Box && left <= kEdgeSlack && top <= kEdgeSlack &&
      right >= w - kEdgeSlack && bottom >= h - kEdgeSlack) {
    // An opaque box over the whole surface hides all that is under it.
    working_.clear();
    covers_ = true;
  }
  working_.push_back(std::move(op));
  ++revision_;
  if (ScreenObserver* screen = CurrentScreenObserver()) screen->SurfaceChanged(*this, false);
}

void PictureBox::Cls() {
  working_.clear();
  covers_ = false;
  CurrentX = ScaleLeft.Get();
  CurrentY = ScaleTop.Get();
  ++revision_;
  if (ScreenObserver* screen = CurrentScreenObserver()) screen->SurfaceChanged(*this, false);
}

DrawOp PictureBox::Segment(DrawKind kind, float x1, float y1, float x2, float y2,
                           long colour) const {
  DrawOp op;
  op.kind = kind;
  op.x1 = ToTwipsX(x1);
  op.y1 = ToTwipsY(y1);
  op.x2 = ToTwipsX(x2);
  op.y2 = ToTwipsY(y2);
  op.ux1 = x1;
  op.uy1 = y1;
  op.ux2 = x2;
  op.uy2 = y2;
  op.colour = colour;
  op.drawWidth = DrawWidth;
  return op;
}

void PictureBox::Line(float x1, float y1, float x2, float y2, long colour) {
  Record(Segment(DrawKind::Line, x1, y1, x2, y2, colour));
  CurrentX = x2;
  CurrentY = y2;
}

void PictureBox::LineBF(float x1, float y1, float x2, float y2, long colour) {
  DrawOp op = Segment(DrawKind::Box, x1, y1, x2, y2, colour);
  op.filled = true;
  op.fillColour = colour;
  Record(std::move(op));
  CurrentX = x2;
  CurrentY = y2;
}

void PictureBox::Circle(float x, float y, float radius, long colour) {
  DrawOp op;
  op.kind = DrawKind::Circle;
  op.x1 = ToTwipsX(x);
  op.y1 = ToTwipsY(y);
  const float w = ScaleW();
  op.radius = w == 0 ? 0 : std::fabs(radius * InnerWidth() / w);
  op.ux1 = x;
  op.uy1 = y;
  op.uradius = radius;
  op.colour = colour;
  op.drawWidth = DrawWidth;
  op.filled = FillStyle == 0;
  op.fillColour = FillColor;
  Record(std::move(op));
  CurrentX = x;
  CurrentY = y;
}

void PictureBox::Print(const std::string& text) {
  DrawOp op;
  op.kind = DrawKind::Text;
  op.x1 = ToTwipsX(CurrentX);
  op.y1 = ToTwipsY(CurrentY);
  op.ux1 = CurrentX;
  op.uy1 = CurrentY;
  op.colour = ForeColor.Get();
  op.fontSize = FontSize.Get();
  op.text = text;
  const float advance = TextMetrics::LineAdvance(op.fontSize);
  Record(std::move(op));
  const float inner = InnerHeight();
  CurrentX = ScaleLeft.Get();
  CurrentY += inner == 0 ? 0 : advance * ScaleH() / inner;
}

void PictureBox::Print(float number) {
  Print(PrintedNumber(Str(number)));
}
void PictureBox::Print(double number) {
  Print(PrintedNumber(Str(number)));
}
void PictureBox::Print(int number) {
  Print(PrintedNumber(Str(number)));
}

void PictureBox::Refresh() {
  if (ScreenObserver* screen = CurrentScreenObserver()) screen->SurfaceChanged(*this, true);
}

Picture PictureBox::Image() const {
  Picture image;
  image.width = InnerWidth();
  image.height = InnerHeight();
  image.backColour = picture_.empty ? BackColor.Get() : picture_.backColour;
  image.empty = false;
  if (!covers_) image.ops = picture_.ops;
  image.ops.insert(image.ops.end(), working_.begin(), working_.end());
  return image;
}

void PictureBox::SetPicture(Picture picture) {
  picture_ = std::move(picture);
  working_.clear();
  covers_ = false;
  ++revision_;
  if (ScreenObserver* screen = CurrentScreenObserver()) screen->SurfaceChanged(*this, false);
}

}  // namespace ostraline
