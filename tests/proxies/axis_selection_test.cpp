// The end of an import whose rows hold one plain position (frmSelect), and
// the export dialog that only says it is not built (frmExport).
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/project_state.h"
#include "display/display_state.h"
#include "events/age_lookup.h"
#include "events/event_free_depth.h"
#include "events/event_state.h"
#include "forms/frm2_main.h"
#include "forms/frm_export.h"
#include "forms/frm_main.h"
#include "forms/frm_select.h"
#include "proxies/proxy_records.h"
#include "support/age_files.h"

namespace ostraline {
namespace {

constexpr long kGreen = RGB(0, 170, 0);

class AxisSelection : public AgeProgram {
 protected:
  // Control points at composite 140 (age 1000) and 200 (age 2000); the
  // event layer 150..160 cm lies between them, so age 1500 is EFD 165 and
  // composite 175.
  void ImportAll() {
    ImportModelAndEvents(kFusedLayer);
    ImportAges({{"P1", "A", "01", "34", "0", "10", "1000", "20", "C1", "cal BP", "-"},
                {"P2", "---", "---", "---", "200", "20", "2000", "30", "C1", "cal BP", "-"},
                {"P3", "A", "02", "40", "0", "40", "3000", "40", "C1", "varve yr", "-"}});
    ASSERT_TRUE(platform.messages.empty()) << OnlyMessage();
    ASSERT_TRUE(AgeModelLoaded);
  }

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

TEST_F(AxisSelection, OkTurnsThePositionsIntoCompositeDepthAndDraws) {
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
}

TEST_F(AxisSelection, CancelKeepsTheFileNumbersAndDrawsNothing) {
  ImportAll();
  PictureBox& panel = frmMain->Picture1(1);
  LoadRecord(1, {1000, 1500, 2000});
  frmSelect->Option1(1).Value = true;
  const unsigned long revision = panel.Revision();
  frmSelect->Command2_Click();

  EXPECT_EQ(Positions(1), (std::vector<float>{1000, 1500, 2000}));
  EXPECT_TRUE(ProxyLoaded(1));
  EXPECT_EQ(panel.Revision(), revision);
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

TEST_F(AxisSelection, ExportSaysItIsNotBuiltAndGivesTheMainFormsBack) {
  frmMain->Enabled = false;
  frm2Main->Enabled = false;
  frmExport->Label1.Caption = "3";
  frmExport->Command1.Click();
  ASSERT_EQ(platform.messages.size(), 1u);
  EXPECT_EQ(platform.messages[0].text, "Sorry, this function is under construction.");
  EXPECT_EQ(platform.messages[0].title, "Ostraline");
  EXPECT_EQ(platform.messages[0].icon, MsgIcon::None);
  EXPECT_TRUE(frmMain->Enabled);
  EXPECT_TRUE(frm2Main->Enabled);
  EXPECT_FALSE(frmExport.IsLoaded());

  // Closing the dialog gives the forms back too, and loads no Duo form.
  frm2Main.Unload();
  frmMain->Enabled = false;
  frmExport->Label1.Caption = "0";
  frmExport.Unload();
  EXPECT_TRUE(frmMain->Enabled);
  EXPECT_FALSE(frm2Main.IsLoaded());
  EXPECT_EQ(platform.messages.size(), 1u);
}

}  // namespace
}  // namespace ostraline
