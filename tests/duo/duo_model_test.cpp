// The Duo's parallel set: its model tied to the master's scale, the map
// between the two composite scales, its event list and its copy of the ages.
#include <string>
#include <vector>

#include "core/project_state.h"
#include "duo/depth_map.h"
#include "duo/duo_state.h"
#include "events/age_lookup.h"
#include "events/copy_to_duo.h"
#include "events/event_state.h"
#include "forms/frm2_conversion.h"
#include "forms/frm2_main.h"
#include "forms/frm_conversion.h"
#include "forms/frm_main.h"
#include "forms/platform.h"
#include "proxies/proxy_records.h"
#include "runtime/number_text.h"
#include "support/age_files.h"
#include "support/fresh_program.h"

namespace ostraline {
namespace {

// Ties given straight as (Duo depth, master depth); "9999" for no tie.
void SetTies(const std::vector<std::pair<std::string, double>>& ties) {
  LastRow2 = static_cast<long>(ties.size());
  TieCell2.Dim({{0, 2}, {0, LastRow2}});
  MasterDepth.Dim({{0, 2}, {0, LastRow2}});
  for (long r = 1; r <= LastRow2; ++r) {
    TieCell2(1, r) = ties[r - 1].first;
    MasterDepth(1, r) = static_cast<float>(ties[r - 1].second);
  }
}

TEST_F(FreshProgram, DuoMapStretchesBetweenTiesAndRunsOneToOneOutside) {
  SetTies({{"100", 110}, {"150", 9999}, {"200", 230}, {"9999", 300}});
  for (auto [duo, master] : {std::pair{150.0f, 170.0f}, {50.0f, 60.0f}, {250.0f, 280.0f}}) {
    EXPECT_EQ(DuoToMaster(duo), master);
    EXPECT_EQ(MasterToDuo(master), duo);
  }
  for (const Single sentinel : {9999.0f, -9999.0f}) {
    EXPECT_EQ(DuoToMaster(sentinel), 9999);
    EXPECT_EQ(MasterToDuo(sentinel), 9999);
  }
  // Rounded to the depth precision (one decimal).
  EXPECT_FLOAT_EQ(DuoToMaster(133.33f), 150);

  // The last row is never the lower end of a pair: between the last two
  // ties, when the last is the model's last row, one to one from the upper.
  SetTies({{"100", 110}, {"200", 230}});
  EXPECT_EQ(DuoToMaster(150), 160);
  EXPECT_EQ(DuoToMaster(50), 60);
  // Two ties of the same Duo depth: below them one to one from the lower row.
  SetTies({{"100", 110}, {"200", 230}, {"200", 240}, {"9999", 9999}});
  EXPECT_EQ(DuoToMaster(250), 290);
  EXPECT_EQ(DuoToMaster(150), 170);
  // Without any tie the two scales are taken as one.
  SetTies({{"100", 9999}, {"9999", 120}});
  EXPECT_EQ(DuoToMaster(150), 150);
  EXPECT_EQ(MasterToDuo(150), 150);
}

TEST_F(FreshProgram, DuoMapGoesByEventFreeDepthWhenBothListsStand) {
  SetTies({{"100", 110}, {"200", 230}, {"9999", 9999}});
  // A layer of 20 cm at 140 on the Duo's scale, and one far below: the
  // stretch is 80 cm of sediment on the Duo's side against 120 on the
  // master's, which has no layer.
  EventListLoaded = true;
  EventCount = 0;
  EventListLoaded2 = true;
  EventCount2 = 2;
  MergedEventCount2 = 2;
  EventTop2.Dim({{0, 1}, {0, 2}});
  EventBottom2.Dim({{0, 1}, {0, 2}});
  EventTop2(1, 1) = 140;
  EventBottom2(1, 1) = 160;
  EventTop2(1, 2) = 900;
  EventBottom2(1, 2) = 901;
  // Duo 180 is EFD 160, 60 of 80 into the stretch: master 110 + 90.
  EXPECT_EQ(DuoToMaster(180), 200);
  // Inside the layer every depth has the EFD of its top.
  EXPECT_EQ(DuoToMaster(150), DuoToMaster(140));
  EXPECT_EQ(MasterToDuo(200), 180);

  // Two ties inside the layer share its EFD: one to one from the upper.
  SetTies({{"145", 150}, {"155", 170}, {"200", 230}, {"9999", 9999}});
  EXPECT_EQ(DuoToMaster(150), 150);
}

// The master's sections: A-01 ties PSP 10 at 110 cm, A-02 ties PSP 20 at 230.
class DuoProgram : public FreshProgram {
 protected:
  void SetUp() override {
    FreshProgram::SetUp();
    ImportModel(TwoSectionModel());
    ImportEventList(kNoLayer);
    frmMain->LaunchDuo();
  }
  // Yes to the question for the Duo's event list takes the header-only list.
  void ImportDuoModel(bool withMasterColumns, MsgAnswer answer) {
    platform.QueueFile(WriteTempFile("duo_20120101.csv", DuoModelText(withMasterColumns)));
    platform.QueueAnswer(answer);
    if (answer == MsgAnswer::Yes) QueueDuoEvents();
    frm2Main->Command1_Click();
  }
  void QueueDuoEvents() { platform.QueueFile(WriteTempFile("duo_events_20120201.csv", kNoLayer)); }
};

TEST_F(DuoProgram, ModelTiesEachRowToTheMasterAndAsksForTheEventList) {
  ImportDuoModel(true, MsgAnswer::No);
  Frm2Main& duo = *frm2Main;
  ASSERT_EQ(platform.messages.size(), 1u);
  EXPECT_EQ(platform.messages[0].title, "Ostraline_Duo");
  EXPECT_EQ(platform.messages[0].text,
            "Ostraline_Duo requires 'List of event layers' for robust synchronisation. Do you "
            "import file now?");
  EXPECT_TRUE(DuoOpen);
  EXPECT_EQ(LastRow2, 4);
  EXPECT_EQ(duo.Label1(0).Caption.Get(), "Lake Ostra");
  EXPECT_EQ(duo.Label1(2).Caption.Get(), "F (Core 9)");
  EXPECT_EQ(MasterTrinity(1, 2), Variant("A"));
  EXPECT_EQ(MasterDepth(0, 2), Variant("T"));
  EXPECT_EQ(MasterDepth(1, 2).ToDouble(), 110);
  EXPECT_EQ(MasterDepth(1, 3).ToDouble(), 230);
  EXPECT_EQ(MasterDepth(1, 1).ToDouble(), 9999);
  EXPECT_EQ(DuoToMaster(150), 170);

  // Declined: the reminder throbs from pale to full red until the list comes.
  EXPECT_TRUE(duo.Shape1.Visible);
  EXPECT_TRUE(duo.Timer1.Enabled);
  EXPECT_EQ(duo.Timer1.Interval, 30);
  long reddest = 0;
  long palest = 255;
  for (int tick = 0; tick < 99; ++tick) {
    duo.Timer1.Tick();
    const long green = (duo.Shape1.FillColor >> 8) & 0xFF;
    reddest = std::max(reddest, 205 - green);
    palest = std::min(palest, 205 - green);
  }
  EXPECT_EQ(reddest, 205);
  EXPECT_EQ(palest, 0);

  QueueDuoEvents();
  duo.Command3_Click();
  EXPECT_TRUE(EventListLoaded2);
  EXPECT_FALSE(duo.Shape1.Visible);
  EXPECT_FALSE(duo.Timer1.Enabled);
  EXPECT_TRUE(duo.Command4.Enabled);
  // Scale 2 of the Duo's model is the master's composite depth.
  EXPECT_EQ(Val(ModelCell2(2, 1, 2, 2)), 110);
  EXPECT_EQ(Val(ModelCell2(2, 1, 2, 4)), DuoToMaster(CSng(Val(ModelCell2(1, 1, 2, 4)))));
}

TEST_F(DuoProgram, ModelWithoutTheMasterColumnsIsRefused) {
  ImportDuoModel(false, MsgAnswer::No);
  EXPECT_EQ(OnlyMessage(),
            "Error: This is a correlation model for Ostraline ver.6 or earlier. Obtain latest "
            "correlation model for ver.7");
  EXPECT_FALSE(DuoOpen);
}

// The master's ages may name the Duo's holes; they reach the Duo, mapped to
// its scale, once both event lists stand.
TEST_F(DuoProgram, MasterAgesAreCopiedOnlyOnceBothEventListsStand) {
  ImportDuoModel(true, MsgAnswer::No);
  platform.messages.clear();
  platform.QueueFile(WriteTempFile(
      "ages_20120101.csv",
      AgeModelText({{"M1", "A", "01", "10", "0", "20", "1000", "20", "C1", "yr", "-"},
                    {"M2", "E", "01", "110", "0", "20", "2000", "20", "C1", "yr", "-"}})));
  frmMain->Command4_Click();
  EXPECT_TRUE(platform.messages.empty()) << OnlyMessage();
  ASSERT_TRUE(AgeModelLoaded);
  EXPECT_EQ(AgeModel(5, 1), "110");
  EXPECT_EQ(AgeModel(5, 2), "230");  // Duo 200 on the master's scale
  EXPECT_FALSE(AgeModelLoaded2);

  QueueDuoEvents();
  frm2Main->Command3_Click();
  EXPECT_TRUE(AgeModelLoaded2);
  EXPECT_EQ(AgeModel2(5, 1), "100");
  EXPECT_EQ(AgeModel2(5, 2), "200");
  EXPECT_EQ(AgeModel2(11, 2), "200");
  EXPECT_EQ(AgeModel2(7, 2), "2000");
  EXPECT_EQ(GetAgeFromCD(duoSet, 150).ToDouble(), 1500);
}

// The Duo's own ages: no version check, no confidence levels, its holes also
// by the letters a to d; any failure is the plain format error.
TEST_F(DuoProgram, OwnAgeModelKnowsItsHolesByLetter) {
  ImportDuoModel(true, MsgAnswer::Yes);
  ASSERT_TRUE(EventListLoaded2);
  const std::string levels = ErrorLevelPlus;
  platform.messages.clear();
  platform.QueueFile(WriteTempFile(
      "duo_ages_20120301.csv",
      AgeModelText({{"P2", "---", "---", "---", "120", "10", "600", "20", "C1", "yr", "-"},
                    {"P1", "a", "01", "60", "0", "10", "1000", "20", "C1", "yr", "-"},
                    {"P3", "E", "01", "110", "0", "10", "2000", "20", "C1", "yr", "-"}},
                   {"Composite depth (01 Jan. 1999)", "Plus error 68.2", "Minus error 68.2"})));
  frm2Main->Command4_Click();
  EXPECT_TRUE(platform.messages.empty()) << OnlyMessage();
  EXPECT_TRUE(AgeModelLoaded2);
  EXPECT_EQ(AgeModel2(5, 1), "120");
  EXPECT_EQ(AgeModel2(5, 2), "150");
  EXPECT_EQ(AgeModel2(11, 3), "200");
  EXPECT_EQ(ErrorLevelPlus, levels);
  EXPECT_EQ(GetAgeFromCD(duoSet, 175).ToDouble(), 1500);
  EXPECT_FALSE(AgeModelLoaded);

  platform.QueueFile(WriteTempFile("bad_20120301.csv", "Label,Hole\r\nP1,Q,01\r\n"));
  frm2Main->Command4_Click();
  EXPECT_TRUE(FailedWithFormatError()) << OnlyMessage();
}

// Positions of both sets, converted by either form: the other set's holes
// through its tables and the map. The Duo writes the master's composite
// depth beside its own.
TEST_F(DuoProgram, BothFormsConvertPositionsOfBothSets) {
  ImportDuoModel(true, MsgAnswer::No);
  QueueDuoEvents();
  frm2Main->Command3_Click();
  const std::string positions =
      "Sample,Hole,Section,PSP\r\nS1,E,01,60\r\nS2,A,02,40\r\nS3,Q,01,10\r\n";
  const auto convert = [&](bool duo) {
    platform.QueueFile(WriteTempFile("samples.csv", positions));
    (duo ? *frm2Main : *frmMain).Command2.Click();
    const std::string output = WriteTempFile("converted.csv", "");
    platform.QueueFile(output);
    (duo ? *frm2Conversion : *frmConversion).Command1_Click();
    return FileContents(output);
  };
  // E-01 PSP 60 lies at Duo 150, master 170; A-02 PSP 40 at master 250,
  // below the last tie: Duo 220.
  EXPECT_EQ(convert(true),
            "\"Sample\",\"Hole\",\"Section\",\"PSP\","
            "\"Composite depth (correlation model: version 01 Jan. 2012)\","
            "\"Composite depth (Lake Ostra)\","
            "\"Event free depth (event list: version 01 Feb. 2012)\"\r\n"
            "\"S1\",\"E\",\"01\",\"60\",150,170,150\r\n"
            "\"S2\",\"A\",\"02\",\"40\",220,250,220\r\n"
            "\"S3\",\"Q\",\"01\",\"10\",9999,9999,9999\r\n");
  EXPECT_EQ(convert(false),
            "\"Sample\",\"Hole\",\"Section\",\"PSP\","
            "\"Composite depth (correlation model: version 05 Mar. 2011)\","
            "\"Event free depth (event list: version 01 Apr. 2011)\"\r\n"
            "\"S1\",\"E\",\"01\",\"60\",170,170\r\n"
            "\"S2\",\"A\",\"02\",\"40\",250,250\r\n"
            "\"S3\",\"Q\",\"01\",\"10\",9999,9999\r\n");
  EXPECT_EQ(platform.messages.size(), 1u);  // the question for the Duo's event list
}

// The Duo opened on the screen with its model and event list, each form's
// composite depth box counted as its change handler runs.
class DuoOnScreen : public DuoProgram {
 protected:
  void SetUp() override {
    DuoProgram::SetUp();
    ImportDuoModel(true, MsgAnswer::Yes);
    ASSERT_TRUE(DuoOpen && EventListLoaded2);
    platform.messages.clear();
    Count(*frmMain, masterChanges);
    Count(*frm2Main, duoChanges);
  }
  static void Count(MainForm& form, int& changes) {
    auto handler = form.Text2.Change;
    form.Text2.Change = [handler, &changes] {
      ++changes;
      handler();
    };
  }
  // A user's entry into a composite depth box.
  static void Type(MainForm& form, const std::string& depth) {
    int key = 13;
    static_cast<FrmMain&>(form).Text2_GotFocus();
    static_cast<FrmMain&>(form).Text2_KeyDown(key, 0);
    form.Text2.Text = depth;
  }
  int masterChanges = 0;
  int duoChanges = 0;
};

TEST_F(DuoOnScreen, AHorizonCrossesOnceAndMayLieBelowTheMastersCores) {
  Type(*frmMain, "230");
  EXPECT_EQ(masterChanges, 1);
  EXPECT_EQ(duoChanges, 1);
  EXPECT_EQ(frm2Main->Text2.Text.Get(), "200");
  EXPECT_EQ(ActionCount, 1);

  masterChanges = duoChanges = 0;
  Type(*frm2Main, "150");
  EXPECT_EQ(duoChanges, 1);
  EXPECT_EQ(masterChanges, 1);
  EXPECT_EQ(frmMain->Text2.Text.Get(), "170");
  // The Duo's columns stand on the master's depth of its horizon.
  EXPECT_FLOAT_EQ(frm2Main->BoreHole(1).ScaleTop, 170 - ViewSpan2 / 2.0f);
  EXPECT_TRUE(platform.messages.empty()) << OnlyMessage();

  // Below the master's cores but within the Duo's is no error.
  duoSet.CoreBottom(1) = 500;
  Type(*frmMain, "350");
  EXPECT_TRUE(platform.messages.empty()) << OnlyMessage();
  EXPECT_EQ(frmMain->Text2.Text.Get(), "350");

  duoSet.CoreBottom(1) = 240;
  Type(*frmMain, "250");
  Type(*frmMain, "360");
  EXPECT_EQ(OnlyMessage(), "Error: Requested horizon is below core bottom.");
  EXPECT_EQ(frmMain->Text2.Text.Get(), "250");
}

TEST_F(DuoOnScreen, AVarveImportOnTheMasterCopiesTheAgesAnew) {
  platform.QueueFile(WriteTempFile("ages_20120101.csv", AgeModelText(kThreeControlPoints)));
  frmMain->Command4_Click();
  ASSERT_TRUE(AgeModelLoaded2);
  AgeModel2(7, 1) = "-1";
  platform.QueueFile(
      WriteTempFile("varves_20130201.csv", VarveText({{"120", "10"}, {"125", "20"}})));
  frmMain->Command5_Click();
  EXPECT_TRUE(platform.messages.empty()) << OnlyMessage();
  EXPECT_EQ(AgeModel2(7, 1), AgeModel(7, 1));
}

// A record by bore hole, section and PSP stands on the master's scale, on
// which the Duo's panels are drawn; the master's panels keep theirs.
TEST_F(DuoOnScreen, ProxyRecordOfTheDuoIsPlacedOnTheMastersScale) {
  std::string record = "Hole,Section,PSP,Ti\r\nE,1,10,5\r\n";
  for (int psp = 20; psp <= 100; psp += 10) record += "E,01," + std::to_string(psp) + ",6\r\n";
  platform.QueueFile(WriteTempFile("duo_xrf.csv", record));
  frm2Main->Command6_Click(0);
  EXPECT_TRUE(platform.messages.empty()) << OnlyMessage();
  ASSERT_TRUE(duoProxies.ProxyLoaded(0));
  EXPECT_FALSE(masterProxies.ProxyLoaded(0));
  EXPECT_EQ(duoProxies.ProxyDepth(0)(1, 1), 110);  // Duo 100
  EXPECT_EQ(duoProxies.ProxyDepth(0)(1, 6), 170);  // Duo 150
  EXPECT_TRUE(frm2Main->Enabled);
  EXPECT_FALSE(frm2Main->Picture1(0).BaseOps().empty());
}

TEST_F(DuoOnScreen, ClosingTheDuoLeavesTheMasterAndReopeningStartsAnew) {
  frm2Main.Unload();
  EXPECT_FALSE(DuoOpen);
  Type(*frmMain, "230");
  EXPECT_EQ(masterChanges, 1);
  EXPECT_EQ(frmMain->Text2.Text.Get(), "230");

  frmMain->LaunchDuo();
  EXPECT_TRUE(frm2Main.IsLoaded());
  EXPECT_TRUE(frm2Main->Command1.Enabled);
  EXPECT_FALSE(frm2Main->Command3.Enabled);
  EXPECT_FALSE(AgeModelLoaded2);
  EXPECT_FALSE(DuoOpen);
}

TEST_F(FreshProgram, DuoOpensOnlyOnceTheMastersEventListStands) {
  ImportModel(TwoSectionModel());
  frmMain->LaunchDuo();
  EXPECT_FALSE(frm2Main.IsLoaded());
  ImportEventList(kNoLayer);
  frmMain->mnuOLDuo.Click();
  EXPECT_TRUE(frm2Main.IsLoaded());
  // Overlapping the master by 60 twips, or against the screen's right edge.
  const float besideMaster = frmMain->Left + frmMain->Width - 60;
  EXPECT_TRUE(frm2Main->Left == besideMaster ||
              frm2Main->Left == Screen.Width() - frm2Main->Width - 60);
  EXPECT_EQ(frm2Main->Height, frmMain->Height);
}

}  // namespace
}  // namespace ostraline
