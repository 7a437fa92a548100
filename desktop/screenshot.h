#pragma once
// A picture of the program's main windows as they stand on the screen.
#include <string>

namespace ostraline {

class Shell;

// The main form's window, and the Duo's beside it when it is shown, at
// their places relative to each other, saved as a PNG file.
bool SaveScreenshot(Shell& shell, const std::string& path);

}  // namespace ostraline
