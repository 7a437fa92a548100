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

TEST_F(AgeLookup, BracketEndsExtrapolationAndSentinels) {
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

  // The sentinels pass through with their errors.
  for (float sentinel : {9999.0f, -9999.0f}) {
    EXPECT_EQ(GetAgeFromCD(sentinel).ToDouble(), sentinel);
    EXPECT_EQ(AgeErrorPlus, sentinel);
    EXPECT_EQ(AgeErrorMinus, sentinel);
  }
  // Drive index 0 leaves Label9 alone.
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

  // Equal errors show the one-sided frmMain->
  Restart(kFusedLayer);
  ImportAges({{"L-a", "A", "01", "30", "0", "10", "1000", "20", "C1", "cal BP", "-"},
              {"L-b", "---", "---", "---", "200", "25", "2000", "25", "C1", "cal BP", "-"},
              {"L-c", "A", "02", "40", "0", "45", "3000", "45", "C1", "cal BP", "-"}});
  EXPECT_EQ(frmMain->Label8.Caption.Get(), "Error:  +/- 41 (95.4 %)");
  EXPECT_EQ(frmMain->Label7.Caption.Get(), "Age (cal BP)");
  frmMain->Text4.SetFocus();
  frmMain->Text4.Text = "2500";
  EXPECT_EQ(frmMain->Label8.Caption.Get(), "Error:  +/- 35");
}

// An operation between two singles is a single; a cell read as a double
// makes it a double. Each case lies on a rounding edge of the printed digit.
TEST_F(AgeLookup, OperandTypesDecideTheLastPrintedDigit) {
  // The way back by EFD: E2 - E1 is a single difference of two singles, so
  // 126.27 + 72 * (275.31 - 126.27) / 128 lands just on 210.105, not below.
  Restart(kNoLayer);
  ImportAges({{"L-1", "---", "---", "---", "126.27", "10", "2312", "20", "C1", "cal BP", "-"},
              {"L-2", "---", "---", "---", "275.31", "20", "2440", "30", "C1", "cal BP", "-"}});
  EXPECT_EQ(Str(Round(GetEFDFromAge(2384).ToDouble(), 2)), "210.11");

  // The way back by varve count: the sum reaches c = 30 * 850 / 1000 at the
  // marker 520, so the offset is 513.7 - 498.6 between two single markers,
  // and the composite depth 499.7055 + 15.100006 is summed with the cell as
  // a double before it becomes a single: 514.80548 (a sum of singles would
  // give 514.80554, printed 514.806).
  Restart(kNoLayer);
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

// Control points by depth alone at 100, 200, 300 and 400 cm, ages 1000, 1400,
// 3000 and 5000, with no event layer: EFD is the composite depth. Markers at
// 95, 120, 150, 180, 250 and 310 cm with intervals of 10, 20, 50, 20, 100 and
// 60 varves (the first counted from 0).
class VarveRecord : public AgeProgram {
 protected:
  void SetUp() override {
    AgeProgram::SetUp();
    ImportModelAndEvents(kNoLayer);
    ImportAges({{"V-1", "---", "---", "---", "100", "10", "1000", "20", "C1", "varve yr", "-"},
                {"V-2", "---", "---", "---", "200", "20", "1400", "30", "C1", "varve yr", "-"},
                {"V-3", "---", "---", "---", "300", "40", "3000", "40", "C1", "varve yr", "-"},
                {"V-4", "---", "---", "---", "400", "40", "5000", "40", "C1", "varve yr", "-"}});
    ASSERT_TRUE(platform.messages.empty()) << OnlyMessage();
  }
  void ImportRecord() {
    ImportVarves({{"95", "10"},
                  {"120", "30"},
                  {"150", "80"},
                  {"180", "100"},
                  {"250", "200"},
                  {"310", "260"}});
    ASSERT_TRUE(platform.messages.empty()) << OnlyMessage();
  }
};

TEST_F(VarveRecord, ImportSetsTheRecordAndItsLimits) {
  ImportVarves({});
  EXPECT_EQ(OnlyMessage(), "Error: File format error.");  // a header alone
  EXPECT_FALSE(VarveCountsLoaded);
  EXPECT_TRUE(frmMain->Command5.Enabled);
  EXPECT_FALSE(frmMain->ProgressBar1.Visible);

  platform.messages.clear();
  ImportRecord();
  FrmMain& form = *frmMain;
  EXPECT_TRUE(VarveCountsLoaded);
  EXPECT_EQ(VarveCountRows, 6);
  EXPECT_EQ(VarveCounts(1, 3), 80);
  EXPECT_EQ(VarveTopCD, 95);
  EXPECT_EQ(VarveBottomCD, 310);
  EXPECT_EQ(VarveTopEFD, 95);
  EXPECT_EQ(VarveBottomEFD, 310);
  EXPECT_FALSE(form.Command5.Enabled);
  EXPECT_FALSE(form.ProgressBar1.Visible);
  EXPECT_EQ(FocusedControl(), &form.Text2);
  EXPECT_EQ(VarveVersion, "01 Feb. 2013");
  // The target at 240 cm: no marker between 200 and 240, 100 varves below it.
  EXPECT_EQ(form.Text4.Text.Get(), "1400");
}

TEST_F(VarveRecord, AgesFollowTheCountedVarvesBothWays) {
  ImportRecord();
  FrmMain& form = *frmMain;
  // 160 cm: 20 + 50 varves above it, 20 below, to the next control point.
  EXPECT_DOUBLE_EQ(GetAgeFromCD(160).ToDouble(), 1000 + 400.0 * 70 / 90);
  EXPECT_FLOAT_EQ(AgeErrorPlus, static_cast<float>(10 + 10.0 * 70 / 90));
  EXPECT_EQ(AgeRowLower, 1);
  EXPECT_EQ(form.Label9.Caption.Get(), "(interpolated by varve count)");

  // The marker at 250 cm counts for neither side: from a depth the lower
  // row's age as its cell has it, from an EFD the upper row's.
  const Variant fromDepth = GetAgeFromCD(250);
  EXPECT_EQ(fromDepth, Variant("1400"));
  EXPECT_EQ(AgeErrorPlus, 20);
  EXPECT_EQ(AgeErrorMinus, 30);
  EXPECT_EQ(GetAgeFromEFD(250).ToDouble(), 3000);
  EXPECT_EQ(AgeErrorPlus, 40);

  // Between 300 and 400 cm the record does not reach the lower row: by EFD.
  form.Label9.Caption = "";
  EXPECT_DOUBLE_EQ(GetAgeFromCD(305).ToDouble(), 3100);
  EXPECT_EQ(form.Label9.Caption.Get(), "(interpolated by EFD)");
  EXPECT_DOUBLE_EQ(GetAgeFromCD(90).ToDouble(), 960);  // above the record

  form.Label9.Caption = "kept";
  DriveIndex = 0;
  GetAgeFromCD(160);
  EXPECT_EQ(form.Label9.Caption.Get(), "kept");

  // Age 1200 lies half way between 1000 and 1400: 45 of the 90 varves from
  // the marker at 95 cm; the count passes 45 at 150 cm, so the marker before,
  // 25 cm below 95, is added to the row's 100 cm.
  EXPECT_DOUBLE_EQ(GetEFDFromAge(1200).ToDouble(), 125);
  EXPECT_FLOAT_EQ(AgeErrorPlus, 12.5);  // by depth: 25 of 100 cm
  EXPECT_FLOAT_EQ(AgeErrorMinus, 22.5);
}

TEST_F(VarveRecord, RecordBeginningAtFiveThousandVarves) {
  // The first marker at the control point itself: the walk starts at row 0,
  // whose count is 0, so the first interval holds all 5000 varves and the
  // half of them is reached at once.
  ImportVarves({{"100", "5000"},
                {"120", "5020"},
                {"150", "5070"},
                {"180", "5090"},
                {"250", "5190"},
                {"310", "5250"}});
  ASSERT_TRUE(platform.messages.empty()) << OnlyMessage();
  EXPECT_DOUBLE_EQ(GetEFDFromAge(1200).ToDouble(), 100);
  EXPECT_FLOAT_EQ(AgeErrorPlus, 10);
}

}  // namespace
}  // namespace ostraline
