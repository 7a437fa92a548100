// A panel's "Copy" from its context menu reaches the desktop's clipboard as
// the committed picture, rendered as the window paints it.
#include <gtest/gtest.h>

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <algorithm>
#include <cmath>

#include "forms/frm_main.h"
#include "shell_fixture.h"

namespace ostraline {
namespace {

class PanelClipboard : public ShellTest {
 protected:
  // An entry of a pop-up menu, which the menu bar holds hidden in the
  // order of the form's menus.
  QAction* EntryOf(const Menu& popup, const QString& caption) {
    auto* window = qobject_cast<QMainWindow*>(WindowOf(*frmMain));
    const std::vector<Menu*>& titles = frmMain->MenuBar();
    const auto at = std::find(titles.begin(), titles.end(), &popup);
    if (window == nullptr || at == titles.end()) return nullptr;
    QMenu* menu = window->menuBar()->actions().at(at - titles.begin())->menu();
    for (QAction* entry : menu->actions()) {
      if (entry->text() == caption) return entry;
    }
    return nullptr;
  }
};

TEST_F(PanelClipboard, CopyTakesTheCommittedPictureWithoutTheOverlay) {
  frmMain->Show();
  PictureBox& panel = frmMain->Picture1(3);
  panel.ScaleLeft = 0;
  panel.ScaleWidth = 10;
  panel.ScaleTop = 0;
  panel.ScaleHeight = 100;
  panel.LineBF(0, 0, 10, 50, RGB(255, 0, 0));
  panel.CommitImage();
  // What lies over the committed picture, as the target line does.
  panel.LineBF(0, 50, 10, 100, RGB(255, 150, 0));
  QGuiApplication::clipboard()->clear();

  // The import enables the panel's entries.
  frmMain->mnuCopy(3).Enabled = true;
  QAction* copy = EntryOf(frmMain->mnuPicRB(3), QStringLiteral("Copy"));
  ASSERT_NE(copy, nullptr);
  copy->trigger();

  const QImage copied = QGuiApplication::clipboard()->image();
  const long back = panel.GetPicture().backColour;
  EXPECT_EQ(copied.size(), QSize(static_cast<int>(std::ceil(panel.InnerWidth() / 15)),
                                 static_cast<int>(std::ceil(panel.InnerHeight() / 15))));
  EXPECT_EQ(copied.pixelColor(copied.width() / 2, copied.height() / 4), QColor(255, 0, 0));
  EXPECT_EQ(copied.pixelColor(copied.width() / 2, copied.height() * 3 / 4),
            QColor(RedOf(back), GreenOf(back), BlueOf(back)));
}

}  // namespace
}  // namespace ostraline
