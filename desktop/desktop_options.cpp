#include "desktop/desktop_options.h"

namespace ostraline {

ParsedDesktopCommandLine ParseDesktopCommandLine(const std::vector<std::string>& args) {
  ParsedDesktopCommandLine parsed;
  DesktopOptions& options = parsed.options;
  OptionReader reader(args);
  while (parsed.error.empty() && reader.Next()) {
    const std::string& name = reader.Name();
    if (reader.IsFlag("--help") || reader.IsFlag("-h")) {
      parsed.help = true;
      return parsed;
    } else if (reader.IsFlag("--version")) {
      parsed.version = true;
      return parsed;
    } else if (reader.IsFlag("--demo")) {
      options.demo = true;
    } else if (reader.IsFlag("--duo")) {
      options.duo = true;
    } else if (std::string* file = name == "--screenshot"
                                       ? &options.screenshot
                                       : ProjectFileOption(options.files, name)) {
      const auto given = reader.Value(parsed.error);
      if (given && given->empty()) parsed.error = "invalid value '' for " + name;
      if (given) *file = *given;
    } else if (name.starts_with("-")) {
      parsed.error = "unknown option " + name;
    } else {
      parsed.error = "unexpected argument '" + name + "': files are named by their options";
    }
  }
  if (!parsed.error.empty()) return parsed;

  if (options.duo && !options.demo) {
    parsed.error = "--duo needs --demo: it opens the sample project's parallel set";
  } else if (options.demo && !options.files.model.empty()) {
    parsed.error = "--demo and --model exclude each other: both import a project";
  } else {
    parsed.error = ImportOrderError(options.files);
  }
  return parsed;
}

const char* DesktopUsage() {
  return R"(Usage: ostraline [--demo [--duo]] [--screenshot FILE]
       ostraline --model FILE [--events FILE] [--ages FILE] [--varves FILE]
                 [--duo-model FILE [--duo-events FILE] [--duo-ages FILE]
                  [--duo-varves FILE]] [--screenshot FILE]
       ostraline --help | --version
)";
}

std::string DesktopHelpText() {
  return std::string(DesktopUsage()) + R"(
Starts Ostraline, which converts sample positions of a lake-sediment core
between the depth scales and ages of its project. Without options the main
window opens with nothing imported.

  --demo             import the sample project installed with the program
  --duo              with --demo: open the Duo beside the main window with
                     the sample's parallel set, and type a horizon into it

The project's files, imported at start in the order of the import chain, as
if picked in the dialogs of the import buttons:
  --model FILE       correlation model
  --events FILE      list of event layers (needs --model)
  --ages FILE        age-depth model (needs --events)
  --varves FILE      varve counts (needs --ages)
  --duo-model FILE   open the Duo and import its correlation model
                     (needs --events)
  --duo-events FILE  the Duo's list of event layers; without it the Duo's
                     question for its event list is answered No
  --duo-ages FILE    the Duo's age-depth model
  --duo-varves FILE  the Duo's varve counts
An import that fails shows its message as a click would, and the files after
it are not imported.

  --screenshot FILE  write the main window (and the Duo beside it) to the PNG
                     FILE once it shows, then quit
  -h, --help         show this text
  --version          show the program's version

Exit status: 0 when the program ends normally, 1 when the screenshot could not
be written, 2 for a wrong command line.
)";
}

}  // namespace ostraline
