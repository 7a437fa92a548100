#pragma once
// Every user event reaches the control model through here.
#include <functional>
#include <string>

namespace ostraline {

class Control;
class Form;

// Where an event came from: a control, or an event of the form itself. Its
// name, as "frmMain.Combo2" or "frm2Divider.Form_Activate", is made only for
// the report of a failure: a pointer move need not build it.
class EventSource {
 public:
  EventSource(const Control& control);  // a control names itself
  EventSource(const Form& form, const char* event) : form_(&form), event_(event) {}
  std::string Name() const;

 private:
  const Form* form_;
  const Control* control_ = nullptr;
  const char* event_ = nullptr;
};

// Runs one user event on the model. A failure that no handler caught is
// reported on standard error with its source and in the run-time's error
// box, and the program goes on. After the outermost event, the forms
// unloaded meanwhile are freed, and the program ends when no form is left
// loaded.
void ForwardEvent(const EventSource& source, const std::function<void()>& event);
// How many failures no handler caught since the program started, and the
// source of the event of the last of them.
long EscapedFailures();
const std::string& LastEscapeSource();

}  // namespace ostraline
