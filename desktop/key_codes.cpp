#include "desktop/key_codes.h"

#include <QKeyEvent>

namespace ostraline {
namespace {

int KeypadCode(int key) {
  if (key >= Qt::Key_0 && key <= Qt::Key_9) return 96 + (key - Qt::Key_0);
  switch (key) {
    case Qt::Key_Asterisk:
      return 106;
    case Qt::Key_Plus:
      return 107;
    case Qt::Key_Minus:
      return 109;
    case Qt::Key_Period:
    case Qt::Key_Comma:
      return 110;
    case Qt::Key_Slash:
      return 111;
    default:
      return 0;
  }
}

}  // namespace

int KeyCodeOf(const QKeyEvent& event) {
  const int key = event.key();
  if (event.modifiers() & Qt::KeypadModifier) {
    if (const int code = KeypadCode(key)) return code;
  }
  // Letters and digits have the same numbers in both worlds.
  if ((key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9)) return key;
  if (key >= Qt::Key_F1 && key <= Qt::Key_F16) return 112 + (key - Qt::Key_F1);
  switch (key) {
    case Qt::Key_Backspace:
      return 8;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      return 9;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return 13;
    case Qt::Key_Shift:
      return 16;
    case Qt::Key_Control:
      return 17;
    case Qt::Key_Alt:
      return 18;
    case Qt::Key_Escape:
      return 27;
    case Qt::Key_Space:
      return 32;
    case Qt::Key_PageUp:
      return 33;
    case Qt::Key_PageDown:
      return 34;
    case Qt::Key_End:
      return 35;
    case Qt::Key_Home:
      return 36;
    case Qt::Key_Left:
      return 37;
    case Qt::Key_Up:
      return 38;
    case Qt::Key_Right:
      return 39;
    case Qt::Key_Down:
      return 40;
    case Qt::Key_Insert:
      return 45;
    case Qt::Key_Delete:
      return 46;
    case Qt::Key_Semicolon:
      return 186;
    case Qt::Key_Equal:
    case Qt::Key_Plus:
      return 187;
    case Qt::Key_Comma:
      return 188;
    case Qt::Key_Minus:
      return 189;
    case Qt::Key_Period:
      return 190;
    case Qt::Key_Slash:
      return 191;
    default:
      return 0;
  }
}

int KeyAsciiOf(const QKeyEvent& event) {
  const QString text = event.text();
  if (text.size() != 1) return 0;
  const char16_t unit = text.at(0).unicode();
  // Characters beyond one byte have no code in the program's texts.
  return unit < 256 ? unit : 0;
}

int ShiftStateOf(Qt::KeyboardModifiers modifiers) {
  return (modifiers & Qt::ShiftModifier ? 1 : 0) + (modifiers & Qt::ControlModifier ? 2 : 0) +
         (modifiers & Qt::AltModifier ? 4 : 0);
}

int ButtonsOf(Qt::MouseButtons buttons) {
  return (buttons & Qt::LeftButton ? 1 : 0) + (buttons & Qt::RightButton ? 2 : 0) +
         (buttons & Qt::MiddleButton ? 4 : 0);
}

}  // namespace ostraline
