#pragma once
// Small text procedures that every import uses on file names and labels.
#include <string>

namespace ostraline {

// The text that stands for a file's version: a date found in the full name,
// else the stem.
std::string VersionDate(const std::string& name);
// The name without folder and a three-letter extension.
std::string FileStem(const std::string& name);
// A section's name from the lamina label of its top row.
std::string SectionFromLabel(const std::string& label);

}  // namespace ostraline
