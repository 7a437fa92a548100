#pragma once
// The program's name and version, as --version prints them.
#include <string>

namespace ostraline {

// "Ostraline 7.7.4": the caption of the main form as it opens, the one place
// that names the version; the version form shows the same.
std::string ProgramVersion();

}  // namespace ostraline
