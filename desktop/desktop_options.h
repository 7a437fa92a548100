#pragma once
// The command line of the desktop program.
#include <string>
#include <vector>

#include "service/command_line.h"

namespace ostraline {

struct DesktopOptions {
  // The sample project installed with the program, imported at start.
  bool demo = false;
  // With the sample project: the Duo with its parallel set beside the main form.
  bool duo = false;
  // The user's own files, imported at start as if picked in the dialogs.
  ProjectFiles files;
  // The PNG file the main windows are written to once they show; the
  // program then quits.
  std::string screenshot;
};

struct ParsedDesktopCommandLine {
  DesktopOptions options;
  bool help = false;
  bool version = false;
  // What is wrong with the command line; empty when nothing is.
  std::string error;
};

ParsedDesktopCommandLine ParseDesktopCommandLine(const std::vector<std::string>& args);
// The synopsis, shown with a wrong command line.
const char* DesktopUsage();
// The synopsis and what each option does.
std::string DesktopHelpText();

}  // namespace ostraline
