#include "core/project_state.h"
#include "events/age_lookup.h"
#include "events/event_free_depth.h"
#include "events/event_state.h"
#include "forms/frm_main.h"
#include "support/age_files.h"

namespace ostraline {
namespace {

class AgeModelImport : public AgeProgram {
 protected:
  void SetUp() override {
    AgeProgram::SetUp();
    ImportModelAndEvents(kFusedLayer);
  }
  // A control point by its trinity, one by its depth alone, a reference row,
  // a row of an unknown class, and a counted one in another unit.
  static std::vector<AgeRow> Points() {
    return {{"L-a", "A", "01", "30", "999", "10", "1000", "20", "C1", "cal BP", "x"},
            {"L-b", "---", "---", "---", "200", "20", "2000", "30", "c2", "cal BP", "-"},
            {"R-1", "A", "01", "60", "172", "5", "1500", "5", "R", "cal BP", "-"},
            {"X-1", "A", "01", "40", "0", "1", "1", "1", "x1", "cal BP", "-"},
            {"L-c", "A", "02", "40", "0", "40", "3000", "40", "V", "varve yr", "-"}};
  }
  std::string Warning(const std::string& version) const {
    return "WARNING!!: Version dates are inconsistent between correlation models for plotting "
           "(05 Mar. 2011) and age control points (" +
           version + "). Do you proceed anyway?";
  }
  // Refused imports take the event layers out of the depth scale.
  void ExpectRefused() {
    EXPECT_FALSE(AgeModelLoaded);
    EXPECT_EQ(EventCount, -9999);
    EXPECT_EQ(MergedEventCount, -9999);
    EXPECT_EQ(CDToEFD(155).ToDouble(), 155);
    EXPECT_TRUE(frmMain->Command4.Enabled);
    EXPECT_FALSE(frmMain->ProgressBar1.Visible);
  }
};

TEST_F(AgeModelImport, RowsArePlacedOnTheCompositeAndEfdScales) {
  ImportAges(Points());
  ASSERT_TRUE(platform.messages.empty()) << OnlyMessage();
  ASSERT_EQ(AgeModelCount, 3);
  EXPECT_EQ(AgeModel(0, 1), "C1");
  EXPECT_EQ(AgeModel(0, 2), "C2");   // "c" made upper case, the rest kept
  EXPECT_EQ(AgeModel(1, 3), "L-c");  // "x1" dropped without a word
  EXPECT_EQ(AgeModel(10, 1), "x");
  EXPECT_EQ(AgeModel(9, 3), "varve yr");
  // PSP 30 between the ties 10 (110 cm) and 50 (160 cm); the layer 150..160 cut out.
  EXPECT_EQ(AgeModel(5, 1) + "|" + AgeModel(11, 1), "135|135");
  EXPECT_EQ(AgeModel(5, 2) + "|" + AgeModel(11, 2), "200|190");
  EXPECT_EQ(AgeModel(5, 3) + "|" + AgeModel(11, 3), "250|240");
  ASSERT_EQ(AgeReferenceCount, 1);
  EXPECT_EQ(AgeReferenceRows(0, 1), Variant("R"));
  EXPECT_EQ(AgeReferenceRows(5, 1), Variant("172"));
  EXPECT_TRUE(AgeReferenceRows(11, 1).IsEmpty());
  EXPECT_EQ(ErrorLevelPlus, "95.4 %");
  EXPECT_EQ(ErrorLevelMinus, "68.2 %");

  FrmMain& form = *frmMain;
  EXPECT_TRUE(AgeModelLoaded);
  EXPECT_EQ(EventCount, 2);
  EXPECT_FALSE(form.Command4.Enabled);
  EXPECT_TRUE(form.Command5.Enabled);
  EXPECT_TRUE(form.mnuAge.Enabled && form.mnuDepth.Enabled && form.Text4.Enabled &&
              form.Label9.Enabled);
  EXPECT_FALSE(form.ProgressBar1.Visible);
  EXPECT_EQ(AgeModelVersion, "01 Jan. 2012");
  // The target at 240 cm, EFD 230: between L-b (190) and L-c (240), 4/5 of the way.
  EXPECT_EQ(form.Text4.Text.Get(), "2800");
  EXPECT_EQ(form.Label7.Caption.Get(), "Age (Hybrid unit)");
  EXPECT_EQ(form.Label8.Caption.Get(), "Error:  +36 (95.4 %)/ -38 (68.2 %)");
  EXPECT_EQ(form.Label9.Caption.Get(), "(interpolated by EFD)");
}

TEST_F(AgeModelImport, HeaderTailNamesTheModelVersion) {
  for (const char* tail : {"Composite depth (05 Mar. 2011)", "Composite depth 05 Mar. 2011"}) {
    Restart(kFusedLayer);
    ImportAges(Points(), {tail});
    EXPECT_TRUE(platform.messages.empty()) << tail << ": " << OnlyMessage();
    EXPECT_TRUE(AgeModelLoaded);
  }
  // A one-digit day loses its bracket but is not the model's version; a
  // number that is no date passes as text. Yes goes on.
  for (auto [tail, version] : {std::pair{"Composite depth (5 Mar. 2011)", "5 Mar. 2011"},
                               std::pair{"(20110305)", "20110305"}}) {
    Restart(kFusedLayer);
    ImportAges(Points(), {tail});
    EXPECT_EQ(OnlyMessage(), Warning(version));
    EXPECT_EQ(platform.messages.at(0).buttons, MsgButtons::YesNo);
    EXPECT_TRUE(AgeModelLoaded);
    EXPECT_EQ(EventCount, 2);
  }
}

TEST_F(AgeModelImport, FailuresNameTheBoreHoleWhileTheDuoIsClosed) {
  const auto undefined = [](const std::string& name) {
    return "Error: Bore hole name '" + name +
           "' has not been defined. Import parallel correlation model to Ostraline Duo.";
  };
  auto rows = Points();
  rows[1] = {"L-b", "Q", "---", "---", "200", "20", "2000", "30", "C2", "cal BP", "-"};
  ImportAges(rows);  // given by its depth alone, an unknown name does no harm
  EXPECT_TRUE(platform.messages.empty()) << OnlyMessage();

  // Without a plain number in column 5, or with a section to look up.
  for (AgeRow bad : {AgeRow{"L-b", "Q", "---", "---", "200 cm", "20", "2000", "30", "C2", "a", "-"},
                     AgeRow{"L-b", "Q", "01", "30", "200", "20", "2000", "30", "C2", "a", "-"}}) {
    Restart(kFusedLayer);
    rows[1] = bad;
    ImportAges(rows);
    EXPECT_EQ(OnlyMessage(), undefined("Q"));
    ExpectRefused();
  }

  // A header tail that is no number fails too, named after the header's cell.
  Restart(kFusedLayer);
  ImportAges(Points(), {"Composite depth (version Mar)"});
  EXPECT_EQ(OnlyMessage(), undefined("Hole"));
  ExpectRefused();

  // With the Duo open the same failures read as a format error.
  Restart(kFusedLayer);
  DuoOpen = true;
  ImportAges(Points(), {"Composite depth (05 Mar. 2011)", "9.5"});  // a decimal mark too early
  EXPECT_EQ(OnlyMessage(), "Error: File format error.");
  ExpectRefused();
}

TEST_F(AgeModelImport, CancelChangesNothingAndNoTakesTheEventLayersOut) {
  platform.QueueCancel();
  frmMain->Command4_Click();
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(EventCount, 2);
  EXPECT_FALSE(AgeModelLoaded);

  platform.QueueAnswer(MsgAnswer::No);
  ImportAges(Points(), {"Composite depth (5 Mar. 2011)"});
  EXPECT_EQ(OnlyMessage(), Warning("5 Mar. 2011"));
  ExpectRefused();
}

TEST_F(AgeModelImport, ReferenceRowsChangeNoAge) {
  const float depths[] = {100, 135, 150, 155, 172, 200, 240, 260, 320};
  ImportAges(Points());
  std::vector<double> withReferences;
  for (float cd : depths) withReferences.push_back(GetAgeFromCD(cd).ToDouble());
  // 155 cm lies in the layer: EFD 150, 15/55 of the way from L-a to L-b.
  EXPECT_DOUBLE_EQ(withReferences[3], 1000 + 1000.0 * 15 / 55);

  Restart(kFusedLayer);
  auto rows = Points();
  rows.erase(rows.begin() + 2, rows.begin() + 4);
  ImportAges(rows);
  ASSERT_EQ(AgeReferenceCount, 0);
  for (std::size_t i = 0; i < std::size(depths); ++i) {
    EXPECT_EQ(GetAgeFromCD(depths[i]).ToDouble(), withReferences[i]) << depths[i];
  }
}

}  // namespace
}  // namespace ostraline
