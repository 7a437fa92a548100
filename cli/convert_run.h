#pragma once
// Drives the headless forms through the imports, the data file and "Convert
// and Save", as a user of the desktop program would.
#include <ostream>

#include "cli/convert_options.h"

namespace ostraline::cli {

// Exit status: 0 when the output was written, 1 when an import or the
// conversion failed. The program's messages go to messages.
int RunConversion(const ConvertOptions& options, std::ostream& messages);

}  // namespace ostraline::cli
