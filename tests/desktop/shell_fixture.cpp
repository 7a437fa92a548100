#include "shell_fixture.h"

#include <QCoreApplication>
#include <QEvent>

#include "support/fresh_program.h"

namespace ostraline {

void ShellTest::SetUp() {
  shell.emplace();
  shell->Platform().SetDialogs(&dialogs);
  ResetProgram();
}

void ShellTest::TearDown() {
  ResetProgram();
  // The windows of unloaded forms go at the next turn of the event loop.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  shell.reset();
}

}  // namespace ostraline
