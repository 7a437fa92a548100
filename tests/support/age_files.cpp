#include "support/age_files.h"

#include "forms/frm_main.h"
#include "support/model_files.h"

namespace ostraline {

const char* const kFusedLayer =
    "Hole,Section,Top,Bottom,Description\r\nA,01,42,48,Tephra\r\nA,01,46,50,Void\r\n";
const char* const kNoLayer = "Hole,Section,Top,Bottom,Description\r\n";

std::string AgeModelText(const std::vector<AgeRow>& rows, const AgeHeader& header) {
  std::string text = "Label,Hole,Section,PSP," + header.depth + "," + header.plus + ",Age," +
                     header.minus + ",Class,Unit,Remark\r\n";
  for (const AgeRow& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i) text += (i == 0 ? "" : ",") + row[i];
    text += "\r\n";
  }
  return text;
}

std::string VarveText(const std::vector<std::pair<std::string, std::string>>& markers) {
  std::string text = "Composite depth,Varves\r\n";
  for (const auto& [depth, count] : markers) text += depth + "," + count + "\r\n";
  return text;
}

void AgeProgram::ImportModelAndEvents(const std::string& eventList) {
  const std::vector<ModelRow> model = {DefaultHeader(),
                                       RowA("A-01-top", "0", "100", ""),
                                       RowA("L1", "10", "110", "110"),
                                       RowA("L2", "50", "150", "160"),
                                       RowA("A-01-bottom", "80", "180", ""),
                                       RowA("A-02-top", "0", "185", "", "Gap"),
                                       RowA("L3", "20", "205", "230"),
                                       RowA("L4", "60", "245", "270"),
                                       RowA("A-02-bottom", "90", "275", "")};
  platform.QueueFile(WriteTempFile("model_20110305.csv", ModelText(model)));
  frmMain->Command1_Click();
  platform.QueueFile(WriteTempFile("events_20110401.csv", eventList));
  frmMain->Command3_Click();
  ASSERT_TRUE(platform.messages.empty()) << OnlyMessage();
}

void AgeProgram::ImportAges(const std::vector<AgeRow>& rows, const AgeHeader& header) {
  platform.QueueFile(WriteTempFile("ages_20120101.csv", AgeModelText(rows, header)));
  frmMain->Command4_Click();
}

void AgeProgram::ImportVarves(const std::vector<std::pair<std::string, std::string>>& markers) {
  platform.QueueFile(WriteTempFile("varves_20130201.csv", VarveText(markers)));
  frmMain->Command5_Click();
}

std::string AgeProgram::OnlyMessage() const {
  if (platform.messages.size() != 1) return std::to_string(platform.messages.size()) + " messages";
  return platform.messages[0].title + ": " + platform.messages[0].text;
}

}  // namespace ostraline
