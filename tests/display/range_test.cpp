#include <string>
#include <vector>

#include "core/project_state.h"
#include "display/display_state.h"
#include "forms/frm_kx11.h"
#include "forms/frm_main.h"
#include "runtime/failure.h"
#include "support/fresh_program.h"
#include "support/model_files.h"

namespace ostraline {
namespace {

// The four bore holes with their second sections far down: the cores end at
// composite depth 12345.6, the last row of the model.
std::vector<ModelRow> DeepModel() {
  std::vector<ModelRow> rows = FourHoleModel();
  rows[5].cd = "12000";
  rows[6].cd = "12100";
  rows[7].cd = "12345.6";
  for (int hole = 0; hole < 4; ++hole) rows[7].holes[3 * hole + 1] = "345.6";
  return rows;
}

class RangeAndLayout : public FreshProgram {
 protected:
  void Load(const std::vector<ModelRow>& rows) {
    ImportModel(rows);
    ASSERT_TRUE(platform.messages.empty());
  }

  // The columns and the panels show this depth window; the strip keeps a
  // slightly larger scale of its own once drawn.
  static void ExpectWindow(float top, float height) {
    for (int i = 0; i <= 4; ++i) {
      for (PictureBox* box : {&frmMain->BoreHole(i), &frmMain->Picture1(i)}) {
        EXPECT_FLOAT_EQ(box->ScaleTop, top) << box->Name() << i;
        EXPECT_FLOAT_EQ(box->ScaleHeight, height) << box->Name() << i;
      }
    }
  }

  // The one checked entry of a menu array, or -1.
  static int CheckedEntry(const ControlArray<Menu>& entries) {
    int checked = -1;
    entries.ForEach([&](Menu& entry) {
      if (entry.Checked) checked = checked == -1 ? entry.Index() : -2;
    });
    return checked;
  }
};

TEST_F(RangeAndLayout, WholeCoreRoundsTheLastCompositeDepthUpWithRoom) {
  Load(DeepModel());
  FrmMain& form = *frmMain;
  form.Option1(0).Value = true;
  form.mnuCM(9999).Click();
  EXPECT_EQ(ViewSpan, 13500);  // Round(12.8456) = 13 thousands, and 500 of room
  EXPECT_EQ(CheckedEntry(form.mnuCM), 9999);
  // The click at 6750 - 750 makes the target, and the view centres on it.
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(form.Text2.Text.Get(), "6000");
  ExpectWindow(6000 - 6750, 13500);

  // The missing-value number is read as any other number.
  TieCell(1, LastRow) = "9999";
  form.mnuCM(9999).Click();
  EXPECT_EQ(ViewSpan, 10500);
  EXPECT_EQ(form.Text2.Text.Get(), "4500");

  // A core too long for the span leaves the view as it was.
  TieCell(1, LastRow) = "40000";
  EXPECT_THROW(form.mnuCM(9999).Click(), RuntimeFailure);
  EXPECT_EQ(ViewSpan, 10500);
}

TEST_F(RangeAndLayout, SpanChangeRecentresByTheInputModeAndScalesTheRuler) {
  Load(FourHoleModel());
  FrmMain& form = *frmMain;
  form.Label1(8).Caption = "300";
  const auto drawn = form.BoreHole(1).Revision();
  form.Option1(0).Value = true;
  form.mnuCM(200).Click();
  EXPECT_EQ(CheckedEntry(form.mnuCM), 200);
  ExpectWindow(300 - 100, 200);
  EXPECT_GT(form.BoreHole(1).Revision(), drawn);
  // 100 units of a 200 unit column of 8775 twips.
  EXPECT_EQ(frmKX11->Label2.Caption.Get(), "4387.5");
  EXPECT_EQ(frmKX11->Label3.Caption.Get(), "100 %");

  // "Type-in depths" has a frame of its own: it does not clear "Type-in value".
  form.Option1(2).Value = true;
  form.Option1(1).Value = true;
  form.mnuCM(2000).Click();
  ExpectWindow(240 - 1000, 2000);  // Text2
  form.Text3.Text.SetQuietly("280");
  form.Option2(1).Value.SetQuietly(false);
  form.Option2(2).Value.SetQuietly(true);
  form.mnuCM(50).Click();
  ExpectWindow(280 - 25, 50);
  form.Option1(1).Value = false;
  form.mnuCM(1000).Click();
  ExpectWindow(280 - 25, 1000);

  // Linking applies the checked span again; unlinking does nothing more.
  form.Option1(0).Value = true;
  form.mnuLink.Click();
  EXPECT_TRUE(form.mnuLink.Checked);
  ExpectWindow(300 - 500, 1000);
  form.Label1(8).Caption = "260";
  form.mnuLink.Click();
  EXPECT_FALSE(form.mnuLink.Checked);
  ExpectWindow(300 - 500, 1000);
}

TEST_F(RangeAndLayout, ResizeSnapsToTheLowestHeightAndHidesTheStripWhenNarrow) {
  Load(FourHoleModel());
  FrmMain& form = *frmMain;
  form.Option1(0).Value = true;
  form.Label1(8).Caption = "300";
  const float stripRight = form.BoreHole(5).Left + form.BoreHole(5).Width;
  form.Width = stripRight - 15;
  form.Height = 4000;
  const auto drawn = form.BoreHole(1).Revision();
  form.Form_Resize();
  EXPECT_FLOAT_EQ(form.Height, 5700);
  EXPECT_FLOAT_EQ(form.BoreHole(5).Height, 5700 - 1320);
  EXPECT_FLOAT_EQ(form.Slider1.Height, 4380 + 240);
  EXPECT_FLOAT_EQ(form.Picture1(4).Height, 4380);
  EXPECT_FLOAT_EQ(form.Text6(4).Top, 240 + 4380 - 285);
  ExpectWindow(300 - 250, 500);
  EXPECT_EQ(CentreLineY, 4380 / 2 + 240);
  EXPECT_FLOAT_EQ(form.Line2(0).Y1, 2430);
  EXPECT_FALSE(form.BoreHole(5).Visible);
  EXPECT_GT(form.BoreHole(1).Revision(), drawn);  // the columns keep drawing

  form.Width = stripRight;
  form.Form_Resize();
  EXPECT_TRUE(form.BoreHole(5).Visible);
  form.Height = 300;  // minimised: the layout stays
  form.Form_Resize();
  EXPECT_FLOAT_EQ(form.Height, 300);
  EXPECT_FLOAT_EQ(form.BoreHole(0).Height, 4380);
}

TEST_F(RangeAndLayout, PrecisionMenusSetTheDigitsAndMoveTheCheckMark) {
  FrmMain& form = *frmMain;
  form.mnuDepPrec(4).Click();
  form.mnuAgePrec(3).Click();
  EXPECT_EQ(DepthPrecision, 4);
  EXPECT_EQ(AgePrecision, 3);
  EXPECT_EQ(CheckedEntry(form.mnuDepPrec), 4);
  EXPECT_EQ(CheckedEntry(form.mnuAgePrec), 3);
  form.mnuDepPrec(0).Click();
  EXPECT_EQ(DepthPrecision, 0);
  EXPECT_EQ(CheckedEntry(form.mnuDepPrec), 0);
}

}  // namespace
}  // namespace ostraline
