// A dialog over a disabled main form: its own window, the main window shut
// while the form is disabled, and the activation kept on the dialog.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "forms/frm_main.h"
#include "forms/frm_select.h"
#include "shell_fixture.h"

namespace ostraline {
namespace {

using DialogWindows = ShellTest;

TEST_F(DialogWindows, DisabledMainFormHandsTheActivationToTheDialog) {
  frmMain->Show();
  QWidget* main = WindowOf(*frmMain);
  ASSERT_NE(main, nullptr);
  ASSERT_TRUE(QTest::qWaitForWindowActive(main));

  frmMain->Enabled = false;
  EXPECT_FALSE(main->isEnabled());
  frmSelect->Show();
  QWidget* dialog = WindowOf(*frmSelect);
  ASSERT_NE(dialog, nullptr);
  EXPECT_NE(dialog, main);
  EXPECT_TRUE(dialog->isWindow());
  ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));

  // The main window brought to the front gives the activation back.
  main->activateWindow();
  EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == dialog; }));

  // A press on a cell leaves the keyboard on "OK".
  auto* cell = WidgetOf<QLineEdit>(frmSelect->Text2(3));
  ASSERT_NE(cell, nullptr);
  QTest::mouseClick(cell, Qt::LeftButton);
  EXPECT_EQ(QApplication::focusWidget(), WidgetOf<QPushButton>(frmSelect->Command1));

  QTest::mouseClick(WidgetOf<QPushButton>(frmSelect->Command2), Qt::LeftButton);
  EXPECT_FALSE(frmSelect.IsLoaded());
  EXPECT_TRUE(main->isEnabled());
  main->activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(main));
}

}  // namespace
}  // namespace ostraline
