#include "desktop/shell.h"

#include <QApplication>
#include <QStyleFactory>

#include "desktop/fonts.h"

namespace ostraline {

void ConfigureApplication() {
  QApplication::setApplicationName(QStringLiteral("Ostraline"));
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QApplication::setFont(ProgramFont(8));
  // The program ends when its main form says so, or when no form is loaded.
  QApplication::setQuitOnLastWindowClosed(false);
}

Shell::Shell() {
  SetPlatform(&platform_);
  SetScreenObserver(&screen_);
}

Shell::~Shell() {
  SetScreenObserver(nullptr);
  SetPlatform(nullptr);
}

}  // namespace ostraline
