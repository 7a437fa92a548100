#pragma once
// Keys, modifiers and mouse buttons as the handlers of the forms number them.
#include <Qt>

class QKeyEvent;

namespace ostraline {

// The key code a KeyDown handler gets; 0 for a key the handlers do not know.
int KeyCodeOf(const QKeyEvent& event);
// The character a KeyPress handler gets; 0 when the key types none.
int KeyAsciiOf(const QKeyEvent& event);
// Shift 1, Ctrl 2, Alt 4, added up.
int ShiftStateOf(Qt::KeyboardModifiers modifiers);
// Left 1, right 2, middle 4, added up.
int ButtonsOf(Qt::MouseButtons buttons);

}  // namespace ostraline
