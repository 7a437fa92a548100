// ostraline-convert: converts a data file between the scales of a project,
// through the same forms as the desktop program.
#include <iostream>
#include <string>
#include <vector>

#include "cli/convert_options.h"
#include "cli/convert_run.h"
#include "service/program_version.h"

int main(int argc, char** argv) {
  const std::vector<std::string> args(argv + 1, argv + argc);
  const ostraline::cli::ParsedCommandLine parsed = ostraline::cli::ParseCommandLine(args);
  if (parsed.help) {
    std::cout << ostraline::cli::HelpText();
    return 0;
  }
  if (parsed.version) {
    std::cout << ostraline::ProgramVersion() << "\n";
    return 0;
  }
  if (!parsed.error.empty()) {
    std::cerr << "ostraline-convert: " << parsed.error << "\n"
              << "Try 'ostraline-convert --help'.\n";
    return 2;
  }
  return ostraline::cli::RunConversion(parsed.options, std::cerr);
}
