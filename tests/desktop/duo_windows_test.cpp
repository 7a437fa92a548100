// The Duo's window beside the main window: typing in either moves both, and
// closing the Duo leaves the master working and the Duo ready to open again.
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QTest>
#include <string>

#include "core/project_state.h"
#include "forms/frm2_main.h"
#include "forms/frm_main.h"
#include "shell_fixture.h"
#include "support/age_files.h"
#include "support/model_files.h"

namespace ostraline {
namespace {

class DuoWindows : public ShellTest {
 protected:
  void SetUp() override {
    ShellTest::SetUp();
    frmMain->Show();
    dialogs.script.QueueFile(WriteTempFile("model_20110305.csv", ModelText(TwoSectionModel())));
    frmMain->Command1_Click();
    dialogs.script.QueueFile(WriteTempFile("events_20110401.csv", kNoLayer));
    frmMain->Command3_Click();
  }
  QMainWindow* OpenDuo() {
    frmMain->mnuOLDuo.Click();
    auto* window = qobject_cast<QMainWindow*>(WindowOf(*frm2Main));
    if (window != nullptr) EXPECT_TRUE(QTest::qWaitForWindowExposed(window));
    return window;
  }
  static void Type(QLineEdit* box, const char* text) {
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, text);
  }
};

TEST_F(DuoWindows, TypingInEitherWindowMovesBoth) {
  QMainWindow* duo = OpenDuo();
  ASSERT_NE(duo, nullptr);
  QWidget* master = WindowOf(*frmMain);
  // Beside the master, overlapping it by 60 twips, or against the screen's edge.
  EXPECT_GT(duo->x(), master->x());

  dialogs.script.QueueFile(WriteTempFile("duo_20120101.csv", DuoModelText()));
  dialogs.script.QueueAnswer(MsgAnswer::Yes);
  dialogs.script.QueueFile(WriteTempFile("duo_events_20120201.csv", kNoLayer));
  QTest::mouseClick(WidgetOf<QPushButton>(frm2Main->Command1), Qt::LeftButton);
  ASSERT_TRUE(DuoOpen);

  Type(WidgetOf<QLineEdit>(frm2Main->Text2), "150");
  EXPECT_EQ(frmMain->Text2.Text.Get(), "170");
  EXPECT_EQ(WidgetOf<QLineEdit>(frmMain->Text2)->text(), QStringLiteral("170"));
  Type(WidgetOf<QLineEdit>(frmMain->Text2), "230");
  EXPECT_EQ(frm2Main->Text2.Text.Get(), "200");
  EXPECT_EQ(WidgetOf<QLineEdit>(frm2Main->Text2)->text(), QStringLiteral("200"));
  for (const MessageRecord& message : dialogs.script.messages) {
    if (message.title != "Ostraline_Duo") ADD_FAILURE() << message.text;
  }

  duo->close();
  QApplication::processEvents();
  EXPECT_FALSE(DuoOpen);
  ASSERT_NE(WindowOf(*frmMain), nullptr);
  Type(WidgetOf<QLineEdit>(frmMain->Text2), "250");
  EXPECT_EQ(frmMain->Text2.Text.Get(), "250");

  QMainWindow* again = OpenDuo();
  ASSERT_NE(again, nullptr);
  EXPECT_TRUE(again->isVisible());
  EXPECT_TRUE(WidgetOf<QPushButton>(frm2Main->Command1)->isEnabled());
}

}  // namespace
}  // namespace ostraline
