// The desktop program: the main form in a window, as the model leaves it.
#include <QApplication>
#include <QTimer>
#include <iostream>
#include <string>
#include <vector>

#include "desktop/demo.h"
#include "desktop/desktop_options.h"
#include "desktop/screenshot.h"
#include "desktop/shell.h"
#include "forms/frm_main.h"
#include "service/program_version.h"

int main(int argc, char* argv[]) {
  // Read before Qt starts, so that --help and --version need no display.
  const std::vector<std::string> args(argv + 1, argv + argc);
  const ostraline::ParsedDesktopCommandLine parsed = ostraline::ParseDesktopCommandLine(args);
  if (parsed.help) {
    std::cout << ostraline::DesktopHelpText();
    return 0;
  }
  if (parsed.version) {
    std::cout << ostraline::ProgramVersion() << "\n";
    return 0;
  }
  if (!parsed.error.empty()) {
    std::cerr << "ostraline: " << parsed.error << "\n"
              << ostraline::DesktopUsage() << "Try 'ostraline --help'.\n";
    return 2;
  }
  const ostraline::DesktopOptions& options = parsed.options;

  QApplication app(argc, argv);
  ostraline::ConfigureApplication();
  ostraline::Shell shell;

  ostraline::frmMain->Show();
  if (options.demo) {
    const std::string folder =
        ostraline::SampleProjectFolder(QCoreApplication::applicationFilePath().toStdString());
    if (folder.empty() || !ostraline::ImportSampleProject(shell, folder)) {
      std::cerr << "The sample project was not found.\n";
    } else if (options.duo && !ostraline::ImportSampleDuo(shell, folder)) {
      std::cerr << "The sample project has no parallel set.\n";
    }
  } else if (!options.files.model.empty()) {
    ostraline::QtDialogs user;
    const std::string stopped = ostraline::ImportProjectFiles(shell, options.files, user);
    if (!stopped.empty()) {
      std::cerr << "ostraline: " << stopped << " was not imported; the imports stopped there.\n";
    }
  }
  if (!options.screenshot.empty()) {
    // Once the event loop has shown the window.
    QTimer::singleShot(0, &app, [&] {
      const bool saved = ostraline::SaveScreenshot(shell, options.screenshot);
      if (!saved) std::cerr << "cannot write the screenshot " << options.screenshot << "\n";
      app.exit(saved ? 0 : 1);
    });
  }
  return app.exec();
}
