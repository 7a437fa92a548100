#include "events/age_lookup.h"

#include "core/project_state.h"
#include "events/event_state.h"
#include "forms/frm_main.h"
#include "runtime/number_text.h"
#include "support/age_files.h"

namespace ostraline {
namespace {

// Control points at EFD 135 (age 1000, +10 -20), 190 (2000, +20 -30) and
// 240 (3000, +40 -40); the event layer 150..160 cm lies between the first two.
class AgeLookup : public AgeProgram {
 protected:
  void SetUp() override {
    AgeProgram::SetUp();
    ImportModelAndEvents(kFusedLayer);
    ImportAges({{"L-a", "A", "01", "30", "0", "10", "1000", "20", "C1", "cal BP", "-"},
                {"L-b", "---", "---", "---", "200", "20", "2000", "30", "C1", "cal BP", "-"},
                {"L-c", "A", "02", "40", "0", "40", "3000", "40", "V", "varve yr", "-"}});
    ASSERT_TRUE(platform.messages.empty()) << OnlyMessage();
  }
  // Age, plus and minus error and the pair of rows of one lookup from an EFD.
  void ExpectFromEfd(float efd, double age, double plus, double minus, int lower) {
    SCOPED_TRACE(efd);
    EXPECT_DOUBLE_EQ(GetAgeFromEFD(efd).ToDouble(), age);
    EXPECT_FLOAT_EQ(AgeErrorPlus, static_cast<float>(plus));
    EXPECT_FLOAT_EQ(AgeErrorMinus, static_cast<float>(minus));
    EXPECT_EQ(AgeRowLower, lower);
    EXPECT_EQ(AgeRowUpper, lower + 1);
  }
};

TEST_F(AgeLookup, BracketEndsAndExtrapolation) {
  ExpectFromEfd(190, 2000, 20, 30, 2);  // at a row: that row's values
  ExpectFromEfd(240, 3000, 40, 40, 2);  // at the last row: the last pair
  ExpectFromEfd(100, 1000 + 1000.0 * -35 / 55, 10 + 10.0 * -35 / 55, 20 + 10.0 * -35 / 55, 1);
  ExpectFromEfd(300, 2000 + 1000.0 * 110 / 50, 20 + 20.0 * 110 / 50, 30 + 10.0 * 110 / 50, 2);
  EXPECT_EQ(frmMain->Label9.Caption.Get(), "(interpolated by EFD)");

  // From a depth: 155 cm lies inside the layer and takes the EFD of its top.
  EXPECT_DOUBLE_EQ(GetAgeFromCD(155).ToDouble(), GetAgeFromEFD(150).ToDouble());
  // From an age: back to the EFD, the errors interpolated in age.
  EXPECT_DOUBLE_EQ(GetEFDFromAge(1500).ToDouble(), 135 + 500 * 55.0 / 1000);
  EXPECT_FLOAT_EQ(AgeErrorPlus, 15);
  EXPECT_FLOAT_EQ(AgeErrorMinus, 25);
}

TEST_F(AgeLookup, SentinelsPassThrough) {
  for (float sentinel : {9999.0f, -9999.0f}) {
    EXPECT_EQ(GetAgeFromCD(sentinel).ToDouble(), sentinel);
    EXPECT_EQ(AgeErrorPlus, sentinel);
    EXPECT_EQ(AgeErrorMinus, sentinel);
  }
}

TEST_F(AgeLookup, DriveIndexZeroLeavesLabel9Alone) {
  frmMain->Label9.Caption = "kept";
  DriveIndex = 0;
  GetAgeFromCD(170);
  GetEFDFromAge(2500);
  EXPECT_EQ(frmMain->Label9.Caption.Get(), "kept");
}

TEST_F(AgeLookup, TypedAgeDrivesTheDepthsAndShowsBareErrors) {
  FrmMain& form = *frmMain;
  form.Text4.SetFocus();
  EXPECT_EQ(DriveIndex, 4);
  form.Text4.Text = "1500";
  EXPECT_TRUE(platform.messages.empty()) << OnlyMessage();
  EXPECT_EQ(form.Text3.Text.Get(), "162.5");
  EXPECT_EQ(form.Text2.Text.Get(), "172.5");  // back over the layer
  EXPECT_EQ(form.Label8.Caption.Get(), "Error:  +15 / -25");
  // A typed age does not move the pair of rows: the unit stays that of the
  // target looked up before, between units.
  EXPECT_EQ(form.Label7.Caption.Get(), "Age (Hybrid unit)");

  // EFD 540, 550 cm: below every core; the boxes go back.
  form.Text4.Text = "9000";
  EXPECT_EQ(OnlyMessage(), "Error: Requested horizon is below core bottom.");
  EXPECT_EQ(form.Text4.Text.Get(), "2800");
  EXPECT_EQ(form.Text2.Text.Get(), "240");
}

TEST_F(AgeLookup, EqualErrorsShowOneSidedForm) {
  ResetProgram();
  ImportModelAndEvents(kFusedLayer);
  ImportAges({{"L-a", "A", "01", "30", "0", "10", "1000", "20", "C1", "cal BP", "-"},
              {"L-b", "---", "---", "---", "200", "25", "2000", "25", "C1", "cal BP", "-"},
              {"L-c", "A", "02", "40", "0", "45", "3000", "45", "C1", "cal BP", "-"}});
  FrmMain& form = *frmMain;
  EXPECT_EQ(form.Label8.Caption.Get(), "Error:  +/- 41 (95.4 %)");
  EXPECT_EQ(form.Label7.Caption.Get(), "Age (cal BP)");
  form.Text4.SetFocus();
  form.Text4.Text = "2500";
  EXPECT_EQ(form.Label8.Caption.Get(), "Error:  +/- 35");
}

// An operation between two singles is a single; a cell read as a double
// makes it a double. Each case lies on a rounding edge of the printed digit.
TEST_F(AgeLookup, OperandTypesDecideTheLastPrintedDigit) {
  // The way back by EFD: E2 - E1 is a single difference of two singles, so
  // 126.27 + 72 * (275.31 - 126.27) / 128 lands just on 210.105, not below.
  ResetProgram();
  ImportModelAndEvents(kNoLayer);
  ImportAges({{"L-1", "---", "---", "---", "126.27", "10", "2312", "20", "C1", "cal BP", "-"},
              {"L-2", "---", "---", "---", "275.31", "20", "2440", "30", "C1", "cal BP", "-"}});
  EXPECT_EQ(Str(Round(GetEFDFromAge(2384).ToDouble(), 2)), "210.11");

  // The way back by varve count: the sum reaches c = 30 * 850 / 1000 at the
  // marker 520, so the offset is 513.7 - 498.6 between two single markers,
  // and the composite depth 499.7055 + 15.100006 is summed with the cell as
  // a double before it becomes a single: 514.80548 (a sum of singles would
  // give 514.80554, printed 514.806).
  ResetProgram();
  ImportModelAndEvents(kNoLayer);
  ImportAges({{"V-1", "---", "---", "---", "499.7055", "10", "1000", "20", "C1", "varve yr", "-"},
              {"V-2", "---", "---", "---", "530", "20", "2000", "30", "C1", "varve yr", "-"}});
  ImportVarves({{"498.6", "10"},
                {"500", "20"},
                {"513.7", "30"},
                {"520", "40"},
                {"530", "50"},
                {"540", "60"}});
  ASSERT_TRUE(platform.messages.empty()) << OnlyMessage();
  DepthPrecision = 3;
  EXPECT_EQ(Str(GetEFDFromAge(1850).ToDouble()), "514.805");
}

}  // namespace
}  // namespace ostraline
