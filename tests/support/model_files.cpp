#include "support/model_files.h"

#include <filesystem>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

namespace ostraline {

ModelRow DefaultHeader() {
  ModelRow row{"Splice", {}, "Composite depth"};
  for (char hole : std::string("ABCD")) {
    row.holes.insert(row.holes.end(), {std::string("Bore hole ") + hole + " (" + hole + ")", "PSP",
                                       "Drilling depth"});
  }
  return row;
}

ModelRow RowA(const std::string& label, const std::string& psp, const std::string& drill,
              const std::string& cd, const std::string& splice) {
  ModelRow row{splice, {label, psp, drill}, cd};
  for (int hole = 2; hole <= 4; ++hole) row.holes.insert(row.holes.end(), {"*", "*", "*"});
  return row;
}

std::string ModelText(const std::vector<ModelRow>& rows, bool longLayout) {
  std::string text;
  for (std::size_t r = 0; r < rows.size(); ++r) {
    const ModelRow& row = rows[r];
    text += "'" + row.splice;
    for (const std::string& cell : row.holes) text += ",'" + cell;
    text += ",'" + row.cd;
    if (longLayout)
      text += r == 0 ? ",'Master kind,'Master hole,'Master section,'Master PSP" : ",'x,'x,'x,'x";
    text += "\r\n";
  }
  return text;
}

std::string WriteTempFile(const std::string& name, const std::string& content) {
  const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
  const std::filesystem::path folder = std::filesystem::temp_directory_path() / "ostraline-tests" /
                                       (std::string(info->test_suite_name()) + "." + info->name());
  std::filesystem::create_directories(folder);
  const std::filesystem::path path = folder / name;
  std::ofstream(path, std::ios::binary) << content;
  return path.string();
}

std::string FileContents(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

std::vector<ModelRow> TwoSectionModel() {
  return {DefaultHeader(),
          RowA("A-01-top", "0", "100", ""),
          RowA("L1", "10", "110", "110"),
          RowA("L2", "50", "150", "160"),
          RowA("A-01-bottom", "80", "180", ""),
          RowA("A-02-top", "0", "185", "", "Gap"),
          RowA("L3", "20", "205", "230"),
          RowA("L4", "60", "245", "270"),
          RowA("A-02-bottom", "90", "275", "")};
}

std::vector<ModelRow> FourHoleModel() {
  struct Line {
    const char* label;
    const char* psp;
    int drill;
    const char* cd;
  };
  const Line lines[] = {{"01-top", "0", 100, "200"},  {"L1", "50", 150, "250"},
                        {"L2", "100", 200, "300"},    {"01-bottom", "150", 250, ""},
                        {"02-top", "0", 260, "350"},  {"L3", "100", 360, "450"},
                        {"02-bottom", "150", 410, ""}};
  std::vector<ModelRow> rows{DefaultHeader()};
  for (const Line& line : lines) {
    ModelRow row{"A", {}, line.cd};
    for (char hole : std::string("ABCD")) {
      const std::string label = line.label[0] == 'L' ? std::string(line.label) + hole
                                                     : std::string(1, hole) + "-" + line.label;
      row.holes.insert(row.holes.end(),
                       {label, line.psp, std::to_string(line.drill + (hole - 'A') * 7)});
    }
    rows.push_back(row);
  }
  return rows;
}

std::string DuoModelText(bool withMasterColumns) {
  const std::vector<std::vector<std::string>> rows = {
      {"Top", "Bore hole E (E)", "PSP", "Depth", "Core 9 (F)", "PSP", "Depth", "G (G)", "PSP",
       "Depth", "H (H)", "PSP", "Depth", "Composite", "Kind (Lake Ostra)", "Hole", "Section",
       "PSP"},
      {"E", "E-01-top", "0", "90", "*", "*", "*", "*", "*", "*", "*", "*", "*", "", "-", "---",
       "---", "---"},
      {"E", "L1", "10", "100", "*", "*", "*", "*", "*", "*", "*", "*", "*", "100", "T", "A", "01",
       "10"},
      {"E", "L2", "110", "200", "*", "*", "*", "*", "*", "*", "*", "*", "*", "200", "T", "A", "02",
       "20"},
      {"E", "E-01-bottom", "150", "240", "*", "*", "*", "*", "*", "*", "*", "*", "*", "", "-",
       "---", "---", "---"}};
  std::string text;
  for (const auto& row : rows) {
    const std::size_t fields = withMasterColumns ? row.size() : 14;
    for (std::size_t f = 0; f < fields; ++f) text += (f ? ",'" : "'") + row[f];
    text += "\r\n";
  }
  return text;
}

}  // namespace ostraline
