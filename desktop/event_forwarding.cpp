#include "desktop/event_forwarding.h"

#include <QCoreApplication>
#include <cstdio>
#include <exception>

#include "forms/controls.h"
#include "forms/form.h"
#include "forms/platform.h"

namespace ostraline {
namespace {

// Events nest: a handler may open a pop-up menu whose click is an event too.
int g_depth = 0;
long g_escaped = 0;
std::string g_lastEscapeSource;

bool AnyFormLoaded() {
  for (const FormSlot* slot : FormSlot::All()) {
    if (slot->IsLoaded()) return true;
  }
  return false;
}

}  // namespace

EventSource::EventSource(const Control& control) : form_(&control.Parent()), control_(&control) {}

std::string EventSource::Name() const {
  return form_->Name() + "." + (control_ != nullptr ? control_->FullName() : event_);
}

void ForwardEvent(const EventSource& source, const std::function<void()>& event) {
  ++g_depth;
  try {
    event();
  } catch (const std::exception& failure) {
    // A failure that no handler traps ends in the run-time's error box; the
    // program goes on, so that nothing imported is lost.
    ++g_escaped;
    // The forms unloaded meanwhile are still there: they are freed below.
    g_lastEscapeSource = source.Name();
    std::fprintf(stderr, "ostraline: a handler failed (%s): %s\n", g_lastEscapeSource.c_str(),
                 failure.what());
    try {
      MsgBox(std::string("Run-time error: ") + failure.what(), MsgButtons::Ok, "Ostraline",
             MsgIcon::Critical);
    } catch (const std::exception&) {
      // The box itself failed (no screen left): the report above stands.
    }
  }
  --g_depth;
  if (g_depth > 0) return;
  FormSlot::CollectUnloaded();
  if (!AnyFormLoaded() && QCoreApplication::instance() != nullptr) {
    QMetaObject::invokeMethod(QCoreApplication::instance(), &QCoreApplication::quit,
                              Qt::QueuedConnection);
  }
}

long EscapedFailures() {
  return g_escaped;
}

const std::string& LastEscapeSource() {
  return g_lastEscapeSource;
}

}  // namespace ostraline
