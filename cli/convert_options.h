#pragma once
// The command line of ostraline-convert.
#include <optional>
#include <string>
#include <vector>

#include "service/command_line.h"

namespace ostraline::cli {

// The project's files, and what is to be done with them.
struct ConvertOptions : ProjectFiles {
  // INPUT converted by the Duo's form instead of the master's.
  bool duo = false;
  bool oneToOne = false;
  int depthDigits = 2;
  int ageDigits = 0;
  // Scale codes as the form indexes them: 1 trinity, 2 composite, 4 EFD, 8 age.
  std::optional<int> from;
  std::optional<int> to;  // sum of codes
  bool ignoreVersionMismatch = false;
  // Replace an OUTPUT that is read-only.
  bool force = false;
  // No warnings about what the data file probably meant.
  bool quiet = false;
  std::string input;
  std::string output;
};

struct ParsedCommandLine {
  ConvertOptions options;
  bool help = false;
  bool version = false;
  // What is wrong with the command line; empty when nothing is.
  std::string error;
};

ParsedCommandLine ParseCommandLine(const std::vector<std::string>& args);
const char* HelpText();

}  // namespace ostraline::cli
