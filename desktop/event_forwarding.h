#pragma once
// Every user event reaches the control model through here.
#include <functional>

namespace ostraline {

// Runs one user event on the model. A failure that no handler caught is
// reported on standard error and in the run-time's error box, and the
// program goes on. After the outermost
// event, the forms unloaded meanwhile are freed, and the program ends when no
// form is left loaded.
void ForwardEvent(const std::function<void()>& event);
// How many failures no handler caught since the program started.
long EscapedFailures();

}  // namespace ostraline
