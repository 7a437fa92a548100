#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/project_state.h"
#include "display/display_state.h"
#include "events/event_state.h"
#include "forms/form.h"
#include "forms/frm_divider.h"
#include "forms/frm_main.h"
#include "support/fresh_program.h"
#include "support/screen_recorder.h"

namespace ostraline {
namespace {

const std::vector<std::string> kCloseOrder = {
    "frm2Conversion", "frm2Divider", "frm2Export", "frm2Main",  "frm2Photo",
    "frm2Select",     "frm2Version", "frm3Photo",  "frm4Photo", "frmConversion",
    "frmDivider",     "frmExport",   "frmMain",    "frmPass",   "frmPhoto",
    "frmSelect",      "frmKX11",     "frmTest",    "frmVersion"};

using StartUp = FreshProgram;

TEST_F(StartUp, formLoadBringsEveryRunToTheSameDefaults) {
  // What a previous run might have left must not matter.
  DebugTrace = true;
  ViewSpan = 20;
  DepthAxis = 3;
  DuoOpen = true;
  DrivenBy = 7;
  EventCount = 12;
  MergedEventCount = 9;
  EfdEntryActive = true;
  SuppressPopup = true;
  SuspendTrinity = true;
  DividerOpen = true;
  displayState.ColumnFontSmall = 9;

  FrmMain& form = *frmMain;
  EXPECT_EQ(DepthPrecision, 2);
  EXPECT_EQ(AgePrecision, 0);
  EXPECT_FALSE(DebugTrace);
  EXPECT_EQ(ViewSpan, 500);
  EXPECT_TRUE(form.mnuCM(500).Checked);
  EXPECT_EQ(displayState.ColumnFontSmall, 5);
  EXPECT_FALSE(DuoOpen);
  EXPECT_EQ(DepthAxis, 1);
  EXPECT_TRUE(form.Option2(1).Value);
  EXPECT_EQ(DrivenBy, 0);
  EXPECT_EQ(EventCount, -9999);
  EXPECT_EQ(MergedEventCount, -9999);
  EXPECT_FALSE(EfdEntryActive || SuppressPopup || SuspendTrinity || DividerOpen);
  EXPECT_FALSE(frmDivider.IsLoaded());

  EXPECT_EQ(form.Combo1.Text.Get(), "A");
  EXPECT_EQ(form.Combo2.Text.Get(), "01");
  EXPECT_EQ(form.Combo2.ListCount(), 0);
  EXPECT_EQ(form.Text1.Text.Get(), "0");
  EXPECT_EQ(form.Text2.Text.Get(), "---");
  for (int i = 0; i <= 4; ++i) {
    EXPECT_FLOAT_EQ(form.BoreHole(i).ScaleHeight, 500);
    EXPECT_FLOAT_EQ(form.BoreHole(i).ScaleWidth, 7.6f);
    EXPECT_FLOAT_EQ(form.Picture1(i).ScaleHeight, 500);
    EXPECT_FALSE(form.BoreHole(i).Enabled);
    EXPECT_EQ(form.Combo3(i).Text.Get(), "---");
    EXPECT_EQ(form.Combo4(i).Text.Get(), "---");
    EXPECT_EQ(form.Text5(i).Text.Get() + form.Text6(i).Text.Get(), "");
    EXPECT_FALSE(form.Check1(i).Visible || form.Combo3(i).Visible || form.Combo4(i).Visible ||
                 form.Text5(i).Visible || form.Text6(i).Visible);
    EXPECT_FALSE(form.Command6(i).Enabled);
    EXPECT_FALSE(form.mnuFlipH(i).Enabled || form.mnuLine(i).Enabled || form.mnuMarker(i).Enabled ||
                 form.mnuSmooth(i).Enabled || form.mnuFlat3_(i).Enabled ||
                 form.mnuFlat5_(i).Enabled || form.mnuCopy(i).Enabled ||
                 form.mnuHorizontalN(i).Enabled || form.mnuFilename(i).Enabled);
  }

  // The centre of a column 8775 twips high at top 240 is 4627.5, rounded to even.
  EXPECT_EQ(CentreLineY, 4628);
  EXPECT_EQ(form.Line1.Y1.Get(), 4628);
  EXPECT_EQ(form.Line2(0).Y1.Get(), 4628);
  EXPECT_EQ(form.Height.Get(), 7320 + 2655 + 1080);
  EXPECT_EQ(DesignFormHeight, 7320 + 2655 + 1080);
  EXPECT_EQ(BaseFormWidth, 9720 + 120);

  // Only the model's import and the menus left open can be used.
  for (Control* c : std::initializer_list<Control*>{
           &form.Frame5,     &form.Combo2,       &form.Combo5,     &form.Command3,
           &form.Command4,   &form.Command5,     &form.Command7,   &form.Label5,
           &form.Option3(0), &form.Option3(1),   &form.Option2(0), &form.Option2(1),
           &form.mnuAge,     &form.mnuDepth,     &form.mnuLFDuo,   &form.mnuAlign,
           &form.mnuPhoto,   &form.mnuCopyDepth, &form.mnuRange,   &form.mnuFont,
           &form.mnuTool,    &form.mnuInfo}) {
    EXPECT_FALSE(c->Enabled) << c->FullName();
  }
  EXPECT_TRUE(form.Command1.Enabled);
}

TEST_F(StartUp, loadingAgainTakesTheDigitsFromTheMenusAndWritesWithTheTargetGuardUp) {
  FrmMain& form = *frmMain;
  form.mnuDepPrec(1).Checked = true;
  form.mnuDepPrec(3).Checked = true;
  form.mnuAgePrec(0).Checked = false;
  form.mnuAgePrec(4).Checked = true;
  form.Form_Load();
  EXPECT_EQ(DepthPrecision, 3);
  EXPECT_EQ(AgePrecision, 4);

  // Its first writes run with the target guard up.
  std::vector<std::string> seen;
  auto note = [&](const char* what) {
    return [&seen, what] { seen.push_back(std::string(what) + " " + std::to_string(DrivenBy)); };
  };
  form.Combo1.Change = note("Combo1");
  form.Text2.Change = note("Text2");
  form.Text1.Change = note("Text1");
  form.Option2(1).Click = note("Option2");
  form.Combo1.Text.SetQuietly("C");
  form.Text1.Text.SetQuietly("12.5");
  form.Text2.Text.SetQuietly("240");
  form.Option2(1).Value.SetQuietly(false);
  form.Form_Load();
  EXPECT_EQ(seen,
            (std::vector<std::string>{"Combo1 9999", "Text2 9999", "Text1 9999", "Option2 0"}));
}

// With every form loaded (the last of the list first), closing takes them
// down in the list's order; the main form's own unload ends last, after it
// has taken down all the others.
TEST_F(StartUp, closingOrTerminatingTheMainFormClosesEveryFormInOrderAndEndsTheProgram) {
  std::vector<std::string> expected;
  for (const std::string& name : kCloseOrder) {
    if (name != "frmMain") expected.push_back(name);
  }
  expected.push_back("frmMain");
  for (void (*close)() : {+[] { frmMain.Unload(); }, +[] { frmMain->Form_Terminate(); }}) {
    platform.quitRequested = false;
    for (auto name = kCloseOrder.rbegin(); name != kCloseOrder.rend(); ++name) {
      ASSERT_NE(FormSlot::Find(*name), nullptr) << *name;
      FormSlot::Find(*name)->GetForm();
    }
    ScreenRecorder recorder;
    SetScreenObserver(&recorder);
    close();
    SetScreenObserver(nullptr);
    EXPECT_EQ(recorder.unloaded, expected);
    for (const FormSlot* slot : FormSlot::All()) EXPECT_FALSE(slot->IsLoaded()) << slot->Name();
    EXPECT_TRUE(platform.quitRequested);
  }
}

TEST_F(StartUp, formEventsResetTheDividerThePrintedTextAndThePointer) {
  FrmMain& form = *frmMain;
  frmDivider->Show();
  DividerOpen = true;
  form.Show();
  EXPECT_FALSE(frmDivider.IsLoaded());
  EXPECT_FALSE(DividerOpen);

  form.Print("trace");
  form.Form_Click();
  EXPECT_TRUE(form.PrintedLines().empty());

  std::vector<MouseHandler*> moves = {&form.Text1.MouseMove, &form.Text2.MouseMove,
                                      &form.Text3.MouseMove, &form.Text4.MouseMove};
  for (int p = 0; p <= 4; ++p) moves.push_back(&form.Check1(p).MouseMove);
  for (MouseHandler* move : moves) {
    Screen.SetMousePointer(2);
    ASSERT_TRUE(*move);
    (*move)(0, 0, 100, 100);
    EXPECT_EQ(Screen.MousePointer(), 0);
  }
}

}  // namespace
}  // namespace ostraline
