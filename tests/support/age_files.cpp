#include "support/age_files.h"

#include "events/event_state.h"
#include "forms/frm_main.h"
#include "support/model_files.h"

namespace ostraline {

const char* const kFusedLayer =
    "Hole,Section,Top,Bottom,Description\r\nA,01,42,48,Tephra\r\nA,01,46,50,Void\r\n";
const char* const kNoLayer = "Hole,Section,Top,Bottom,Description\r\n";
const std::vector<AgeRow> kThreeControlPoints = {
    {"P1", "A", "01", "34", "0", "10", "1000", "20", "C1", "cal BP", "-"},
    {"P2", "---", "---", "---", "200", "20", "2000", "30", "C1", "cal BP", "-"},
    {"P3", "A", "02", "40", "0", "40", "3000", "40", "C1", "varve yr", "-"}};

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
  ImportModel(TwoSectionModel());
  ImportEventList(eventList);
  ASSERT_TRUE(platform.messages.empty()) << OnlyMessage();
}

void AgeProgram::Restart(const std::string& eventList) {
  ResetProgram();
  platform.messages.clear();
  ImportModelAndEvents(eventList);
}

void AgeProgram::ImportAges(const std::vector<AgeRow>& rows, const AgeHeader& header) {
  platform.QueueFile(WriteTempFile("ages_20120101.csv", AgeModelText(rows, header)));
  frmMain->Command4_Click();
}

void AgeProgram::ImportAll() {
  ImportModelAndEvents(kFusedLayer);
  ImportAges(kThreeControlPoints);
  ASSERT_TRUE(platform.messages.empty()) << OnlyMessage();
  ASSERT_TRUE(AgeModelLoaded);
}

void AgeProgram::ImportVarves(const std::vector<std::pair<std::string, std::string>>& markers) {
  platform.QueueFile(WriteTempFile("varves_20130201.csv", VarveText(markers)));
  frmMain->Command5_Click();
}

}  // namespace ostraline
