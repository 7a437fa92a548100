#include <string>
#include <tuple>
#include <vector>

#include "core/depth_conversions.h"
#include "core/hole_lookup.h"
#include "core/project_state.h"
#include "display/display_state.h"
#include "forms/frm_main.h"
#include "support/fresh_program.h"
#include "support/model_files.h"

namespace ostraline {
namespace {

// Section 1 has ties PSP 10 at CD 110 and PSP 50 at CD 160; section 2 only a
// tie at its top (CD 200); section 3 two ties with equal PSP; section 4 ends
// the core. Bore hole B has sections but no positions.
std::vector<ModelRow> ExampleModel() {
  std::vector<ModelRow> rows{DefaultHeader(),
                             RowA("A-01-top", "0", "100", ""),
                             RowA("L1", "10", "110", "110"),
                             RowA("L2", "50", "150", "160"),
                             RowA("A-01-bottom", "80", "180", ""),
                             RowA("A-02-top", "0", "190", "200"),
                             RowA("A-02-bottom", "40", "230", ""),
                             RowA("A-03-top", "0", "240", ""),
                             RowA("L3", "10", "250", "300"),
                             RowA("L4", "10", "250", "320"),
                             RowA("A-03-bottom", "30", "270", ""),
                             RowA("A-04-top", "0", "280", "330"),
                             RowA("L5", "20", "300", "350"),
                             RowA("A-04-bottom", "40", "320", "")};
  rows[1].holes[3] = "B-01-top";
  rows[4].holes[3] = "B-01-bottom";
  return rows;
}

class DepthConversions : public FreshProgram {
 protected:
  void SetUp() override {
    FreshProgram::SetUp();
    ImportModel(ExampleModel());
    ASSERT_TRUE(platform.messages.empty());
    frmMain->Option2(1).Value = true;
  }
  void Method(int index) { frmMain->Option4(index).Value = true; }
  double Composite(int section, float psp) {
    return CompositeFromTrinity(1, section, psp).ToDouble();
  }
  // The view is centred on the target first, as the callers do.
  void LookUp(int hole, float target) {
    frmMain->BoreHole(hole).ScaleTop = target - static_cast<float>(ViewSpan) / 2;
    GetPSP(hole, target);
  }
};

TEST_F(DepthConversions, TwoTiesAgreeInsideAndDifferBeyondOneTieShiftsEqualPspsGiveNoValue) {
  // Inside the ties both methods agree; beyond them, below and above, they part.
  for (const auto& [method, below, above] : {std::tuple{0, 172.5, 97.5}, {1, 170.0, 100.0}}) {
    Method(method);
    EXPECT_DOUBLE_EQ(Composite(1, 30), 135);
    EXPECT_DOUBLE_EQ(Composite(1, 60), below);
    EXPECT_DOUBLE_EQ(Composite(1, 0), above);
  }
  // Neither method chosen: no answer at all.
  frmMain->Option4(1).Value = false;
  EXPECT_TRUE(CompositeFromTrinity(1, 1, 30).IsEmpty());

  // One tie shifts one to one.
  for (int method : {0, 1}) {
    Method(method);
    EXPECT_DOUBLE_EQ(Composite(2, 15), 215);
    EXPECT_DOUBLE_EQ(Composite(2, -5), 195);
  }
  // Equal PSPs give no value; the sentinels and an unknown section or bore
  // hole pass through as 9999.
  Method(0);
  for (const auto& [hole, section, psp] :
       {std::tuple{1, 3, 20.0f}, {1, 1, 9999.0f}, {1, 9999, 10.0f}, {1, 5, 10.0f}, {0, 1, 10.0f}}) {
    EXPECT_EQ(CompositeFromTrinity(hole, section, psp), Variant(9999)) << hole << section << psp;
  }
}

TEST_F(DepthConversions, ModelDepthsTakeTheTieOverTheComputedValue) {
  EXPECT_EQ(ModelCell(1, 1, 2, 2), "110");
  EXPECT_EQ(ModelCell(1, 1, 2, 4), "197.5");  // stretched on by the nearest pair's ratio
  EXPECT_EQ(ModelCell(1, 1, 1, 4), "80");
  EXPECT_EQ(ModelCell(1, 2, 2, 4), "9999");   // bore hole B has no positions
  EXPECT_EQ(ModelCell(1, 1, 2, 10), "9999");  // two ties with equal PSP
  EXPECT_EQ(CoreBottom(1), 370);
  EXPECT_EQ(CoreBottom(2), 9999);
  EXPECT_EQ(CoreBottom(3), 0);    // no section: row 0's never filled cell
  EXPECT_EQ(DeepestBottom, 370);  // bore holes of 9999 drop out
  EXPECT_EQ(frmMain->Slider1.Max.Get(), 370);
  // Bore hole B is not offered, C and D are (their bottoms read 0).
  EXPECT_EQ(frmMain->Combo1.List(), (std::vector<std::string>{"A", "C", "D"}));
}

TEST_F(DepthConversions, TargetPspFromTheBracketingTiesAndTheEstimatedBottom) {
  Method(0);
  LookUp(1, 135);
  EXPECT_FLOAT_EQ(TargetPSP, 30);
  EXPECT_EQ(TargetTopRow, 1);
  EXPECT_EQ(TieRowAbove, 2);
  EXPECT_EQ(TieRowBelow, 3);
  EXPECT_EQ(frmMain->Label4.Caption.Get(), "1/2/3");
  EXPECT_EQ(frmMain->BoreHole(1).ToolTipText.Get(), "Target depth: 30 (cm)");

  // Above the first tie the PSP turns negative; by 1:1 the shift is plain.
  LookUp(1, 95);
  EXPECT_FLOAT_EQ(TargetPSP, -2);
  Method(1);
  LookUp(1, 95);
  EXPECT_FLOAT_EQ(TargetPSP, -5);

  // Section 1 ends at 160 + (80 - 50) = 190 by its last tie.
  Method(0);
  LookUp(1, 189.9f);
  EXPECT_EQ(TargetTopRow, 1);
  LookUp(1, 190);
  EXPECT_EQ(TargetTopRow, 5);

  // The divider's lists follow the section found, unless the divider drives.
  LookUp(1, 135);
  EXPECT_EQ(SectionTieList(1, 0), Variant("A-01-top"));
  EXPECT_EQ(SectionTieList(3, 1), Variant("50"));
  EXPECT_EQ(SectionTieList(3, 2), Variant("160"));
  EXPECT_EQ(SectionTieList(4, 0), Variant("A-01-bottom"));
  EXPECT_EQ(SectionTieList(5, 0), Variant(""));
  DrivenBy = 8;  // the divider drives: its lists stay
  LookUp(1, 205);
  EXPECT_EQ(SectionTieList(1, 0), Variant("A-01-top"));

  // On the drilling scale, below the last tie the old PSP stays.
  frmMain->Option2(0).Value = true;
  LookUp(1, 120);
  EXPECT_FLOAT_EQ(TargetPSP, 20);  // drilling depth less that of the section's top
  TargetPSP = 42;
  LookUp(1, 5000);
  EXPECT_FLOAT_EQ(TargetPSP, 42);
}

TEST_F(DepthConversions, LetterLookupsDifferAsRequired) {
  HoleName(3) = "A";
  EXPECT_EQ(BHNo("A"), 1);
  EXPECT_EQ(GetBH("A"), Variant(3));
  EXPECT_EQ(AlphaNum(Variant("A")), Variant(1));
  EXPECT_EQ(BHNo("?"), -9999);
  EXPECT_EQ(GetBH("?"), Variant(9999));
  EXPECT_EQ(AlphaNum(Variant("?")), Variant(1));

  SectionName(1, 2) = "002";
  EXPECT_EQ(SectionOrdinalByName(1, "2"), 2);
  EXPECT_EQ(SectionOrdinalByName(1, "02"), 2);
  EXPECT_EQ(SectionOrdinalByName(1, "03"), 3);
  EXPECT_EQ(SectionOrdinalByName(1, "7"), 9999);
  EXPECT_EQ(SectionOrdinalByName(-9999, "01"), 9999);
  EXPECT_EQ(SectionOrdinalOfRow(1, 7), Variant(3));
}

}  // namespace
}  // namespace ostraline
