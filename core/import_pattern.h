#pragma once
// The pattern that every import shares: the open dialog, the file, and the
// one failure path.
#include "runtime/field_reader.h"

namespace ostraline {

class MainForm;

// The open dialog with the data files' filter; cancelling raises the failure
// that ends the import silently. fileOpen turns true once the file is open.
FieldReader OpenDataFile(MainForm& form, bool& fileOpen);
// The progress bar at 0 and hidden, the default pointer.
void ResetProgress(MainForm& form);
// "File format error." titled "Error" with the exclamation icon.
void ShowFormatError();

}  // namespace ostraline
