// The desktop program: the main form in a window, as the model leaves it.
#include <QApplication>
#include <QTimer>
#include <cstdio>
#include <cstring>

#include "desktop/demo.h"
#include "desktop/screenshot.h"
#include "desktop/shell.h"
#include "forms/frm_main.h"

int main(int argc, char* argv[]) {
  QApplication app(argc, argv);
  ostraline::ConfigureApplication();
  ostraline::Shell shell;

  const char* screenshot = nullptr;
  bool demo = false;
  bool duo = false;
  for (int i = 1; i < argc; ++i) {
    if (std::strcmp(argv[i], "--screenshot") == 0 && i + 1 < argc) {
      screenshot = argv[++i];
    } else if (std::strcmp(argv[i], "--demo") == 0) {
      demo = true;
    } else if (std::strcmp(argv[i], "--duo") == 0) {
      duo = true;
    }
  }

  ostraline::frmMain->Show();
  if (demo) {
    const std::string folder = ostraline::SampleProjectFolder(argv[0]);
    if (folder.empty() || !ostraline::ImportSampleProject(shell, folder)) {
      std::fputs("The sample project was not found.\n", stderr);
    } else if (duo && !ostraline::ImportSampleDuo(shell, folder)) {
      std::fputs("The sample project has no parallel set.\n", stderr);
    }
  }
  if (screenshot != nullptr) {
    // Once the event loop has shown the window.
    QTimer::singleShot(0, &app, [&] {
      const bool saved = ostraline::SaveScreenshot(shell, screenshot);
      if (!saved) std::fprintf(stderr, "cannot write the screenshot %s\n", screenshot);
      app.exit(saved ? 0 : 1);
    });
  }
  return app.exec();
}
