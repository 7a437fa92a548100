#include "desktop/control_adapter.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QWidget>
#include <optional>

#include "desktop/conversions.h"
#include "desktop/event_forwarding.h"
#include "desktop/fonts.h"
#include "desktop/key_codes.h"

namespace ostraline {

ControlAdapter::ControlAdapter(Control& control, QWidget* widget)
    : model_(&control), widget_(widget), keySource_(widget) {
  // The control's own name ("Combo2", "Picture1(3)"), for accessibility tools and tests.
  if (widget_ != nullptr) widget_->setObjectName(ToQString(control.FullName()));
}

void ControlAdapter::Sync(std::string_view property) {
  if (model_ == nullptr) return;
  std::optional<QSignalBlocker> blocker;
  if (widget_ != nullptr) {
    blocker.emplace(widget_);
    SyncCommon(property);
  }
  SyncOwn(property);
}

void ControlAdapter::SyncCommon(std::string_view p) {
  const bool all = p.empty();
  if (all || p == "Left" || p == "Top" || p == "Width" || p == "Height") {
    widget_->setGeometry(PixelRect(model_->Left.Get(), model_->Top.Get(), model_->Width.Get(),
                                   model_->Height.Get()));
  }
  if (all || p == "Enabled") widget_->setEnabled(model_->Enabled.Get());
  if (all || p == "Visible") widget_->setVisible(model_->Visible.Get());
  if (all || p == "ToolTipText") widget_->setToolTip(ToQString(model_->ToolTipText.Get()));
  if (all || p == "FontSize") widget_->setFont(ProgramFont(model_->FontSize.Get(), *widget_));
  if (all || p == "BackColor" || p == "ForeColor") ApplyColours();
}

void ControlAdapter::ApplyColours() {
  const QColor back = ToQColor(model_->BackColor.Get());
  const QColor fore = ToQColor(model_->ForeColor.Get());
  QPalette palette = widget_->palette();
  for (const QPalette::ColorRole role : {QPalette::Window, QPalette::Base, QPalette::Button}) {
    palette.setColor(role, back);
  }
  // A disabled control keeps its background and shows the style's grey text.
  for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
      palette.setColor(group, role, fore);
    }
  }
  widget_->setPalette(palette);
}

void ControlAdapter::Redraw(bool now) {
  if (widget_ == nullptr) return;
  if (now) {
    widget_->repaint();
  } else {
    widget_->update();
  }
}

QPointF ControlAdapter::MouseUnits(const QPointF& position) const {
  return QPointF(ToTwips(position.x()), ToTwips(position.y()));
}

void ControlAdapter::Forward(const std::function<void()>& event) {
  if (model_ != nullptr) ForwardEvent(*model_, event);
}

void ControlAdapter::Watch(QWidget* widget) {
  widget->setMouseTracking(true);
  widget->installEventFilter(this);
}

void ControlAdapter::ForwardMouse(const MouseHandler& handler, const QMouseEvent& event,
                                  int buttons) {
  if (!handler) return;
  const QPointF units = MouseUnits(event.position());
  const int shift = ShiftStateOf(event.modifiers());
  Forward([&] {
    handler(buttons, shift, static_cast<float>(units.x()), static_cast<float>(units.y()));
  });
}

bool ControlAdapter::ForwardKey(QObject* watched, const QKeyEvent& event) {
  const int keyCode = KeyCodeOf(event);
  if (keyCode != 0 && model_->KeyDown) {
    int code = keyCode;
    const int shift = ShiftStateOf(event.modifiers());
    Forward([&] { model_->KeyDown(code, shift); });
    if (model_ == nullptr) return true;
  }
  const int typed = KeyAsciiOf(event);
  if (typed == 0 || !model_->KeyPress) return false;
  int ascii = typed;
  Forward([&] { model_->KeyPress(ascii); });
  if (model_ == nullptr || ascii == 0) return true;
  if (ascii == typed) return false;
  // The handler typed another character in place of the user's.
  QKeyEvent replaced(QEvent::KeyPress, event.key(), event.modifiers(),
                     QString(QChar(static_cast<char16_t>(ascii))));
  retyping_ = true;
  QCoreApplication::sendEvent(watched, &replaced);
  retyping_ = false;
  return true;
}

bool ControlAdapter::eventFilter(QObject* watched, QEvent* event) {
  if (model_ == nullptr) return false;
  switch (event->type()) {
    case QEvent::MouseButtonPress: {
      const auto& mouse = static_cast<const QMouseEvent&>(*event);
      ForwardMouse(model_->MouseDown, mouse, ButtonsOf(mouse.button()));
      break;
    }
    case QEvent::MouseMove: {
      const auto& mouse = static_cast<const QMouseEvent&>(*event);
      ForwardMouse(model_->MouseMove, mouse, ButtonsOf(mouse.buttons()));
      break;
    }
    case QEvent::MouseButtonRelease: {
      const auto& mouse = static_cast<const QMouseEvent&>(*event);
      ForwardMouse(model_->MouseUp, mouse, ButtonsOf(mouse.button()));
      const auto* widget = static_cast<const QWidget*>(watched);
      if (model_ != nullptr && ClickOnRelease() && mouse.button() == Qt::LeftButton &&
          widget->rect().contains(mouse.position().toPoint()) && model_->Click) {
        Forward([this] { model_->Click(); });
      }
      break;
    }
    case QEvent::MouseButtonDblClick:
      if (model_->DblClick) Forward([this] { model_->DblClick(); });
      break;
    case QEvent::KeyPress:
      if (watched == keySource_ && !retyping_) {
        return ForwardKey(watched, static_cast<const QKeyEvent&>(*event));
      }
      break;
    case QEvent::FocusIn:
      if (watched != keySource_) break;
      // The model's focus follows the screen's; SetFocus runs LostFocus and GotFocus.
      if (!model_->HasFocus() && model_->Enabled.Get() && model_->Visible.Get()) {
        Forward([this] { model_->SetFocus(); });
      }
      break;
    default:
      break;
  }
  return false;
}

}  // namespace ostraline
