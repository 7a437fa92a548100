#include "desktop/form_canvas.h"

#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <string>
#include <vector>

#include "desktop/conversions.h"
#include "desktop/event_forwarding.h"
#include "desktop/fonts.h"
#include "desktop/key_codes.h"
#include "desktop/raster_cache.h"
#include "forms/canvas.h"
#include "forms/form.h"

namespace ostraline {
namespace {

// Controls inside a frame are placed from the frame's corner.
QPoint ContainerOffset(const Control& control) {
  QPoint offset;
  for (const Control* frame = control.Container(); frame != nullptr; frame = frame->Container()) {
    offset += QPoint(ToPixels(frame->Left.Get()), ToPixels(frame->Top.Get()));
  }
  return offset;
}

void PaintLineControl(QPainter& painter, const LineControl& line, QPoint offset) {
  const QPointF from = QPointF(offset) + QPointF(ToPixels(line.X1.Get()), ToPixels(line.Y1.Get()));
  const QPointF to = QPointF(offset) + QPointF(ToPixels(line.X2.Get()), ToPixels(line.Y2.Get()));
  const bool slanted = from.x() != to.x() && from.y() != to.y();
  painter.setRenderHint(QPainter::Antialiasing, slanted);
  painter.setPen(QPen(ToQColor(line.BorderColor.Get()), line.BorderWidth.Get()));
  // Through the pixel centres, so that level and plumb lines are one pixel sharp.
  painter.drawLine(from + QPointF(0.5, 0.5), to + QPointF(0.5, 0.5));
}

void PaintShape(QPainter& painter, const Shape& shape, QPoint offset) {
  // The pen runs along the middle of the outer pixels.
  QRectF box =
      QRectF(PixelRect(shape.Left.Get(), shape.Top.Get(), shape.Width.Get(), shape.Height.Get())
                 .translated(offset))
          .adjusted(0.5, 0.5, -0.5, -0.5);
  const int kind = shape.ShapeKind.Get();
  if (kind == 1 || kind == 3 || kind == 5) {
    // Squares and circles stand in the middle of their box.
    const qreal side = std::min(box.width(), box.height());
    box = QRectF(box.center() - QPointF(side / 2, side / 2), QSizeF(side, side));
  }
  painter.setRenderHint(QPainter::Antialiasing, kind >= 2);
  painter.setPen(ToQColor(shape.BorderColor.Get()));
  painter.setBrush(shape.FillStyle.Get() == 0 ? QBrush(ToQColor(shape.FillColor.Get()))
                                              : Qt::NoBrush);
  if (kind == 2 || kind == 3) {
    painter.drawEllipse(box);
  } else if (kind == 4 || kind == 5) {
    painter.drawRoundedRect(box, box.width() / 8, box.height() / 8);
  } else {
    painter.drawRect(box);
  }
}

void PaintImageControl(QPainter& painter, const ImageControl& image, QPoint offset) {
  const QImage pixels = DecodedPicture(image.PictureFile.Get());
  if (pixels.isNull()) return;
  painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
  painter.drawImage(
      PixelRect(image.Left.Get(), image.Top.Get(), image.Width.Get(), image.Height.Get())
          .translated(offset),
      pixels);
}

// The image under the pointer that takes mouse events, the topmost first.
ImageControl* ImageAt(const Form& form, QPointF at) {
  const std::vector<Control*>& controls = form.Controls();
  for (auto it = controls.rbegin(); it != controls.rend(); ++it) {
    Control* control = *it;
    if (control->Kind() != ControlKind::Image || !control->Visible.Get() ||
        !control->Enabled.Get()) {
      continue;
    }
    if (!control->MouseDown && !control->MouseMove && !control->MouseUp && !control->DblClick) {
      continue;
    }
    const QRect box = PixelRect(control->Left.Get(), control->Top.Get(), control->Width.Get(),
                                control->Height.Get())
                          .translated(ContainerOffset(*control));
    if (box.contains(at.toPoint())) return static_cast<ImageControl*>(control);
  }
  return nullptr;
}

// An image's mouse events measure from its own corner, in twips.
void ForwardToImage(const MouseHandler& handler, const Control& image, int button, int shift,
                    QPointF at) {
  if (!handler) return;
  const QPointF corner = QPointF(ContainerOffset(image));
  const float x = ToTwips(at.x() - corner.x()) - image.Left.Get();
  const float y = ToTwips(at.y() - corner.y()) - image.Top.Get();
  ForwardEvent(image, [&] { handler(button, shift, x, y); });
}

}  // namespace

FormCanvas::FormCanvas(Form& form, QWidget* parent) : QWidget(parent), form_(&form) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
}

void FormCanvas::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (form_ == nullptr) {
    painter.fillRect(rect(), palette().window());
    return;
  }
  painter.fillRect(rect(), ToQColor(form_->BackColor.Get()));

  const QFont font = ProgramFont(8, *this);
  painter.setFont(font);
  painter.setPen(Qt::black);
  const qreal advance = TextMetrics::LineAdvance(8) / kTwipsPerPixel;
  const qreal ascent = QFontMetricsF(font, this).ascent();
  qreal top = 0;
  for (const std::string& line : form_->PrintedLines()) {
    painter.drawText(QPointF(0, qRound(top + ascent)), ToQString(line));
    top += advance;
  }

  for (const Control* control : form_->Controls()) {
    if (!control->Visible.Get()) continue;
    painter.save();
    switch (control->Kind()) {
      case ControlKind::Line:
        PaintLineControl(painter, static_cast<const LineControl&>(*control),
                         ContainerOffset(*control));
        break;
      case ControlKind::Shape:
        PaintShape(painter, static_cast<const Shape&>(*control), ContainerOffset(*control));
        break;
      case ControlKind::Image:
        PaintImageControl(painter, static_cast<const ImageControl&>(*control),
                          ContainerOffset(*control));
        break;
      default:
        break;
    }
    painter.restore();
  }
}

void FormCanvas::mousePressEvent(QMouseEvent* event) {
  if (form_ == nullptr) return;
  const int button = ButtonsOf(event->button());
  const int shift = ShiftStateOf(event->modifiers());
  const QPointF at = event->position();
  // The image pressed keeps the mouse until the button is let go, even when
  // its handler hides it, as a dragged picture's does.
  if (ImageControl* image = ImageAt(*form_, at)) {
    captured_ = image;
    ForwardToImage(image->MouseDown, *image, button, shift, at);
    return;
  }
  ForwardEvent({*form_, "Form_MouseDown"}, [&] {
    form_->Form_MouseDown(button, shift, ToTwips(at.x()), ToTwips(at.y()));
  });
}

// The double click of an image is its own event; elsewhere it is a press.
void FormCanvas::mouseDoubleClickEvent(QMouseEvent* event) {
  if (form_ == nullptr) return;
  if (ImageControl* image = ImageAt(*form_, event->position())) {
    if (image->DblClick) {
      // The release that follows belongs to the image too.
      captured_ = image;
      ForwardEvent(*image, [image] { image->DblClick(); });
      return;
    }
  }
  mousePressEvent(event);
}

void FormCanvas::mouseMoveEvent(QMouseEvent* event) {
  if (form_ == nullptr) return;
  const int buttons = ButtonsOf(event->buttons());
  const int shift = ShiftStateOf(event->modifiers());
  const QPointF at = event->position();
  // A pop-up menu swallows the release that ends a capture.
  if (captured_ != nullptr && buttons == 0) captured_ = nullptr;
  if (Control* image = captured_ != nullptr ? captured_ : ImageAt(*form_, at)) {
    ForwardToImage(image->MouseMove, *image, buttons, shift, at);
    return;
  }
  ForwardEvent({*form_, "Form_MouseMove"}, [&] {
    form_->Form_MouseMove(buttons, shift, ToTwips(at.x()), ToTwips(at.y()));
  });
}

void FormCanvas::mouseReleaseEvent(QMouseEvent* event) {
  if (form_ == nullptr) return;
  if (Control* image = captured_) {
    captured_ = nullptr;
    ForwardToImage(image->MouseUp, *image, ButtonsOf(event->button()),
                   ShiftStateOf(event->modifiers()), event->position());
    return;
  }
  if (event->button() != Qt::LeftButton || !rect().contains(event->position().toPoint())) return;
  ForwardEvent({*form_, "Form_Click"}, [this] { form_->Form_Click(); });
}

}  // namespace ostraline
