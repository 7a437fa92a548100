#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include "forms/frm_main.h"
#include "forms/frm_select.h"
#include "proxies/proxy_layout.h"
#include "proxies/proxy_records.h"
#include "support/age_files.h"
#include "support/model_files.h"

namespace ostraline {
namespace {

// Bore hole A of the fixture's model: section 01 has ties at PSP 10 (110 cm)
// and 50 (160 cm), so PSP 30 lies at 135 cm. No event layer.
class ProxyImport : public AgeProgram {
 protected:
  void SetUp() override {
    AgeProgram::SetUp();
    ImportModelAndEvents(kNoLayer);
  }
  void Import(int p, const std::string& text, const std::string& name = "record.csv") {
    platform.QueueFile(WriteTempFile(name, text));
    frmMain->Command6_Click(p);
  }
  // A header and `rows` rows made by the given row maker.
  template <class Row>
  static std::string Record(const std::string& header, int rows, Row row) {
    std::string text = header + "\r\n";
    for (int i = 1; i <= rows; ++i) text += row(i) + "\r\n";
    return text;
  }
  static std::string Positions(int rows) {
    return Record("Depth,Ti,Ca", rows, [](int i) {
      return std::to_string(100 + i) + "," + std::to_string(i) + "," + std::to_string(2 * i);
    });
  }
  static ProxyWork Recognised(const std::string& text) {
    FieldReader file(text);
    ProxyWork work;
    RecogniseLayout(masterSet, file, work);
    return work;
  }
};

TEST_F(ProxyImport, FourLayoutsFromTheirLeadColumns) {
  // A single position: asked on frmSelect, the main form disabled meanwhile.
  Import(0, Positions(9), "Lake cores for_OL.csv");
  FrmMain& form = *frmMain;
  EXPECT_TRUE(platform.messages.empty()) << OnlyMessage();
  EXPECT_EQ(ProxyFileName(0), "Lake cores");
  EXPECT_FALSE(ProxyHasLabel(0));
  EXPECT_FALSE(ProxyHasTrinity(0));
  EXPECT_EQ(ProxyColumnCount(0), 2);
  EXPECT_EQ(ProxyRowCount(0), 9);
  EXPECT_TRUE(ProxyLoaded(0));
  EXPECT_FLOAT_EQ(ProxyDepth(0)(1, 9), 109);
  EXPECT_FLOAT_EQ(ProxyDepth(0)(2, 2), 102);  // the EFD pass, without event layers
  EXPECT_FLOAT_EQ(ProxyValue(0)(9, 2), 18);
  EXPECT_EQ(form.Combo3(0).List(), (std::vector<std::string>{"Ti", "Ca"}));
  EXPECT_EQ(form.Combo4(0).List(), (std::vector<std::string>{"Ti", "Ca", "1"}));
  EXPECT_EQ(form.Combo3(0).Text.Get(), "Ti");
  EXPECT_EQ(form.Combo4(0).Text.Get(), "1");
  EXPECT_TRUE(form.mnuFlipH(0).Enabled);
  EXPECT_FALSE(form.Enabled);
  ASSERT_TRUE(frmSelect->Visible);
  EXPECT_EQ(frmSelect->Label1.Caption.Get(), "0");
  EXPECT_EQ(frmSelect->Text1(0).Text.Get(), "Depth");
  EXPECT_EQ(frmSelect->Text1(8).Text.Get(), "108");  // depth, first, second column
  EXPECT_EQ(frmSelect->Text2(8).Text.Get(), "8");
  EXPECT_EQ(frmSelect->Text3(8).Text.Get(), "16");
  frmSelect->Command1_Click();
  ASSERT_TRUE(form.Enabled);

  // Label and position: the preview shows label, position, second column.
  Import(1, Record("Sample,Depth,Ti,Ca", 8, [](int i) {
           return "S" + std::to_string(i) + "," + std::to_string(200 + i) + ",1," +
                  std::to_string(i);
         }));
  EXPECT_TRUE(ProxyHasLabel(1));
  EXPECT_FALSE(ProxyHasTrinity(1));
  EXPECT_EQ(ProxyColumnCount(1), 2);
  EXPECT_EQ(ProxyLabel(1)(8), "S8");
  EXPECT_EQ(frmSelect->Text1(3).Text.Get(), "S3");
  EXPECT_EQ(frmSelect->Text2(3).Text.Get(), "203");
  EXPECT_EQ(frmSelect->Text3(3).Text.Get(), "3");
  frmSelect->Command2_Click();

  // Bore hole, section and PSP: the position is known, the panel drawn at once.
  Import(2, Record("Bore hole,Section,PSP (cm),Density", 8, [](int i) {
           return "A,1," + std::to_string(10 + 5 * i) + ",1.5";
         }));
  EXPECT_TRUE(platform.messages.empty()) << OnlyMessage();
  EXPECT_FALSE(ProxyHasLabel(2));
  EXPECT_TRUE(ProxyHasTrinity(2));
  EXPECT_EQ(ProxyColumnCount(2), 1);
  EXPECT_FLOAT_EQ(ProxyDepth(2)(1, 4), 135);  // PSP 30
  EXPECT_EQ(ProxyLabel(2)(4), "135");
  EXPECT_EQ(form.Combo4(2).List(), (std::vector<std::string>{"Density", "1"}));
  EXPECT_TRUE(form.Enabled);
  EXPECT_FALSE(frmSelect->Visible);
  EXPECT_EQ(form.Picture1(2).BackColor.Get(), RGB(255, 255, 255));
  EXPECT_EQ(frmSelect->Text3(1).Text.Get(), "");  // one column: no third cell

  // Label, bore hole, section and PSP; a row of an unknown bore hole stays
  // in the record with what the conversion gives for it.
  Import(3, Record("Sample,Bore hole,Section,PSP,Clay,Silt", 8, [](int i) {
           return "G" + std::to_string(i) + (i == 5 ? ",X" : ",A") + ",1," +
                  std::to_string(10 + 5 * i) + ",30,60";
         }));
  EXPECT_TRUE(platform.messages.empty()) << OnlyMessage();
  EXPECT_TRUE(ProxyHasLabel(3));
  EXPECT_TRUE(ProxyHasTrinity(3));
  EXPECT_EQ(ProxyColumnCount(3), 2);
  EXPECT_EQ(ProxyLabel(3)(4), "G4");
  EXPECT_FLOAT_EQ(ProxyDepth(3)(1, 4), 135);
  EXPECT_FLOAT_EQ(ProxyDepth(3)(1, 5), 9999);
}

// The header word test decides between the lead columns label and position
// and those of a hole's section and PSP, in exact case.
TEST_F(ProxyImport, HeaderWordsNameTheTrinity) {
  const auto layoutOf = [](const std::string& header) {
    return Recognised(header + "\r\nS1,100,1,2\r\nS2,110,3,4\r\n").layout;
  };
  EXPECT_EQ(layoutOf("Sample,Depth,Ti,Ca"), ProxyLayout::L2);
  EXPECT_EQ(layoutOf("Sample,bore hole,Ti,Ca"), ProxyLayout::L2);
  for (const char* header :
       {"Sample,Bore hole,Ti,Ca", "Sample,Depth,Core,Ca", "Sample,Depth,Core section,Ca",
        "Sample,Depth,Ti,Distance (cm)", "Sample,Depth,Ti,Position", "Sample,Depth,Ti,Defined",
        "Sample,Depth,Ti,PSP (cm)", "Sample,Depth,Ti,Depth (PSP)",
        "Sample,Bore hole,Core section,PSP (cm)"}) {
    EXPECT_EQ(layoutOf(header), ProxyLayout::L3) << header;
  }
}

// The scan stops only at a plain number; each of these files is read with
// another layout or column count than its writer meant.
TEST_F(ProxyImport, LayoutsThatGoWrongOnPurpose) {
  // The first depth written 12.50: the scan runs on to the first value.
  ProxyWork work = Recognised("Depth,Ti\r\n12.50,3\r\n13,4\r\n14,5\r\n");
  EXPECT_EQ(work.layout, ProxyLayout::L1);
  EXPECT_EQ(work.columns, 2);
  // A label that is a plain number in row 2 makes labels and depths L1.
  work = Recognised("Sample,Depth,Ti\r\nS1,100,5\r\n7,110,6\r\n8,120,7\r\n");
  EXPECT_EQ(work.layout, ProxyLayout::L1);
  EXPECT_EQ(work.columns, 3);
  // A first name equal to bore hole 2's letter counts as a hole column.
  work = Recognised("B,Ti\r\n100,5\r\n110,6\r\n");
  EXPECT_EQ(work.layout, ProxyLayout::L4);
  EXPECT_EQ(Recognised("D,Ti\r\n100,5\r\n110,6\r\n").layout, ProxyLayout::L4);
  EXPECT_EQ(Recognised("C,Ti\r\n100,5\r\n110,6\r\n").layout, ProxyLayout::L1);

  // The first section written 01: one column too many, and the values of
  // row 1 then meet a label.
  Import(0, Record("Sample,Bore hole,Section,PSP,Clay", 8, [](int i) {
           return "G" + std::to_string(i) + ",A," + (i == 1 ? "01" : "1") + ",20,5";
         }));
  EXPECT_EQ(ProxyColumnCount(0), 2);
  EXPECT_EQ(OnlyMessage(), "Error: File format error.");
  EXPECT_FALSE(ProxyLoaded(0));
  EXPECT_FALSE(frmMain->ProgressBar1.Visible);
}

TEST_F(ProxyImport, FailuresAndWhatTheyLeave) {
  // Panel 0 is empty: the EFD pass over its record fails.
  Import(1, Positions(9));
  EXPECT_EQ(OnlyMessage(), "Error: File format error.");
  EXPECT_FALSE(ProxyLoaded(1));
  EXPECT_EQ(frmMain->Combo3(1).ListCount(), 2);  // the lists already show the file
  EXPECT_TRUE(frmMain->Enabled);

  // More than 135 data columns.
  platform.messages.clear();
  std::string header = "Depth";
  std::string row = "100";
  for (int j = 1; j <= 136; ++j) {
    header += ",v" + std::to_string(j);
    row += ",1";
  }
  Import(0, header + "\r\n" + row + "\r\n" + row + "\r\n");
  EXPECT_EQ(OnlyMessage(), "Error: File format error.");
  EXPECT_FALSE(ProxyLoaded(0));

  // Fewer than eight rows: the record is in, nothing is drawn, and the main
  // form stays disabled.
  platform.messages.clear();
  Import(0, Positions(7), "short.csv");
  EXPECT_EQ(OnlyMessage(), "Error: File format error.");
  EXPECT_TRUE(ProxyLoaded(0));
  EXPECT_EQ(ProxyRowCount(0), 7);
  EXPECT_FALSE(frmMain->Enabled);
  EXPECT_FALSE(frmSelect->Visible);

  // A cancelled dialog and a name without a folder end in silence.
  platform.messages.clear();
  frmMain->Enabled = true;
  platform.QueueCancel();
  frmMain->Command6_Click(4);
  std::ofstream("unfoldered.csv") << Positions(8);
  platform.QueueFile("unfoldered.csv");
  frmMain->Command6_Click(4);
  std::remove("unfoldered.csv");
  EXPECT_TRUE(platform.messages.empty()) << OnlyMessage();
  EXPECT_FALSE(frmMain->ProgressBar1.Visible);
}

TEST_F(ProxyImport, TheMarkerOfTheFileNameGoesWithItsSeparator) {
  Import(0, Positions(8), "Alpha for OL.csv");
  EXPECT_EQ(ProxyFileName(0), "Alpha");
  frmSelect->Command2_Click();
  Import(0, Positions(8), "Alpha_for_OL.csv");
  EXPECT_EQ(ProxyFileName(0), "Alpha");
  frmSelect->Command2_Click();
  Import(0, Positions(8), "Alpha for OL2.csv");
  EXPECT_EQ(ProxyFileName(0), "Alpha for OL2");
}

}  // namespace
}  // namespace ostraline
