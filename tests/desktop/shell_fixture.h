#pragma once
// A fresh program with the shell installed, its dialogs answered from a
// script instead of by a user.
#include <gtest/gtest.h>

#include <QWidget>
#include <optional>

#include "desktop/dialogs.h"
#include "desktop/shell.h"
#include "forms/scripted_platform.h"

namespace ostraline {

// Answers the dialogs as the headless platform does: queued file names and
// answers, every message box recorded.
class ScriptedDialogs : public Dialogs {
 public:
  std::string OpenFileName(const FileDialogRequest& request) override {
    return script.OpenFileName(request);
  }
  std::string SaveFileName(const FileDialogRequest& request) override {
    return script.SaveFileName(request);
  }
  MsgAnswer MessageBox(const std::string& text, const std::string& title, MsgIcon icon,
                       MsgButtons buttons) override {
    return script.MessageBox(text, title, icon, buttons);
  }

  ScriptedPlatform script;
};

class ShellTest : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  QWidget* WindowOf(const Form& form) { return shell->Screen().WindowOf(form); }
  template <class W>
  W* WidgetOf(const Control& control) {
    return qobject_cast<W*>(shell->Screen().WidgetOf(control));
  }

  ScriptedDialogs dialogs;
  std::optional<Shell> shell;
};

}  // namespace ostraline
