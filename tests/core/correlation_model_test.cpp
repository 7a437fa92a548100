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
  // Imports the rows through the dialog, as a user picking the file.
  void Import(const std::vector<ModelRow>& rows, bool longLayout = false,
              const std::string& name = "model_20110305.csv") {
    ImportText(ModelText(rows, longLayout), name);
  }
  void ImportText(const std::string& text, const std::string& name = "model_20110305.csv") {
    platform.QueueFile(WriteTempFile(name, text));
    frmMain->Command1_Click();
  }
  bool FailedWithFormatError() const {
    return platform.messages.size() == 1 && platform.messages[0].text == "File format error." &&
           platform.messages[0].title == "Error" &&
           platform.messages[0].icon == MsgIcon::Exclamation;
  }

  std::vector<ModelRow> TwoSections() {
    return {DefaultHeader(),
            RowA("A-01-top", "0", "100", "", "A"),
            RowA("L1", "10", "110", "110"),
            RowA("L2", "50", "150", "160"),
            RowA("A-01-bottom", "80", "180", ""),
            RowA("A-02-top", "0", "185", "", "Gap"),
            RowA("L3", "20", "205", "230"),
            RowA("L4", "60", "245", "270"),
            RowA("A-02-bottom", "90", "275", "")};
  }
};

TEST_F(CorrelationModelImport, ShortAndLongLayoutsGiveTheSameCells) {
  Import(TwoSections(), false);
  ASSERT_TRUE(platform.messages.empty());
  const std::string shortCells = ModelCell(0, 1, 1, 3) + "|" + TieCell(0, 5) + "|" + TieCell(1, 7);
  EXPECT_EQ(LastRow, 8);
  EXPECT_EQ(shortCells, "50|Gap|270");

  ResetProgram();
  Import(TwoSections(), true);
  ASSERT_TRUE(platform.messages.empty());
  EXPECT_EQ(LastRow, 8);
  EXPECT_EQ(ModelCell(0, 1, 1, 3) + "|" + TieCell(0, 5) + "|" + TieCell(1, 7), shortCells);
  EXPECT_EQ(TieCell(0, 1), "A");
}

TEST_F(CorrelationModelImport, CellsLoseTheirPrefixStarsAndBlanks) {
  auto rows = TwoSections();
  rows[2] = RowA("L1", " 10 ", "110*", "110");  // a good number with a star is no value
  rows[3].holes[1] = "*50";
  rows[4].cd = "---";
  Import(rows);
  ASSERT_TRUE(platform.messages.empty());
  EXPECT_EQ(ModelCell(0, 1, 1, 2), "10");
  EXPECT_EQ(ModelCell(0, 1, 1, 3), "9999");
  EXPECT_EQ(ModelCell(0, 1, 2, 2), "9999");
  EXPECT_EQ(ModelCell(0, 2, 0, 2), "9999");  // "*" of bore hole B
  EXPECT_EQ(TieCell(1, 4), "9999");          // "---"
  EXPECT_EQ(TieCell(1, 1), "9999");          // empty
}

TEST_F(CorrelationModelImport, HeadersNameTheBoreHoles) {
  auto rows = TwoSections();
  rows[0].holes[0] = "Core 6 (B)";
  rows[0].holes[3] = "Lamina name (Main core)";
  rows[0].holes[6] = "Bore Hole (C)";
  Import(rows);
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
  // The correlation assist's ruler takes the columns' scale: 500 units over 8775 twips.
  EXPECT_FLOAT_EQ(frmKX11->Picture1.Height, 500.0f * 100 / 8775);
}

TEST_F(CorrelationModelImport, SectionsAreCountedByTheirLabels) {
  auto rows = TwoSections();
  rows.pop_back();  // the last section has no bottom label
  Import(rows);
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
  rows = TwoSections();
  rows[5].holes[0] = "A-02-TOP";
  Import(rows);
  EXPECT_EQ(SectionCount(1), 1);
}

TEST_F(CorrelationModelImport, BadFilesEndInTheMessageAndLeaveTheButton) {
  auto rows = TwoSections();
  rows[0].holes[3] = "Bore hole B";  // no "(" in a hole's header
  Import(rows);
  EXPECT_TRUE(FailedWithFormatError());
  EXPECT_TRUE(frmMain->Command1.Enabled);
  EXPECT_FALSE(frmMain->ProgressBar1.Visible);

  // A cell of length 0 has no prefix to drop.
  platform.messages.clear();
  ImportText(
      "'S,'A (A),'P,'D,'B (B),'P,'D,'C (C),'P,'D,'D (D),'P,'D,'CD\r\n"
      "'A,'A-01-top,,'1,'*,'*,'*,'*,'*,'*,'*,'*,'*,'1\r\n");
  EXPECT_TRUE(FailedWithFormatError());

  // A PSP that is no number fails the depth sweep.
  platform.messages.clear();
  ResetProgram();
  rows = TwoSections();
  rows[2].holes[1] = "---";
  Import(rows);
  EXPECT_TRUE(FailedWithFormatError());

  // A blank line after the last row is one more row, and its reading fails.
  platform.messages.clear();
  ResetProgram();
  ImportText(ModelText(TwoSections()) + "\r\n");
  EXPECT_TRUE(FailedWithFormatError());
}

TEST_F(CorrelationModelImport, FirstSpliceCellOfThreeCharactersMeansTheLongLayout) {
  auto rows = TwoSections();
  rows[1].splice = "AB";  // with its prefix three characters
  Import(rows);
  // Eighteen fields a row from a file of fourteen: the rows run out mid-row.
  EXPECT_TRUE(FailedWithFormatError());
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
  Import(rows);
  ASSERT_TRUE(platform.messages.empty());
  EXPECT_EQ(LastRow, 5000);
  EXPECT_EQ(SectionCount(1), 100);

  ResetProgram();
  rows.push_back(RowA("L5001", "1", "1", ""));
  Import(rows);
  EXPECT_TRUE(FailedWithFormatError());
}

TEST_F(CorrelationModelImport, CancelledDialogChangesNothing) {
  platform.QueueCancel();
  frmMain->Command1_Click();
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(LastRow, 0);
  EXPECT_TRUE(frmMain->Command1.Enabled);
  EXPECT_EQ(platform.dialogs.at(0).filter, "DataFile(*.csv)|*.csv");
}

}  // namespace
}  // namespace ostraline
