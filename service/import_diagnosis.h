#pragma once
// What went wrong in a file that failed to import, told after the program's
// own message for the command line: the file, the line and the field, what
// was found and what was expected.
#include <string>
#include <string_view>
#include <vector>

#include "runtime/failure.h"

namespace ostraline {

// The files of the import chain and the data file, each with its layout.
enum class ImportedFile { CorrelationModel, EventList, AgeModel, VarveCounts, DataFile };

// One line without its end, "model.csv: line 37, field 14: 'abc' is not a
// number", from the failure that ended the import and a second reading of
// the file. Text taken from the file has its control characters escaped.
std::string DiagnoseImport(ImportedFile kind, const std::string& path,
                           const FailureRecord& failure);

// What a data file that was read as the program reads it probably did not
// mean: a PSP or value that is no number, a deciding cell that made a file of
// values one of positions, rows of positions with more than four fields. One
// line to a warning, the first few of each kind.
std::vector<std::string> DataFileWarnings(const std::string& path);

// The text with every control character written as \xHH, so that nothing
// from a file can steer the terminal it is printed on.
std::string Printable(std::string_view text);

}  // namespace ostraline
