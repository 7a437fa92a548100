#include <functional>
#include <map>
#include <string>

#include "core/project_state.h"
#include "display/display_state.h"
#include "events/event_state.h"
#include "forms/frm_main.h"
#include "support/event_files.h"
#include "support/fresh_program.h"
#include "support/model_files.h"

namespace ostraline {
namespace {

class TargetHorizon : public FreshProgram {
 protected:
  void SetUp() override {
    FreshProgram::SetUp();
    ImportModel(FourHoleModel());
    ASSERT_TRUE(platform.messages.empty());
    ASSERT_EQ(frmMain->Text2.Text.Get(), "240");
  }

  // A header-only list: the EFD equals the rounded composite depth.
  void LoadEmptyEventList() {
    EventListLoaded = true;
    EventCount = 0;
    MergedEventCount = 0;
    EventTop.Dim({{0, 3}, {0, 0}});
    EventBottom.Dim({{0, 3}, {0, 0}});
    frmMain->Text3.Enabled = true;
  }

  // Counts every run of a face's handler from now on.
  void Count(std::function<void()>& handler, const std::string& name) {
    auto original = handler;
    handler = [this, name, original] {
      ++runs[name];
      if (original) original();
    };
  }
  void CountFaces() {
    FrmMain& form = *frmMain;
    Count(form.Text1.Change, "Text1");
    Count(form.Text2.Change, "Text2");
    Count(form.Text3.Change, "Text3");
    Count(form.Combo1.Change, "Combo1");
    Count(form.Combo2.Change, "Combo2");
    Count(form.Combo5.Change, "Combo5");
    Count(form.Label1(8).Change, "Label1(8)");
  }

  std::map<std::string, int> runs;
};

TEST_F(TargetHorizon, OneTypedDepthReachesEveryFaceOnce) {
  LoadEmptyEventList();
  CountFaces();
  TypeCompositeDepth("275");
  FrmMain& form = *frmMain;
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(runs["Text2"], 1);
  EXPECT_EQ(runs["Text1"], 1);
  EXPECT_EQ(runs["Label1(8)"], 1);
  EXPECT_EQ(runs["Text3"], 1);
  EXPECT_LE(runs["Combo1"], 1);
  EXPECT_LE(runs["Combo5"], 1);
  // Ties at 250 (PSP 50) and 300 (PSP 100) in the first section of A.
  EXPECT_EQ(form.Combo1.Text.Get(), "A");
  EXPECT_EQ(form.Text1.Text.Get(), "75");
  EXPECT_EQ(form.Label1(8).Caption.Get(), "275");
  EXPECT_EQ(form.Text3.Text.Get(), "275");
  EXPECT_EQ(form.Combo5.Text.Get(), "01");
  EXPECT_EQ(form.Slider1.Value.Get(), 275);
  EXPECT_FLOAT_EQ(form.BoreHole(0).ScaleTop, 275 - 250);
  EXPECT_FLOAT_EQ(form.Picture1(2).ScaleTop, 275 - 250);
  EXPECT_EQ(DrivenBy, 0);
  for (int hole = 1; hole <= 4; ++hole) EXPECT_TRUE(form.mnuBH(hole).Enabled) << hole;
}

TEST_F(TargetHorizon, CoreBottomIsAStrictLimitAndTheBoxesGoBack) {
  LoadEmptyEventList();
  TypeCompositeDepth("275");
  TypeCompositeDepth("500");  // exactly at the deepest bottom
  EXPECT_TRUE(platform.messages.empty());

  // The texts to go back to are saved when the box gets the focus.
  frmMain->Text1.SetFocus();
  TypeCompositeDepth("500.5");
  ASSERT_EQ(platform.messages.size(), 1u);
  EXPECT_EQ(platform.messages[0].text, "Requested horizon is below core bottom.");
  EXPECT_EQ(platform.messages[0].title, "Error");
  EXPECT_EQ(platform.messages[0].icon, MsgIcon::Exclamation);
  // Back to the texts saved when the box got the focus.
  EXPECT_EQ(frmMain->Text2.Text.Get(), "500");
  EXPECT_EQ(frmMain->Text3.Text.Get(), "500");
}

TEST_F(TargetHorizon, ClearedBoxTargetAboveEveryTieAndTheSlider) {
  TypeCompositeDepth("");
  EXPECT_TRUE(platform.messages.empty());  // an empty box reads 0
  FrmMain& form = *frmMain;
  for (int hole = 1; hole <= 4; ++hole) EXPECT_FALSE(form.mnuBH(hole).Enabled) << hole;
  EXPECT_EQ(form.Combo1.Text.Get(), "A");

  TypeCompositeDepth("150");  // above the first tie at 200 in every bore hole
  for (int hole = 1; hole <= 4; ++hole) EXPECT_FALSE(form.mnuBH(hole).Enabled) << hole;
  EXPECT_EQ(form.Combo1.Text.Get(), "A");
  EXPECT_EQ(form.Text1.Text.Get(), "40");  // the trinity stays where it was

  // The slider takes the whole part of the depth, cut toward zero.
  TypeCompositeDepth("274.6");
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(form.Slider1.Value.Get(), 274);
  // Below the cores: the checks are off while a bore hole change sets things
  // up, so no message.
  ActionCount = 9999;
  DrivenBy = 2;
  form.Text2.Text = "1234.6";
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(form.Slider1.Value.Get(), 1234);
  TypeCompositeDepth("-12.7");
  EXPECT_EQ(form.Slider1.Value.Get(), -12);
  EXPECT_EQ(form.Text2.Text.Get(), "-12.7");
}

TEST_F(TargetHorizon, EfdTypedAtAnEventLayerSettles) {
  ImportEventList(EventListText(kTwoLayersOfFourHoles));
  ASSERT_TRUE(platform.messages.empty());
  FrmMain& form = *frmMain;
  CountFaces();
  auto typeEfd = [&](const std::string& text) {
    form.Text3.SetFocus();
    int key = '5';
    form.Text3.KeyPress(key);
    form.Text3.Text = text;
  };
  // The top of a layer: its EFD maps to the depth above the layer and back.
  typeEfd("260");
  EXPECT_EQ(form.Text2.Text.Get(), "260");
  EXPECT_EQ(form.Text3.Text.Get(), "260");
  // Below the layer the last layer of an unmerged list is not counted on the
  // way back, so the boxes settle on a pair that is not inverse, and stop.
  runs.clear();
  typeEfd("265");
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(form.Text2.Text.Get(), "285");
  EXPECT_EQ(form.Text3.Text.Get(), "265");
  EXPECT_EQ(runs["Text3"], 1);
  EXPECT_EQ(runs["Text2"], 1);
  EXPECT_FALSE(EfdEntryActive);
  EXPECT_EQ(DrivenBy, 0);
}

TEST_F(TargetHorizon, PickingASectionMovesTheTrinityAndTheDepth) {
  FrmMain& form = *frmMain;
  form.Combo2.UserPick(1);  // "02"
  EXPECT_EQ(form.Text1.Text.Get(), "0");
  EXPECT_EQ(form.Combo5.Text.Get(), "02");
  EXPECT_EQ(form.Text2.Text.Get(), "350");  // the top of section 2 is tied at 350
  EXPECT_EQ(DriveIndex, 1);

  // A PSP typed in the section.
  form.Text1.SetFocus();
  int key = '5';
  form.Text1.KeyPress(key);
  form.Text1.Text = "50";
  EXPECT_EQ(form.Text2.Text.Get(), "400");
  EXPECT_EQ(form.Label1(8).Caption.Get(), "400");
}

}  // namespace
}  // namespace ostraline
