// The probe form's controls driven through their widgets, and the model's
// writes seen on the widgets.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFontInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTest>
#include <QTimer>
#include <algorithm>

#include "probe_form.h"
#include "shell_fixture.h"

namespace ostraline {
namespace {

class ControlBinding : public ShellTest {
 protected:
  void SetUp() override {
    ShellTest::SetUp();
    ProbeLog().clear();
    frmProbe->Show();
    window = qobject_cast<QMainWindow*>(WindowOf(*frmProbe));
    ASSERT_NE(window, nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
  }
  static long Count(const std::string& entry) {
    return std::count(ProbeLog().begin(), ProbeLog().end(), entry);
  }
  static bool Logged(const std::string& entry) { return Count(entry) == 1; }

  QMainWindow* window = nullptr;
};

TEST_F(ControlBinding, TypingRunsKeyHandlersAndChangeWithoutEcho) {
  auto* edit = WidgetOf<QLineEdit>(frmProbe->Box);
  ASSERT_NE(edit, nullptr);
  QTest::keyClicks(edit, "1xa2");
  // KeyPress dropped the x and turned the a into an A.
  EXPECT_EQ(frmProbe->Box.Text.Get(), "1A2");
  EXPECT_EQ(edit->text(), QStringLiteral("1A2"));
  for (const char* entry : {"KeyDown 49", "KeyDown 88", "Change 1", "Change 1A", "Change 1A2"})
    EXPECT_TRUE(Logged(entry)) << entry;

  ProbeLog().clear();
  frmProbe->Box.Text = "77";
  EXPECT_EQ(edit->text(), QStringLiteral("77"));
  EXPECT_EQ(ProbeLog(), std::vector<std::string>{"Change 77"});
}

TEST_F(ControlBinding, ModelWritesShowOnTheWidgets) {
  Label& note = frmProbe->Note;
  auto* label = WidgetOf<QLabel>(note);
  note.Caption = "Depth";
  note.Alignment = 1;
  note.Top = 3000;
  note.ToolTipText = "Target depth";
  note.FontSize = 12;
  note.ForeColor = RGB(200, 0, 0);
  note.Enabled = false;
  EXPECT_EQ(label->text(), QStringLiteral("Depth"));
  EXPECT_TRUE(label->alignment() & Qt::AlignRight);
  EXPECT_EQ(label->y(), 200);
  EXPECT_EQ(label->toolTip(), QStringLiteral("Target depth"));
  EXPECT_EQ(QFontInfo(label->font()).pixelSize(), 16);  // 12 points at 96 to the inch
  EXPECT_EQ(label->palette().color(QPalette::Active, QPalette::WindowText), QColor(200, 0, 0));
  EXPECT_FALSE(label->isEnabled());
  note.Visible = false;
  EXPECT_TRUE(label->isHidden());

  frmProbe->Bar.Max = 80;
  frmProbe->Bar.Value = 20.4f;
  EXPECT_EQ(WidgetOf<QProgressBar>(frmProbe->Bar)->maximum(), 80);
  EXPECT_EQ(WidgetOf<QProgressBar>(frmProbe->Bar)->value(), 20);

  // A multi-line box shows the program's "\r\n" as line breaks and keeps them.
  auto* memo = WidgetOf<QPlainTextEdit>(frmProbe->Memo);
  frmProbe->Memo.Text = "a\r\nb";
  EXPECT_EQ(memo->toPlainText(), QStringLiteral("a\nb"));
  memo->moveCursor(QTextCursor::End);
  QTest::keyClicks(memo, "c");
  EXPECT_EQ(frmProbe->Memo.Text.Get(), "a\r\nbc");
}

TEST_F(ControlBinding, FocusFollowsTheUserAndTheModel) {
  auto* edit = WidgetOf<QLineEdit>(frmProbe->Box);
  auto* combo = WidgetOf<QComboBox>(frmProbe->Combo);
  edit->setFocus(Qt::MouseFocusReason);
  EXPECT_EQ(FocusedControl(), &frmProbe->Box);

  frmProbe->Combo.SetFocus();
  EXPECT_TRUE(combo->hasFocus());
  EXPECT_EQ(ProbeLog(),
            (std::vector<std::string>{"Box GotFocus", "Box LostFocus", "Combo GotFocus"}));
}

TEST_F(ControlBinding, ClicksOnButtonsOptionsChecksAndMenus) {
  QTest::mouseClick(WidgetOf<QPushButton>(frmProbe->Button), Qt::LeftButton);
  EXPECT_TRUE(Logged("Button Click"));

  auto* one = WidgetOf<QRadioButton>(frmProbe->Choice(0));
  auto* two = WidgetOf<QRadioButton>(frmProbe->Choice(1));
  EXPECT_EQ(two->parentWidget(), WidgetOf<QWidget>(frmProbe->Group));
  frmProbe->Choice(0).Value = true;
  EXPECT_TRUE(one->isChecked());
  // Qt's buttons take clicks on their indicator and text only.
  const QPoint indicator(6, two->height() / 2);
  QTest::mouseClick(two, Qt::LeftButton, {}, indicator);
  EXPECT_TRUE(frmProbe->Choice(1).Value.Get());
  EXPECT_FALSE(frmProbe->Choice(0).Value.Get());
  EXPECT_FALSE(one->isChecked());
  // A click on the button that is set leaves it set and runs nothing.
  QTest::mouseClick(two, Qt::LeftButton, {}, indicator);
  EXPECT_TRUE(two->isChecked());
  EXPECT_TRUE(Logged("Two Click"));

  QTest::mouseClick(WidgetOf<QCheckBox>(frmProbe->Tick), Qt::LeftButton, {}, indicator);
  EXPECT_EQ(frmProbe->Tick.Value.Get(), 1);
  EXPECT_TRUE(Logged("Tick Click"));

  const QList<QAction*> titles = window->menuBar()->actions();
  ASSERT_EQ(titles.size(), 2);
  EXPECT_EQ(titles[0]->text(), QStringLiteral("File"));
  EXPECT_FALSE(titles[1]->isVisible());  // the pop-up menu is not on the bar
  QAction* go = titles[0]->menu()->actions().value(0);
  ASSERT_NE(go, nullptr);
  go->trigger();
  EXPECT_TRUE(Logged("Go Click"));
  EXPECT_TRUE(go->isChecked());
  go->trigger();
  EXPECT_FALSE(frmProbe->mnuGo.Checked.Get());
  EXPECT_FALSE(go->isChecked());
}

TEST_F(ControlBinding, ComboPicksAndSliderMovesGoToTheModel) {
  ComboBox& combo = frmProbe->Combo;
  for (const char* item : {"A", "B", "C"}) combo.AddItem(item);
  combo.Text = "---";
  auto* widget = WidgetOf<QComboBox>(combo);
  EXPECT_EQ(widget->count(), 3);
  EXPECT_EQ(widget->currentText(), QStringLiteral("---"));
  widget->setFocus();
  QTest::keyClick(widget, Qt::Key_Down);
  EXPECT_EQ(combo.Text.Get(), "B");
  EXPECT_TRUE(Logged("Combo Click B"));
  combo.Clear();
  EXPECT_EQ(widget->count(), 0);
  EXPECT_TRUE(widget->currentText().isEmpty());

  auto* slider = WidgetOf<QSlider>(frmProbe->Track);
  EXPECT_EQ(slider->orientation(), Qt::Vertical);
  frmProbe->Track.Value = 40;
  EXPECT_EQ(slider->value(), 40);
  EXPECT_EQ(Count("Scroll 40"), 0);  // a write from code runs nothing
  slider->setFocus();
  QTest::keyClick(slider, Qt::Key_PageDown);
  EXPECT_EQ(frmProbe->Track.Value.Get(), slider->value());
  EXPECT_NE(slider->value(), 40);
  EXPECT_EQ(ProbeLog().back(), "Scroll " + std::to_string(slider->value()));
}

TEST_F(ControlBinding, PictureMouseComesInTheUserScaleAndPopupMenuWaitsForItsClick) {
  PictureBox& surface = frmProbe->Surface;
  surface.ScaleLeft = 0;
  surface.ScaleWidth = 10;
  surface.ScaleTop = 100;
  surface.ScaleHeight = 50;
  ProbeLog().clear();
  // Two pixels of border, then 30 and 40 pixels into the 100-pixel square.
  QTest::mousePress(WidgetOf<QWidget>(surface), Qt::RightButton, {}, QPoint(32, 42));
  // The press took the focus from the text box first.
  EXPECT_EQ(ProbeLog(),
            (std::vector<std::string>{"Box LostFocus", "MouseDown 2 3.000000 120.000000"}));

  // The menu's click runs before PopupMenu returns.
  surface.MouseDown = [](int, int, float, float) {
    frmProbe->PopupMenu(frmProbe->mnuPop);
    ProbeLog().push_back("after PopupMenu");
  };
  ProbeLog().clear();
  QTimer::singleShot(50, [] {
    QWidget* popup = QApplication::activePopupWidget();
    ASSERT_NE(popup, nullptr);
    QTest::keyClick(popup, Qt::Key_Down);
    QTest::keyClick(popup, Qt::Key_Return);
  });
  QTest::mousePress(WidgetOf<QWidget>(surface), Qt::RightButton, {}, QPoint(10, 10));
  EXPECT_EQ(ProbeLog(), (std::vector<std::string>{"Pick Click", "after PopupMenu"}));
}

TEST_F(ControlBinding, ResizeAndCloseGoThroughTheForm) {
  window->resize(window->width() + 30, window->height() + 15);
  QTest::qWait(20);
  EXPECT_TRUE(Logged("Resize"));
  EXPECT_FLOAT_EQ(frmProbe->Width.Get(), 7500 + 30 * 15);
  EXPECT_FLOAT_EQ(frmProbe->Height.Get(), 6000 + 15 * 15);

  frmProbe->refuseUnload = true;
  window->close();
  EXPECT_TRUE(frmProbe.IsLoaded());
  EXPECT_TRUE(window->isVisible());
  frmProbe->refuseUnload = false;
  const QPointer<QMainWindow> closing = window;
  window->close();
  EXPECT_FALSE(frmProbe.IsLoaded());
  EXPECT_FALSE(closing->isVisible());
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(closing.isNull());
}

}  // namespace
}  // namespace ostraline
