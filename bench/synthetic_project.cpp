#include "bench/synthetic_project.h"

#include <filesystem>
#include <fstream>

#include "core/fresh_program.h"
#include "forms/frm_main.h"
#include "forms/scripted_platform.h"
#include "runtime/number_text.h"

namespace ostraline {

std::string SyntheticModelFile(int rows, int sectionRows) {
  std::string text = "'Splice";
  for (char hole : std::string("ABCD")) {
    text += std::string(",'Bore hole ") + hole + " (" + hole + "),'PSP,'Drilling depth";
  }
  text += ",'Composite depth\r\n";
  const char* splice[] = {"A", "B", "C", "D", "Gap"};
  for (int r = 1; r <= rows; ++r) {
    const int section = (r - 1) / sectionRows + 1;
    const int inSection = (r - 1) % sectionRows;
    text.append("'").append(splice[section % 5]);
    for (char hole : std::string("ABCD")) {
      const std::string name = std::string(1, hole) + "-" + Right("00" + Str(section), 3);
      const std::string label = inSection == 0                              ? name + "-top"
                                : inSection == sectionRows - 1 || r == rows ? name + "-bottom"
                                : r % 97 == 0                               ? "Pin" + Str(r)
                                                                            : "L" + Str(r);
      text.append(",'").append(label).append(",'").append(Str(inSection * 2));
      text.append(",'").append(Str(r * 2));
    }
    text.append(",'").append(inSection % 5 == 0 ? Str(r * 2) : std::string()).append("\r\n");
  }
  return text;
}

std::string WriteBenchFile(const std::string& name, const std::string& text) {
  const auto path = std::filesystem::temp_directory_path() / ("ostraline-bench-" + name);
  std::ofstream(path, std::ios::binary) << text;
  return path.string();
}

void ImportSyntheticModel(ScriptedPlatform& platform, int rows, int sectionRows) {
  SetPlatform(&platform);
  ResetProgramState();
  platform.QueueFile(WriteBenchFile("model_20110305.csv", SyntheticModelFile(rows, sectionRows)));
  frmMain->Command1_Click();
}

void EndBenchProgram() {
  ResetProgramState();
  SetPlatform(nullptr);
}

}  // namespace ostraline
