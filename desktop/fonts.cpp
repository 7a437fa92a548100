#include "desktop/fonts.h"

#include <QGuiApplication>
#include <QPaintDevice>
#include <QScreen>

namespace ostraline {
namespace {

QFont FontAtDpi(double points, double logicalDpi) {
  QFont font(QStringLiteral("Liberation Sans"));
  font.setStyleHint(QFont::SansSerif);
  font.setPointSizeF(points * 96.0 / (logicalDpi > 0 ? logicalDpi : 96.0));
  return font;
}

}  // namespace

QFont ProgramFont(double points, const QPaintDevice& device) {
  return FontAtDpi(points, device.logicalDpiY());
}

QFont ProgramFont(double points) {
  const QScreen* screen = QGuiApplication::primaryScreen();
  return FontAtDpi(points, screen != nullptr ? screen->logicalDotsPerInchY() : 96.0);
}

}  // namespace ostraline
