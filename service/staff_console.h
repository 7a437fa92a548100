#pragma once
// The staff console: its login and the trace of the composite depth box.
namespace ostraline {

class MainForm;

// Prints the target horizon's guards and the composite depth text on the
// console, seven lines for each change of the box.
void TraceText2Change(MainForm& form);

}  // namespace ostraline
