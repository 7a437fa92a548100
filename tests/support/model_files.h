#pragma once
// Small correlation models written to a temporary folder for the tests.
#include <string>
#include <vector>

namespace ostraline {

// One row of a model: the splice cell, label/PSP/drilling depth for each of
// the four bore holes, and the composite depth; cells without their prefix.
struct ModelRow {
  std::string splice;
  std::vector<std::string> holes;  // 12 cells
  std::string cd;
};

// A header with "Bore hole A (A)" style hole cells.
ModelRow DefaultHeader();
// A row for bore hole A only; the other holes hold starred cells.
ModelRow RowA(const std::string& label, const std::string& psp, const std::string& drill,
              const std::string& cd, const std::string& splice = "A");
// The file text: every cell gets the prefix character, 14 or 18 columns.
std::string ModelText(const std::vector<ModelRow>& rows, bool longLayout = false);
// Writes text into a fresh file of that name in the test's temporary folder.
std::string WriteTempFile(const std::string& name, const std::string& content);
// A file's bytes as they stand.
std::string FileContents(const std::string& path);

// Bore hole A in two sections: ties PSP 10 at 110 cm and 50 at 160 cm in
// section 01, then a gap and ties 20 at 230 and 60 at 270 in section 02,
// whose bottom (PSP 90) lies at 300 cm.
std::vector<ModelRow> TwoSectionModel();
// Four bore holes cut alike: two sections each, ties at composite depth 200,
// 250, 300 in the first and 350, 450 in the second; every core ends at 500.
std::vector<ModelRow> FourHoleModel();
// A Duo's model of bore hole E with ties at 100 and 200 cm, tied to the
// master's A-01 PSP 10 (110 cm) and A-02 PSP 20 (230 cm) of TwoSectionModel;
// its first row names no master hole. Without the master columns it is a
// model of the layout of old.
std::string DuoModelText(bool withMasterColumns = true);

}  // namespace ostraline
