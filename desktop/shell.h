#pragma once
// The desktop around the forms: Qt's platform services and one window per
// form, installed into the control model for the life of a Shell.
#include "desktop/qt_platform.h"
#include "desktop/shell_screen.h"

namespace ostraline {

// One look on every desktop: the same style, and Arial's metrics.
void ConfigureApplication();

class Shell {
 public:
  Shell();
  Shell(const Shell&) = delete;
  Shell& operator=(const Shell&) = delete;
  ~Shell();

  QtPlatform& Platform() { return platform_; }
  ShellScreen& Screen() { return screen_; }

 private:
  QtPlatform platform_;
  ShellScreen screen_;
};

}  // namespace ostraline
