#include "core/project_state.h"
#include "events/age_lookup.h"
#include "events/event_state.h"
#include "forms/frm_main.h"
#include "forms/frm_version.h"
#include "support/age_files.h"

namespace ostraline {
namespace {

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
  void ImportRecord(const char* firstCount) {
    ImportVarves({{"95", firstCount},
                  {"120", "30"},
                  {"150", "80"},
                  {"180", "100"},
                  {"250", "200"},
                  {"310", "260"}});
    ASSERT_TRUE(platform.messages.empty()) << OnlyMessage();
  }
};

TEST_F(VarveRecord, ImportSetsTheRecordAndItsLimits) {
  ImportRecord("10");
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
  EXPECT_EQ(frmVersion->Label2(5).Caption.Get(), "01 Feb. 2013");
  // The target at 240 cm: no marker between 200 and 240, 100 varves below it.
  EXPECT_EQ(form.Text4.Text.Get(), "1400");
}

TEST_F(VarveRecord, HeaderOnlyFileFails) {
  ImportVarves({});
  EXPECT_EQ(OnlyMessage(), "Error: File format error.");
  EXPECT_FALSE(VarveCountsLoaded);
  EXPECT_TRUE(frmMain->Command5.Enabled);
  EXPECT_FALSE(frmMain->ProgressBar1.Visible);
}

TEST_F(VarveRecord, AgesFollowTheCountedVarves) {
  ImportRecord("10");
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
}

TEST_F(VarveRecord, WayBackFromAnAgeLandsOnAMarker) {
  ImportRecord("10");
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
