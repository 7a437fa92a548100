// The bundled sample project through the ordinary imports, against values
// worked out by hand from its files (samples/EXPECTED.md).
#include <filesystem>
#include <string>

#include "core/depth_conversions.h"
#include "core/project_state.h"
#include "duo/depth_map.h"
#include "duo/duo_state.h"
#include "events/age_lookup.h"
#include "events/event_free_depth.h"
#include "events/event_state.h"
#include "forms/frm2_main.h"
#include "forms/frm_main.h"
#include "forms/frm_select.h"
#include "proxies/proxy_records.h"
#include "runtime/number_text.h"
#include "support/fresh_program.h"

namespace ostraline {
namespace {

std::string Sample(const std::string& name) {
  const std::filesystem::path path = std::filesystem::path(OSTRALINE_SAMPLES) / name;
  if (!std::filesystem::exists(path)) ADD_FAILURE() << "sample file missing: " << path;
  return path.string();
}

class SampleProject : public FreshProgram {
 protected:
  void ImportThrough(const std::string& file, void (FrmMain::*button)()) {
    platform.QueueFile(Sample(file));
    ((*frmMain).*button)();
  }
  void ImportModelAndEvents() {
    ImportThrough("correlation_model_20250314.csv", &FrmMain::Command1_Click);
    ImportThrough("event_layers_20250320.csv", &FrmMain::Command3_Click);
  }
  void ImportModelEventsAndAges() {
    ImportModelAndEvents();
    ImportThrough("age_depth_model_20250402.csv", &FrmMain::Command4_Click);
  }
  double Rounded(const Variant& value, int digits) { return Round(value.ToDouble(), digits); }
};

TEST_F(SampleProject, CorrelationModelAndItsConversions) {
  ImportThrough("correlation_model_20250314.csv", &FrmMain::Command1_Click);
  ASSERT_TRUE(platform.messages.empty());
  EXPECT_EQ(LastRow, 1786);
  EXPECT_EQ(ModelVersion, "14 Mar. 2025");
  EXPECT_EQ(SectionCount(1), 45);
  EXPECT_EQ(SectionCount(4), 29);
  EXPECT_EQ(frmMain->Label1(2).Caption.Get(), "B (Core 6)");
  EXPECT_EQ(TieCell(0, 1030), "Gap");
  EXPECT_EQ(ModelCell(0, 3, 2, 283), "9999");  // "*1054.9"
  EXPECT_FLOAT_EQ(CoreBottom(1), 7000.06069f);

  EXPECT_EQ(Rounded(CompositeFromTrinity(1, 5, 76.1f), 2), 638.27);
  EXPECT_EQ(Rounded(CompositeFromTrinity(1, 5, 183), 2), 745.36);
  EXPECT_EQ(Rounded(CompositeFromTrinity(1, 12, 134.3f), 2), 1848.17);
  frmMain->Option4(1).Value = true;
  EXPECT_EQ(Rounded(CompositeFromTrinity(1, 5, 183), 2), 745.4);
}

TEST_F(SampleProject, EventLayersAndTheirFreeDepths) {
  ImportModelAndEvents();
  ASSERT_TRUE(platform.messages.empty());
  EXPECT_EQ(EventCount, 32);
  EXPECT_EQ(MergedEventCount, 29);
  EXPECT_EQ(EventListVersion, "20 Mar. 2025");
  EXPECT_FLOAT_EQ(EventTop(1, 3), 331.0039f);  // two turbidites fused
  EXPECT_FLOAT_EQ(EventBottom(1, 3), 336.4213f);
  EXPECT_EQ(CDToEFD(638.268235f).ToDouble(), 621.3);
  EXPECT_EQ(CDToEFD(1489.6f).ToDouble(), 1446.22);
  EXPECT_EQ(EFDToCD(150.2f).ToDouble(), 151.94);
  EXPECT_EQ(EFDToCD(621.3f).ToDouble(), 638.26);
}

TEST_F(SampleProject, AgesByEfdAndByVarveCount) {
  ImportModelEventsAndAges();
  ASSERT_TRUE(platform.messages.empty());
  EXPECT_EQ(AgeModelCount, 30);
  EXPECT_EQ(AgeReferenceCount, 4);
  EXPECT_EQ(ErrorLevelPlus, "95.4 %");
  EXPECT_EQ(AgeModel(5, 16), "1533.029");  // Poz-80544 placed by its position

  // 1650.4 cm (age 15206, +261 -191) is checked through the boxes below.
  EXPECT_EQ(Rounded(GetAgeFromCD(1489.6f), 0), 14205);
  EXPECT_NE(AgeModel(9, AgeRowLower), AgeModel(9, AgeRowUpper));  // a hybrid stretch
  EXPECT_EQ(Rounded(GetAgeFromCD(245.3f), 0), 2392);

  ImportThrough("varve_counts_20250325.csv", &FrmMain::Command5_Click);
  ASSERT_TRUE(platform.messages.empty());
  EXPECT_EQ(VarveCountRows, 315);
  EXPECT_EQ(Rounded(GetAgeFromCD(245.3f), 0), 2359);
  EXPECT_EQ(Round(AgeErrorPlus, 0), 65);
  EXPECT_EQ(frmMain->Label9.Caption.Get(), "(interpolated by varve count)");
  EXPECT_EQ(Rounded(GetAgeFromEFD(621.3f), 0), 6088);
}

// With varve counts, writing the age box runs its change handler inside
// DisplayAge: the way back from that age looks up the ages at the varve
// record's ends, and the unit caption is chosen from the rows that lookup
// left behind, rows 14 and 15, both in varve years.
TEST_F(SampleProject, TypedDepthAfterVarvesShowsTheUnitOfTheRecordsEnd) {
  ImportModelEventsAndAges();
  ImportThrough("varve_counts_20250325.csv", &FrmMain::Command5_Click);
  FrmMain& form = *frmMain;
  TypeCompositeDepth("1650.4");
  ASSERT_TRUE(platform.messages.empty());
  EXPECT_EQ(form.Text3.Text.Get(), "1600.62");
  EXPECT_EQ(form.Text4.Text.Get(), "15206");
  EXPECT_EQ(AgeRowLower, 14);
  EXPECT_EQ(form.Label7.Caption.Get(), "Age (varve yr BP)");
  EXPECT_EQ(form.Label8.Caption.Get(), "Error:  +261 (95.4 %)/ -191 (95.4 %)");
  form.Text2.Text = "1489.6";  // the hybrid stretch of the batch
  EXPECT_EQ(form.Text4.Text.Get(), "14205");
  EXPECT_EQ(form.Label7.Caption.Get(), "Age (varve yr BP)");
}

// The four proxy records, each by its own layout; those with a single
// position number go through frmSelect.
TEST_F(SampleProject, ProxyRecordsIntoTheirPanels) {
  ImportModelEventsAndAges();
  const auto importProxy = [&](int p, const std::string& file, bool label, bool trinity,
                               int columns, int rows) {
    platform.QueueFile(Sample(file));
    frmMain->Command6_Click(p);
    ASSERT_TRUE(platform.messages.empty()) << platform.messages[0].text;
    EXPECT_EQ(ProxyHasLabel(p), label) << file;
    EXPECT_EQ(ProxyHasTrinity(p), trinity) << file;
    EXPECT_EQ(ProxyColumnCount(p), columns) << file;
    EXPECT_EQ(ProxyRowCount(p), rows) << file;
  };
  importProxy(0, "xrf_scan_for_OL.csv", false, false, 4, 1401);
  EXPECT_EQ(ProxyFileName(0), "xrf_scan");
  ASSERT_TRUE(frmSelect->Visible);
  frmSelect->Command1_Click();  // composite depth

  importProxy(1, "pollen_percentages.csv", true, false, 5, 64);
  ASSERT_TRUE(frmSelect->Option1(1).Enabled);
  frmSelect->Option1(1).Value = true;  // ages before 1950
  frmSelect->Command1_Click();
  EXPECT_TRUE(frmMain->Enabled);

  importProxy(2, "core_logging_bore_hole_A.csv", false, true, 2, 1630);
  importProxy(3, "grain_size_samples.csv", true, true, 4, 147);
  EXPECT_TRUE(frmMain->Enabled);
  for (int p = 0; p <= 3; ++p) EXPECT_TRUE(ProxyLoaded(p)) << p;
}

TEST_F(SampleProject, DuoModelTiedToTheMaster) {
  ImportModelAndEvents();
  frmMain->LaunchDuo();
  platform.QueueFile(Sample("duo_correlation_model_20250610.csv"));
  platform.QueueAnswer(MsgAnswer::Yes);
  platform.QueueFile(Sample("duo_event_layers_20250612.csv"));
  frm2Main->Command1_Click();
  ASSERT_EQ(platform.messages.size(), 1u);  // the question for the Duo's event list
  EXPECT_EQ(LastRow2, 57);
  EXPECT_EQ(ModelVersion2, "10 Jun. 2025");
  EXPECT_EQ(frm2Main->Label1(0).Caption.Get(), "Ostra A-D");
  EXPECT_EQ(duoSet.SectionCount(1), 10);
  EXPECT_EQ(duoSet.SectionCount(2), 9);
  EXPECT_FLOAT_EQ(EventTop2(1, 2), 591);
  EXPECT_FLOAT_EQ(EventBottom2(1, 3), 1166.5f);
  EXPECT_EQ(DuoToMaster(227.5f), 229.36f);
  EXPECT_EQ(MasterToDuo(638.268235f), 624.14f);
}

}  // namespace
}  // namespace ostraline
