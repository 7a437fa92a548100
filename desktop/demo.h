#pragma once
// The sample project, imported through the ordinary routines in the order of
// the import chain, as if the user had picked each file in its dialog.
#include <string>

namespace ostraline {

class Shell;

// The folder of the bundled sample project: beside the program when it is
// installed, else the source tree's.
std::string SampleProjectFolder(const std::string& programPath);
// Imports the correlation model, the event layers, the age-depth model and
// the varve counts of the folder; false when the folder holds no project.
bool ImportSampleProject(Shell& shell, const std::string& folder);
// Opens the Duo beside the main form, imports the sample's parallel set with
// its event list, and types a horizon into the Duo's composite depth box;
// false when the folder holds no parallel set.
bool ImportSampleDuo(Shell& shell, const std::string& folder);

}  // namespace ostraline
