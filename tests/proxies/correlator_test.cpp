#include <string>
#include <vector>

#include "forms/frm_kx11.h"
#include "forms/frm_main.h"
#include "forms/platform.h"
#include "runtime/number_text.h"
#include "support/fresh_program.h"
#include "support/model_files.h"

namespace ostraline {
namespace {

constexpr long kRed = RGB(255, 0, 0);
constexpr long kBlue = RGB(0, 0, 255);
constexpr long kGrey = RGB(150, 150, 150);

class CorrelationAssist : public FreshProgram {
 protected:
  // The model's import leaves the columns at a view of 500 length units.
  void SetUp() override {
    FreshProgram::SetUp();
    ImportModel(FourHoleModel());
    ASSERT_TRUE(platform.messages.empty());
    frmMain->mnuKX11.Click();
  }

  // The user drags the window to this height.
  static void Drag(float height) {
    frmKX11->Height.SetQuietly(height);
    frmKX11->Form_Resize();
  }

  static std::vector<DrawOp> Drawn() { return frmKX11->Picture1.WorkingOps(); }
};

TEST_F(CorrelationAssist, StretchFollowsTheFormHeightAgainstTrueScale) {
  FrmKX11& form = *frmKX11;
  EXPECT_TRUE(form.Visible);
  const float column = frmMain->BoreHole(0).Height;
  EXPECT_FLOAT_EQ(form.Picture1.Height, column / 5);
  EXPECT_EQ(form.Label2.Caption.Get(), Str(column / 5));
  EXPECT_EQ(form.Label3.Caption.Get(), "100 %");

  // A mark halfway up moves with the strip when the form doubles it.
  form.Text1(1).Text = "50";
  Drag(2 * column / 5 + FrmKX11::kFrame);
  EXPECT_FLOAT_EQ(form.Picture1.Height, 2 * column / 5);
  EXPECT_EQ(form.Label3.Caption.Get(), "200 %");
  EXPECT_FLOAT_EQ(Drawn().at(0).y1, form.Picture1.InnerHeight() / 2);

  // The form keeps its width and its minimum height.
  form.Width.SetQuietly(3000);
  Drag(1000);
  EXPECT_EQ(form.Height.Get(), FrmKX11::kMinimumHeight);
  EXPECT_EQ(form.Width.Get(), FrmKX11::kFixedWidth);
  EXPECT_FLOAT_EQ(form.Picture1.Height, 410);
  EXPECT_EQ(form.Label3.Caption.Get(), Str(Round(410.0 * 100 / (column / 5), 1)) + " %");

  // The stretch rounds half to even: 100.25 and 100.75 per cent.
  form.Label2.Caption = "800";
  Drag(802 + FrmKX11::kFrame);
  EXPECT_EQ(form.Label3.Caption.Get(), "100.2 %");
  Drag(806 + FrmKX11::kFrame);
  EXPECT_EQ(form.Label3.Caption.Get(), "100.8 %");

  // A change of the view's range gives the strip the new true scale.
  frmMain->mnuCM(200).Click();
  EXPECT_FLOAT_EQ(form.Picture1.Height, column / 2);
  EXPECT_EQ(form.Height.Get(), column / 2 + FrmKX11::kFrame);
  EXPECT_EQ(form.Label3.Caption.Get(), "100 %");
}

TEST_F(CorrelationAssist, MarkWithTheFocusIsRedUnderTheGreyedDepth) {
  FrmKX11& form = *frmKX11;
  form.Text1(3).Text = "40";
  form.Text1(5).Text = "60";
  form.Text1(3).SetFocus();
  EXPECT_EQ(form.Label4.Caption.Get(), "3");
  form.Text2.Text = "80";

  const std::vector<DrawOp> ops = Drawn();
  ASSERT_EQ(ops.size(), 21u);
  for (int i = 1; i <= 20; ++i) {
    const DrawOp& mark = ops[i - 1];
    EXPECT_EQ(mark.kind, DrawKind::Line);
    EXPECT_FLOAT_EQ(mark.uy1, i == 3 ? 40 : i == 5 ? 60 : 0) << i;
    EXPECT_EQ(mark.colour, i == 3 ? kRed : kBlue) << i;
  }
  const DrawOp& grey = ops.back();
  EXPECT_TRUE(grey.filled);
  EXPECT_EQ(grey.fillColour, kGrey);
  EXPECT_FLOAT_EQ(grey.uy1, 100);
  EXPECT_FLOAT_EQ(grey.uy2, 80);

  form.Text1(5).SetFocus();
  EXPECT_EQ(Drawn().at(4).colour, kRed);
  EXPECT_EQ(Drawn().at(2).colour, kBlue);

  // Clear empties the marks and the strip but keeps the greyed depth.
  form.Command1.Click();
  EXPECT_TRUE(Drawn().empty());
  form.Text1.ForEach([](TextBox& mark) { EXPECT_EQ(mark.Text.Get(), ""); });
  EXPECT_EQ(form.Text2.Text.Get(), "80");

  // The pointer over the main form's slider is the arrow.
  Screen.SetMousePointer(2);
  frmMain->Slider1.MouseMove(0, 0, 0, 0);
  EXPECT_EQ(Screen.MousePointer(), 1);
}

}  // namespace
}  // namespace ostraline
