#pragma once
// Every user event reaches the control model through here.
#include <functional>
#include <string>

namespace ostraline {

// Runs one user event on the model; `source` names where it came from, as
// "frmMain.Combo2" or "frm2Divider.Form_Activate". A failure that no handler
// caught is reported on standard error with its source and in the run-time's
// error box, and the program goes on. After the outermost event, the forms
// unloaded meanwhile are freed, and the program ends when no form is left
// loaded.
void ForwardEvent(const std::string& source, const std::function<void()>& event);
// How many failures no handler caught since the program started, and the
// source of the event of the last of them.
long EscapedFailures();
const std::string& LastEscapeSource();

}  // namespace ostraline
