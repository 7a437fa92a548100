// The main form in its window: caption, placement, menus, painting, the
// import of a correlation model through the dialog, and a dialog over the
// disabled main form that keeps the activation, and which handlers the
// window's activation and mouse moves run.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>

#include "desktop/form_window.h"
#include "forms/frm_main.h"
#include "forms/frm_select.h"
#include "shell_fixture.h"
#include "support/model_files.h"

namespace ostraline {
namespace {

class MainWindow : public ShellTest {
 protected:
  void SetUp() override {
    ShellTest::SetUp();
    frmMain->Show();
    window = qobject_cast<QMainWindow*>(WindowOf(*frmMain));
    ASSERT_NE(window, nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
  }

  QMainWindow* window = nullptr;
};

TEST_F(MainWindow, ShowsTheCaptionControlsAndMenuBarAndImportsThroughTheDialog) {
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(window->windowTitle(), QStringLiteral("Ostraline 7.7.4"));

  // Command1 sits at 120, 260 in Frame4, 2175 by 345 twips: 15 twips to the pixel.
  auto* command1 = WidgetOf<QPushButton>(frmMain->Command1);
  ASSERT_NE(command1, nullptr);
  EXPECT_EQ(command1->text(), QStringLiteral("Correlation model"));
  EXPECT_EQ(command1->geometry(), QRect(8, 17, 145, 23));
  auto* frame4 = WidgetOf<QWidget>(frmMain->Frame4);
  ASSERT_NE(frame4, nullptr);
  EXPECT_EQ(command1->parentWidget(), frame4);
  EXPECT_EQ(frame4->accessibleName(), QStringLiteral(" Import "));
  EXPECT_EQ(frame4->geometry(), QRect(24, 8, 161, 149));
  // BoreHole(1): 3120, 240, 975 by 8775 twips.
  EXPECT_EQ(WidgetOf<QWidget>(frmMain->BoreHole(1))->geometry(), QRect(208, 16, 65, 585));
  // The slider (7590 to 7845) overlaps the scale strip (from 7680) and stays on top of it.
  EXPECT_EQ(window->centralWidget()->childAt(518, 300), WidgetOf<QWidget>(frmMain->Slider1));
  // Among themselves the pictures keep the form's order, a later one on top,
  // at every start.
  const QObjectList stack = window->centralWidget()->children();
  qsizetype pictures = 0;
  qsizetype below = -1;
  for (Control* control : frmMain->Controls()) {
    const qsizetype at = stack.indexOf(WidgetOf<QWidget>(*control));
    if (control->Kind() != ControlKind::PictureBox || at < 0) continue;
    EXPECT_GT(at, below) << control->Name();
    below = at;
    ++pictures;
  }
  EXPECT_GT(pictures, 10);

  // An entry captioned "-" is a separator line and shows no text beside it.
  QStringList shown;
  int separators = 0;
  for (const QAction* title : window->menuBar()->actions()) {
    if (title->isVisible()) shown << title->text();
    for (const QAction* entry : title->menu()->actions()) {
      if (!entry->isSeparator()) continue;
      ++separators;
      EXPECT_TRUE(entry->text().isEmpty()) << title->text().toStdString();
    }
  }
  EXPECT_EQ(shown, (QStringList{"Range", "Font", "Tool", "Precision", "Info"}));
  EXPECT_GT(separators, 0);

  // A click imports the model chosen in the dialog; caption and button follow.
  dialogs.script.QueueFile(WriteTempFile("core_model_20110305.csv", ModelText(FourHoleModel())));
  QTest::mouseClick(command1, Qt::LeftButton);
  ASSERT_EQ(dialogs.script.dialogs.size(), 1u);
  EXPECT_EQ(dialogs.script.dialogs[0].filter, "DataFile(*.csv)|*.csv");
  for (const MessageRecord& message : dialogs.script.messages) ADD_FAILURE() << message.text;
  EXPECT_TRUE(window->windowTitle().contains(QStringLiteral("core_model_20110305")));
  EXPECT_FALSE(command1->isEnabled());
}

TEST_F(MainWindow, PicturesShowTheirOperationsAndTheFormItsLines) {
  PictureBox& column = frmMain->BoreHole(1);
  column.ScaleLeft = 0;
  column.ScaleTop = 0;
  column.ScaleWidth = 7.6f;
  column.ScaleHeight = 500;
  column.Cls();
  column.LineBF(0, 100, 7.6f, 200, RGB(255, 0, 0));
  column.CommitImage();
  const QImage shown = WidgetOf<QWidget>(column)->grab().toImage();
  // The inner 8715 twips hold 500 units: 100 to 200 is rows 116 to 232 below the border.
  EXPECT_EQ(shown.pixelColor(30, 2 + 174), QColor(255, 0, 0));
  EXPECT_EQ(shown.pixelColor(30, 2 + 50),
            QColor(RedOf(column.BackColor.Get()), GreenOf(column.BackColor.Get()),
                   BlueOf(column.BackColor.Get())));
  EXPECT_NE(shown.pixelColor(30, 2 + 110), QColor(255, 0, 0));

  // Line1 runs from 3120 to 2880 (pixels 208 to 192) at the middle of the columns.
  frmMain->Print("Hello");
  const QImage form = window->centralWidget()->grab().toImage();
  EXPECT_EQ(form.pixelColor(200, qRound(frmMain->Line1.Y1.Get() / 15)), QColor(0, 0, 0));
  int dark = 0;
  for (int y = 0; y < 14; ++y) {
    for (int x = 0; x < 20; ++x) dark += form.pixelColor(x, y).lightness() < 100 ? 1 : 0;
  }
  EXPECT_GT(dark, 5);
}

// A form that counts how often its window's events run its handlers.
class CountingForm : public Form {
 public:
  CountingForm() : Form("frmCounting", "Counting") {
    Width = 3000;
    Height = 2000;
    caption.Width = 1200;
    caption.Height = 600;
    caption.MouseMove = [this](int, int, float, float) { ++labelMoves; };
  }
  void Form_Activate() override { ++activations; }
  void Form_GotFocus() override { ++focuses; }
  void Form_MouseMove(int, int, float, float) override { ++formMoves; }

  Label caption{*this, "Label1"};
  int activations = 0, focuses = 0, labelMoves = 0, formMoves = 0;
};

void MoveOver(QWidget* widget) {
  QMouseEvent move(QEvent::MouseMove, QPointF(5, 5), widget->mapToGlobal(QPointF(5, 5)),
                   Qt::NoButton, Qt::NoButton, Qt::NoModifier);
  QCoreApplication::sendEvent(widget, &move);
}

TEST_F(MainWindow, ActivationRunsActivateAndGotFocusEachTimeTheFormComesBack) {
  CountingForm form;
  FormWindow counting(form);
  form.Show();  // the model runs Form_Activate; the shell is not told of this form
  counting.SyncForm("Visible");
  ASSERT_TRUE(QTest::qWaitForWindowActive(&counting));
  // The activation that follows the showing is the one Show already ran.
  EXPECT_EQ(form.activations, 1);
  EXPECT_EQ(form.focuses, 1);

  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window));
  counting.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&counting));
  EXPECT_EQ(form.activations, 2);
  EXPECT_EQ(form.focuses, 2);

  // A move over the label is the label's alone; the canvas's is the form's.
  MoveOver(counting.WidgetOf(form.caption));
  EXPECT_EQ(form.labelMoves, 1);
  EXPECT_EQ(form.formMoves, 0);
  MoveOver(counting.centralWidget());
  EXPECT_EQ(form.formMoves, 1);
  counting.Detach();
}

TEST_F(MainWindow, WhenDisabledItHandsTheActivationToTheDialog) {
  QWidget* main = window;
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
