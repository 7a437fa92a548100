// The desktop tests need one application object for all of them.
#include <gtest/gtest.h>

#include <QApplication>

#include "desktop/shell.h"

int main(int argc, char* argv[]) {
  QApplication app(argc, argv);
  ostraline::ConfigureApplication();
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
