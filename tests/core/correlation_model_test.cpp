#include <string>
#include <vector>

#include "core/project_state.h"
#include "forms/frm_kx11.h"
#include "forms/frm_main.h"
#include "support/fresh_program.h"
#include "support/model_files.h"

namespace ostraline {
namespace {

class CorrelationModelImport : public FreshProgram {
 protected:
  void ImportText(const std::string& text) {
    platform.QueueFile(WriteTempFile("model_20110305.csv", text));
    frmMain->Command1_Click();
  }
};

TEST_F(CorrelationModelImport, ShortAndLongLayoutsGiveTheSameCells) {
  for (bool longLayout : {false, true}) {
    ResetProgram();
    ImportText(ModelText(TwoSectionModel(), longLayout));
    ASSERT_TRUE(platform.messages.empty());
    EXPECT_EQ(LastRow, 8);
    EXPECT_EQ(ModelCell(0, 1, 1, 3) + "|" + TieCell(0, 5) + "|" + TieCell(1, 7), "50|Gap|270");
  }
  EXPECT_EQ(TieCell(0, 1), "A");
}

TEST_F(CorrelationModelImport, CellsLoseTheirPrefixStarsAndBlanks) {
  auto rows = TwoSectionModel();
  rows[2] = RowA("L1", " 10 ", "110*", "110");  // a good number with a star is no value
  rows[3].holes[1] = "*50";
  rows[4].cd = "---";
  ImportModel(rows);
  ASSERT_TRUE(platform.messages.empty());
  EXPECT_EQ(ModelCell(0, 1, 1, 2), "10");
  EXPECT_EQ(ModelCell(0, 1, 1, 3), "9999");
  EXPECT_EQ(ModelCell(0, 1, 2, 2), "9999");
  EXPECT_EQ(ModelCell(0, 2, 0, 2), "9999");  // "*" of bore hole B
  EXPECT_EQ(TieCell(1, 4), "9999");          // "---"
  EXPECT_EQ(TieCell(1, 1), "9999");          // empty
}

TEST_F(CorrelationModelImport, HeadersNameTheBoreHoles) {
  auto rows = TwoSectionModel();
  rows[0].holes[0] = "Core 6 (B)";
  rows[0].holes[3] = "Lamina name (Main core)";
  rows[0].holes[6] = "Bore Hole (C)";
  ImportModel(rows);
  ASSERT_TRUE(platform.messages.empty());
  EXPECT_EQ(HoleName(1), "B");
  EXPECT_EQ(HoleTitle(1), "Core 6");
  EXPECT_EQ(frmMain->Label1(1).Caption.Get(), "B (Core 6)");
  EXPECT_EQ(frmMain->mnuBH(1).Caption.Get(), "Bore hole B");
  EXPECT_EQ(HoleName(2), "B");  // the default letter stays
  EXPECT_EQ(HoleTitle(2), "Main core");
  EXPECT_EQ(frmMain->Label1(2).Caption.Get(), "Bore hole B");
  EXPECT_EQ(frmMain->Label1(3).Caption.Get(), "Bore hole C");
  EXPECT_EQ(frmMain->Caption.Get(), "Ostraline 7.7.4   [model_20110305]");
  EXPECT_EQ(ModelVersion, "05 Mar. 2011");
  EXPECT_FALSE(frmMain->Command1.Enabled);
  // The correlation assist's ruler takes the columns' scale: 100 units of
  // the 500 over 8775 twips, at true scale.
  EXPECT_FLOAT_EQ(frmKX11->Picture1.Height, 8775.0f * 100 / 500);
}

TEST_F(CorrelationModelImport, SectionsAreCountedByTheirLabels) {
  auto rows = TwoSectionModel();
  rows.pop_back();  // the last section has no bottom label
  ImportModel(rows);
  // Every core now ends at 0, above the first target at 240.
  ASSERT_EQ(platform.messages.size(), 1u);
  EXPECT_EQ(platform.messages[0].text, "Requested horizon is below core bottom.");
  EXPECT_EQ(SectionCount(1), 2);
  EXPECT_EQ(SectionName(1, 2), "02");
  EXPECT_EQ(SectionTopRow(1, 2), 5);
  EXPECT_EQ(SectionBottomRow(1, 1), 4);
  EXPECT_EQ(SectionBottomRow(1, 2), 0);
  EXPECT_EQ(CoreBottom(1), 0);  // row 0's never filled composite depth
  EXPECT_EQ(SectionCount(2), 0);
  // "TOP" in capitals opens nothing.
  ResetProgram();
  rows = TwoSectionModel();
  rows[5].holes[0] = "A-02-TOP";
  ImportModel(rows);
  EXPECT_EQ(SectionCount(1), 1);
}

TEST_F(CorrelationModelImport, BadFilesEndInTheMessageAndLeaveTheButton) {
  // A cancelled dialog changes nothing, silently.
  platform.QueueCancel();
  frmMain->Command1_Click();
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(LastRow, 0);
  EXPECT_TRUE(frmMain->Command1.Enabled);
  EXPECT_EQ(platform.dialogs.at(0).filter, "DataFile(*.csv)|*.csv");

  // Each of these files ends in the format error and leaves the button.
  const auto changed = [](void (*change)(std::vector<ModelRow>&)) {
    auto rows = TwoSectionModel();
    change(rows);
    return ModelText(rows);
  };
  const std::string bad[] = {
      // No "(" in a hole's header.
      changed([](std::vector<ModelRow>& rows) { rows[0].holes[3] = "Bore hole B"; }),
      // A cell of length 0 has no prefix to drop.
      "'S,'A (A),'P,'D,'B (B),'P,'D,'C (C),'P,'D,'D (D),'P,'D,'CD\r\n"
      "'A,'A-01-top,,'1,'*,'*,'*,'*,'*,'*,'*,'*,'*,'1\r\n",
      // A PSP that is no number fails the depth sweep.
      changed([](std::vector<ModelRow>& rows) { rows[2].holes[1] = "---"; }),
      // A blank line after the last row is one more row, and its reading fails.
      ModelText(TwoSectionModel()) + "\r\n",
      // A first splice cell of three characters with its prefix means the long
      // layout: eighteen fields a row from a file of fourteen run out mid-row.
      changed([](std::vector<ModelRow>& rows) { rows[1].splice = "AB"; })};
  for (const std::string& text : bad) {
    ResetProgram();
    platform.messages.clear();
    ImportText(text);
    EXPECT_TRUE(FailedWithFormatError()) << text;
    EXPECT_TRUE(frmMain->Command1.Enabled);
    EXPECT_FALSE(frmMain->ProgressBar1.Visible);
  }
}

TEST_F(CorrelationModelImport, AtMostFiveThousandRows) {
  // Sections of fifty rows with a tie every fifth row, as a real core has them.
  std::vector<ModelRow> rows{DefaultHeader()};
  for (int r = 1; r <= 5000; ++r) {
    const int inSection = (r - 1) % 50;
    const std::string label = inSection == 0    ? "A-" + std::to_string(r / 50 + 1) + "-top"
                              : inSection == 49 ? "A-" + std::to_string(r / 50) + "-bottom"
                                                : "L" + std::to_string(r);
    rows.push_back(RowA(label, std::to_string(inSection * 2), std::to_string(r * 2),
                        inSection % 5 == 0 ? std::to_string(r * 2) : ""));
  }
  ImportModel(rows);
  ASSERT_TRUE(platform.messages.empty());
  EXPECT_EQ(LastRow, 5000);
  EXPECT_EQ(SectionCount(1), 100);

  ResetProgram();
  rows.push_back(RowA("L5001", "1", "1", ""));
  ImportModel(rows);
  EXPECT_TRUE(FailedWithFormatError());
}

}  // namespace
}  // namespace ostraline
