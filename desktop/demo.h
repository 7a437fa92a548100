#pragma once
// Projects imported at start through the ordinary routines in the order of
// the import chain, as if the user had picked each file in its dialog: the
// bundled sample project, or the files named on the command line.
#include <string>

#include "service/command_line.h"

namespace ostraline {

class Dialogs;
class Shell;

// The folder of the bundled sample project: beside the program, in the
// share folder of its installation, else the source tree's.
std::string SampleProjectFolder(const std::string& programPath);
// Imports the correlation model, the event layers, the age-depth model and
// the varve counts of the folder; false when the folder holds no project.
bool ImportSampleProject(Shell& shell, const std::string& folder);
// Opens the Duo beside the main form, imports the sample's parallel set with
// its event list, and types a horizon into the Duo's composite depth box;
// false when the folder holds no parallel set.
bool ImportSampleDuo(Shell& shell, const std::string& folder);
// Imports the named files, the Duo opened for its model; every question and
// message on the way but the Duo's question for its event list goes to
// `user`. The first file that is not imported (its message box has said
// why, or its button was not open at its turn) ends the imports and is
// returned; empty when all were imported.
std::string ImportProjectFiles(Shell& shell, const ProjectFiles& files, Dialogs& user);

}  // namespace ostraline
