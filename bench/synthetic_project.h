#pragma once
// Synthetic projects of the largest size a file may hold, written to the
// temporary folder and imported through the buttons of the import chain.
#include <string>

namespace ostraline {

class ScriptedPlatform;

// Four bore holes cut alike into sections of sectionRows rows, two cm a row,
// a tie every fifth row, a pin now and then, the splice passing from hole to
// hole; sections named "001" on.
std::string SyntheticModelFile(int rows, int sectionRows);
// The text in a fresh file of the temporary folder; its full name.
std::string WriteBenchFile(const std::string& name, const std::string& text);
// A fresh program with the platform installed, and the model imported.
void ImportSyntheticModel(ScriptedPlatform& platform, int rows, int sectionRows);
// Every form dropped, every state at its defaults, the platform uninstalled.
void EndBenchProgram();

}  // namespace ostraline
