#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include "core/project_state.h"
#include "display/display_state.h"
#include "events/age_lookup.h"
#include "events/event_free_depth.h"
#include "events/event_state.h"
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
  // Whether the record has labels and a trinity, its data columns and rows.
  static std::string Shape(int p) {
    return std::string(ProxyHasLabel(p) ? "label, " : "") +
           (ProxyHasTrinity(p) ? "trinity, " : "position, ") + std::to_string(ProxyColumnCount(p)) +
           " columns, " + std::to_string(ProxyRowCount(p)) + " rows" +
           (ProxyLoaded(p) ? "" : ", not loaded");
  }
  // The three cells of a row of the preview on frmSelect.
  static std::string Preview(int row) {
    return frmSelect->Text1(row).Text.Get() + "|" + frmSelect->Text2(row).Text.Get() + "|" +
           frmSelect->Text3(row).Text.Get();
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
  EXPECT_EQ(ProxyFileName(0), "Lake cores");
  EXPECT_EQ(Shape(0), "position, 2 columns, 9 rows");
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
  EXPECT_EQ(Preview(0), "Depth|Ti|Ca");
  EXPECT_EQ(Preview(8), "108|8|16");  // depth, first, second column
  frmSelect->Command1_Click();
  ASSERT_TRUE(form.Enabled);

  // Label and position: the preview shows label, position, second column.
  Import(1, Record("Sample,Depth,Ti,Ca", 8, [](int i) {
           return "S" + std::to_string(i) + "," + std::to_string(200 + i) + ",1," +
                  std::to_string(i);
         }));
  EXPECT_EQ(Shape(1), "label, position, 2 columns, 8 rows");
  EXPECT_EQ(ProxyLabel(1)(8), "S8");
  EXPECT_EQ(Preview(3), "S3|203|3");
  frmSelect->Command2_Click();

  // Bore hole, section and PSP: the position is known, the panel drawn at once.
  Import(2, Record("Bore hole,Section,PSP (cm),Density", 8,
                   [](int i) { return "A,1," + std::to_string(10 + 5 * i) + ",1.5"; }));
  EXPECT_EQ(Shape(2), "trinity, 1 columns, 8 rows");
  EXPECT_FLOAT_EQ(ProxyDepth(2)(1, 4), 135);  // PSP 30
  EXPECT_EQ(ProxyLabel(2)(4), "135");
  EXPECT_EQ(form.Combo4(2).List(), (std::vector<std::string>{"Density", "1"}));
  EXPECT_TRUE(form.Enabled);
  EXPECT_FALSE(frmSelect->Visible);
  EXPECT_EQ(form.Picture1(2).BackColor.Get(), RGB(255, 255, 255));
  EXPECT_EQ(frmSelect->Text3(1).Text.Get(), "");  // one column: no third cell

  // Label, bore hole, section and PSP; a row of an unknown bore hole stays
  // in the record with what the conversion gives for it. No import asked
  // anything of the user.
  Import(3, Record("Sample,Bore hole,Section,PSP,Clay,Silt", 8, [](int i) {
           return "G" + std::to_string(i) + (i == 5 ? ",X" : ",A") + ",1," +
                  std::to_string(10 + 5 * i) + ",30,60";
         }));
  EXPECT_TRUE(platform.messages.empty()) << OnlyMessage();
  EXPECT_EQ(Shape(3), "label, trinity, 2 columns, 8 rows");
  EXPECT_EQ(ProxyLabel(3)(4), "G4");
  EXPECT_FLOAT_EQ(ProxyDepth(3)(1, 4), 135);
  EXPECT_FLOAT_EQ(ProxyDepth(3)(1, 5), 9999);
}

// The header word test decides between the lead columns label and position
// and those of a hole's section and PSP, in exact case.
TEST_F(ProxyImport, HeaderWordsAndTheFirstPlainNumberDecideTheLayout) {
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

  // The scan stops only at a plain number; each of these files is read with
  // another layout or column count than its writer meant.
  const auto shapeOf = [](const std::string& text) {
    const ProxyWork work = Recognised(text);
    return std::pair(work.layout, work.columns);
  };
  // The first depth written 12.50: the scan runs on to the first value.
  EXPECT_EQ(shapeOf("Depth,Ti\r\n12.50,3\r\n13,4\r\n14,5\r\n"), std::pair(ProxyLayout::L1, 2L));
  // A label that is a plain number in row 2 makes labels and depths L1.
  EXPECT_EQ(shapeOf("Sample,Depth,Ti\r\nS1,100,5\r\n7,110,6\r\n8,120,7\r\n"),
            std::pair(ProxyLayout::L1, 3L));
  // A first name equal to bore hole 2's letter counts as a hole column.
  for (auto [hole, layout] :
       {std::pair{"B", ProxyLayout::L4}, {"D", ProxyLayout::L4}, {"C", ProxyLayout::L1}}) {
    EXPECT_EQ(Recognised(std::string(hole) + ",Ti\r\n100,5\r\n110,6\r\n").layout, layout) << hole;
  }

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
  EXPECT_EQ(Shape(0), "position, 2 columns, 7 rows");
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
  for (auto [file, name] : {std::pair{"Alpha for OL.csv", "Alpha"},
                            {"Alpha_for_OL.csv", "Alpha"},
                            {"Alpha for OL2.csv", "Alpha for OL2"}}) {
    Import(0, Positions(8), file);
    EXPECT_EQ(ProxyFileName(0), name);
    frmSelect->Command2_Click();
  }
}

constexpr long kGreen = RGB(0, 170, 0);

// The end of an import whose rows hold one plain position (frmSelect).
class AxisSelection : public AgeProgram {
 protected:
  // Panel p as the import leaves it when it asks: one data column, the
  // positions on the composite scale, the main form disabled and the dialog
  // told the panel.
  static void LoadRecord(int p, const std::vector<float>& positions) {
    const long rows = static_cast<long>(positions.size());
    ProxyRowCount(p) = rows;
    ProxyColumnCount(p) = 1;
    ProxyLabel(p).DimUpper(rows);
    ProxyDepth(p).DimUpper(3, rows);
    ProxyHeader(p).DimUpper(1);
    ProxyValue(p).DimUpper(rows, 1);
    for (long i = 1; i <= rows; ++i) {
      ProxyDepth(p)(1, i) = positions[i - 1];
      ProxyValue(p)(i, 1) = static_cast<float>(i);
    }
    ProxyLoaded(p) = true;
    PlotScale = DepthAxis;
    frmMain->Enabled = false;
    frmSelect->Label1.Caption = std::to_string(p);
    frmSelect->Show();
  }

  static std::vector<float> Positions(int p) {
    std::vector<float> out;
    for (long i = 1; i <= ProxyRowCount(p); ++i) out.push_back(ProxyDepth(p)(1, i));
    return out;
  }

  static void ExpectBackOnMainForm() {
    EXPECT_TRUE(frmMain->Enabled);
    EXPECT_FALSE(frmMain->ProgressBar1.Visible);
    EXPECT_EQ(frmMain->ProgressBar1.Value.Get(), 0);
    EXPECT_FALSE(frmSelect.IsLoaded());
  }
};

TEST_F(AxisSelection, AgeOptionsNeedAnAgeModelAndCellsStandInRows) {
  platform.SetMousePointer(11);
  frmSelect->Show();
  EXPECT_EQ(platform.MousePointer(), 0);
  EXPECT_TRUE(frmSelect->Option1(0).Value);
  EXPECT_FALSE(frmSelect->Option1(1).Enabled);
  EXPECT_FALSE(frmSelect->Option1(2).Enabled);
  for (int row = 1; row <= 8; ++row) {
    SCOPED_TRACE(row);
    const float top = frmSelect->Text1(0).Top + 225.0f * row;
    EXPECT_FLOAT_EQ(frmSelect->Text1(row).Top, top);
    EXPECT_FLOAT_EQ(frmSelect->Text2(row).Top, top);
    EXPECT_FLOAT_EQ(frmSelect->Text3(row).Top, top);
  }

  // Without a model the main form's depth box is shut: the way back must
  // not try to give it the focus.
  LoadRecord(0, {10, 20, 30});
  frmSelect->Command2_Click();
  ExpectBackOnMainForm();
  EXPECT_NE(FocusedControl(), &frmMain->Text2);

  ImportAll();
  EXPECT_TRUE(frmSelect->Option1(1).Enabled);
  EXPECT_TRUE(frmSelect->Option1(2).Enabled);
}

// With the ages of ImportAll, age 1500 is EFD 165 and composite 175.
TEST_F(AxisSelection, OkTurnsThePositionsIntoCompositeDepthAndDrawsCancelKeepsThem) {
  ImportAll();
  struct Case {
    int option;
    std::vector<float> file;
    std::vector<float> depths;
  };
  const std::vector<Case> cases = {
      {0, {1000, 1500, 2000}, {1000, 1500, 2000}},
      {1, {1000, 1500, 2000, 1234}, {140, 175, 200, -1}},
      {2, {1, 1.5f, 2, 1.234f}, {140, 175, 200, -1}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.option);
    PictureBox& panel = frmMain->Picture1(2);
    panel.BackColor = RGB(200, 200, 200);
    LoadRecord(2, c.file);
    frmSelect->Option1(c.option).Value = true;
    frmSelect->Command1_Click();

    std::vector<float> expected = c.depths;
    // Off the control points the lookups decide; both results are Singles.
    if (expected.back() < 0) {
      const float age = c.option == 2 ? c.file.back() * 1000 : c.file.back();
      expected.back() = EFDToCD(GetEFDFromAge(age).ToSingle()).ToSingle();
      EXPECT_GT(expected.back(), 160);
      EXPECT_LT(expected.back(), 200);
    }
    EXPECT_EQ(Positions(2), expected);
    EXPECT_TRUE(ProxyLoaded(2));
    EXPECT_EQ(frmMain->ProgressBar1.Max.Get(), static_cast<float>(c.file.size()));

    EXPECT_EQ(panel.BackColor.Get(), kWhite);
    // Drawn last, over the record.
    const Picture shown = panel.Image();
    ASSERT_FALSE(shown.ops.empty());
    const DrawOp& line = shown.ops.back();
    EXPECT_EQ(line.kind, DrawKind::Line);
    EXPECT_EQ(line.colour, kGreen);
    EXPECT_FLOAT_EQ(line.ux1, 0);
    EXPECT_FLOAT_EQ(line.ux2, 7.6f);
    EXPECT_FLOAT_EQ(line.uy1, panel.ScaleTop + ViewSpan / 2.0f);
    EXPECT_FLOAT_EQ(line.uy2, line.uy1);

    ExpectBackOnMainForm();
    EXPECT_EQ(FocusedControl(), &frmMain->Text2);
    panel.Cls();
    panel.SetPicture(Picture{});
  }

  // Cancel keeps the file's numbers and draws nothing.
  LoadRecord(1, {1000, 1500, 2000});
  frmSelect->Option1(1).Value = true;
  const unsigned long revision = frmMain->Picture1(1).Revision();
  frmSelect->Command2_Click();
  EXPECT_EQ(Positions(1), (std::vector<float>{1000, 1500, 2000}));
  EXPECT_TRUE(ProxyLoaded(1));
  EXPECT_EQ(frmMain->Picture1(1).Revision(), revision);
  ExpectBackOnMainForm();
  EXPECT_EQ(FocusedControl(), &frmMain->Text2);
}

TEST_F(AxisSelection, CellsCanBeLookedAtButNotEdited) {
  FrmSelect& form = *frmSelect;
  form.Text1(0).Text = "Composite depth";
  form.Text3(0).Text = "A header field far too long for its cell";
  form.Text3(4).Text = "12.5";

  form.Text2(4).MouseDown(1, 0, 10, 10);
  EXPECT_EQ(FocusedControl(), &form.Command1);

  form.Text3(0).MouseMove(0, 0, 10, 10);
  EXPECT_EQ(form.Text3(0).ToolTipText.Get(), "A header field far too long for its cell");
  EXPECT_EQ(form.Text1(0).ToolTipText.Get(), "");
  form.Text3(4).MouseMove(0, 0, 10, 10);
  EXPECT_EQ(form.Text3(4).ToolTipText.Get(), "");

  for (auto move : {+[] { frmSelect->Form_MouseMove(0, 0, 100, 100); },
                    +[] { frmSelect->Frame1.MouseMove(0, 0, 100, 100); }}) {
    platform.SetMousePointer(2);
    move();
    EXPECT_EQ(platform.MousePointer(), 0);
  }
}

}  // namespace
}  // namespace ostraline
