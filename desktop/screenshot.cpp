#include "desktop/screenshot.h"

#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QWidget>
#include <utility>
#include <vector>

#include "desktop/shell.h"
#include "forms/frm2_main.h"
#include "forms/frm_main.h"

namespace ostraline {

bool SaveScreenshot(Shell& shell, const std::string& path) {
  std::vector<QWidget*> windows;
  if (QWidget* master = shell.Screen().WindowOf(*frmMain)) windows.push_back(master);
  if (frm2Main.IsLoaded()) {
    QWidget* duo = shell.Screen().WindowOf(*frm2Main);
    if (duo != nullptr && duo->isVisible()) windows.push_back(duo);
  }
  if (windows.empty()) return false;
  QRect bounds;
  std::vector<std::pair<QPoint, QPixmap>> shots;
  for (QWidget* window : windows) {
    const QRect place(window->pos(), window->size());
    bounds = bounds.united(place);
    shots.emplace_back(place.topLeft(), window->grab());
  }
  QImage picture(bounds.size(), QImage::Format_RGB32);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  // The Duo lies over the master where the two overlap, as on the screen.
  for (const auto& [at, shot] : shots) painter.drawPixmap(at - bounds.topLeft(), shot);
  painter.end();
  return picture.save(QString::fromStdString(path), "PNG");
}

}  // namespace ostraline
