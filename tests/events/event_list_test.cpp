#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "core/project_state.h"
#include "events/event_free_depth.h"
#include "events/event_state.h"
#include "forms/frm_main.h"
#include "runtime/number_text.h"
#include "support/event_files.h"
#include "support/fresh_program.h"
#include "support/model_files.h"

namespace ostraline {
namespace {

// A layer in bore hole A, section 01, where the composite depth equals the PSP.
EventRow Layer(const std::string& top, const std::string& bottom) {
  return {"A", "01", top, bottom};
}

using Pairs = std::vector<std::pair<float, float>>;

class EventListImport : public FreshProgram {
 protected:
  // A fresh program with a model whose section 01 runs from 0 to 3000 with
  // composite depth equal to PSP (the row L1 is no tie and gets its depth
  // computed); then `before`, then the list through the dialog.
  void Import(const std::vector<EventRow>& rows, const std::function<void()>& before = {}) {
    ImportText(EventListText(rows), before);
  }
  void ImportText(const std::string& text, const std::function<void()>& before = {}) {
    ImportPlainModel();
    if (before) before();
    ImportFile(WriteTempFile("events_20120417.csv", text));
  }
  void ImportPlainModel() {
    ResetProgram();
    ImportModel({DefaultHeader(), RowA("A-01-top", "0", "0", "0"), RowA("L1", "100.125", "100", ""),
                 RowA("L2", "150", "150", "150"), RowA("A-01-bottom", "3000", "3000", "3000")});
    ASSERT_TRUE(platform.messages.empty()) << OnlyMessage();
  }
  void ImportFile(const std::string& name) {
    platform.QueueFile(name);
    frmMain->Command3.Click();
  }
  Pairs Layers() const {
    Pairs layers;
    for (long i = 1; i <= MergedEventCount; ++i)
      layers.emplace_back(EventTop(1, i), EventBottom(1, i));
    return layers;
  }
};

TEST_F(EventListImport, OverlappingLayersFuseIntoTheirUnion) {
  Import({Layer("10", "20"), Layer("12", "15")});
  EXPECT_EQ(Layers(), (Pairs{{10, 20}}));
  EXPECT_EQ(EventTop(1, 2), -9999);
  EXPECT_EQ(EventOrder(2), -9999);
  EXPECT_EQ(EventCount, 2);

  Import({Layer("10", "20"), Layer("20", "25")});
  EXPECT_EQ(Layers(), (Pairs{{10, 20}, {20, 25}}));

  // Listed bottom-up, and with "Intersection" chosen: still sorted, still the union.
  Import({Layer("19", "25"), Layer("10", "20")}, [] { frmMain->Option3(0).Value = true; });
  EXPECT_EQ(Layers(), (Pairs{{10, 25}}));

  // The fused layer meets its new neighbour: a chain collapses into one.
  Import({Layer("10", "20"), Layer("18", "30"), Layer("28", "40"), Layer("50", "55")});
  EXPECT_EQ(Layers(), (Pairs{{10, 40}, {50, 55}}));
  EXPECT_EQ(EventCount, 4);
  EXPECT_EQ(EventTop(1, 3), -9999);
  EXPECT_EQ(EventBottom(1, 4), -9999);

  // Were the later of the two equal tops taken first, 10-12 would swallow the
  // empty layer 10-10 and two layers would remain.
  Import({Layer("50", "60"), Layer("10", "10"), Layer("10", "12")});
  EXPECT_EQ(Layers(), (Pairs{{10, 10}, {10, 12}, {50, 60}}));
  EXPECT_EQ(EventOrder(1), 2);
  EXPECT_EQ(EventOrder(2), 3);
}

TEST_F(EventListImport, EveryRowStaysInTheListWithItsDepths) {
  Import({Layer("12", "15"), {"A", "01", "10.123456", "20", "Void"}});
  ASSERT_EQ(EventList.UBound(2), 2);
  EXPECT_EQ(EventList(1, 0), "Bore hole");
  EXPECT_EQ(EventList(5, 0), "Description");
  EXPECT_EQ(EventList(3, 1), "12");
  // Rounded to four decimals whatever the display's precision.
  EXPECT_EQ(EventList(6, 2), "10.1235");
  EXPECT_EQ(EventList(7, 2), "20");
  // EFD of each row's own top: 12 lies inside the fused layer 10.1235-20.
  EXPECT_EQ(EventList(8, 1), "10.12");
  EXPECT_EQ(EventList(8, 2), "10.12");
  EXPECT_EQ(MergedEventCount, 1);
  EXPECT_TRUE(EventList(0, 1).empty() && EventList(9, 1).empty());

  // An unknown section sorts to the end.
  Import({{"A", "07", "10", "20"}, Layer("30", "40"), {"X", "01", "5", "6"}});
  EXPECT_EQ(EventList(6, 1), "9999");
  EXPECT_EQ(EventList(6, 3), "9999");  // an unknown bore hole too
  EXPECT_EQ(Layers(), (Pairs{{30, 40}, {9999, 9999}, {9999, 9999}}));
}

TEST_F(EventListImport, GoodImportOpensTheNextSteps) {
  Import({Layer("10", "12"), Layer("20", "25")}, [] {
    const std::string efdBefore = frmMain->Text3.Text;
    frmMain->Label1(8).Caption = "30";
    EXPECT_EQ(frmMain->Text3.Text.Get(), efdBefore);  // no list yet: nothing follows
  });
  ASSERT_TRUE(platform.messages.empty());
  EXPECT_EQ(platform.dialogs.back().filter, "DataFile(*.csv)|*.csv");
  EXPECT_EQ(EventListVersion, "17 Apr. 2012");
  FrmMain& form = *frmMain;
  EXPECT_FALSE(form.Command3.Enabled);
  for (Control* c : std::vector<Control*>{&form.Label5, &form.Option3(0), &form.Option3(1),
                                          &form.mnuOLDuo, &form.mnuAlign, &form.Label1(9),
                                          &form.Label1(10), &form.Label3, &form.Text3}) {
    EXPECT_TRUE(c->Enabled) << c->FullName();
  }
  EXPECT_TRUE(form.Command4.HasFocus());
  EXPECT_FALSE(form.ProgressBar1.Visible);
  EXPECT_EQ(platform.MousePointer(), 0);
  // The composite depth shown was 30.
  EXPECT_EQ(form.Label1(10).Caption.Get(), "23");
  EXPECT_EQ(form.Text3.Text.Get(), "23");

  // "Convert from data file" shuts the EFD controls.
  Import({Layer("10", "12"), Layer("20", "25")}, [] { frmMain->Option1(2).Value = true; });
  EXPECT_FALSE(frmMain->Text3.Enabled);
  EXPECT_FALSE(frmMain->Label1(10).Enabled);
}

TEST_F(EventListImport, FailuresResetTheCountsAndLeaveTheButton) {
  // One row has no neighbour: the merge fails on the table's bound.
  Import({Layer("10", "20")});
  EXPECT_TRUE(FailedWithFormatError());
  EXPECT_EQ(EventCount, -9999);
  EXPECT_EQ(MergedEventCount, -9999);
  EXPECT_TRUE(EventListLoaded);  // it was set before the merge
  EXPECT_TRUE(frmMain->Command3.Enabled);
  EXPECT_FALSE(frmMain->ProgressBar1.Visible);
  EXPECT_EQ(platform.MousePointer(), 0);
  EXPECT_EQ(EventList(6, 1), "10");  // what was read stays
  // The conversions now act as if no layer existed; a second import works.
  EXPECT_EQ(CDToEFD(15).ToDouble(), 15);
  platform.messages.clear();
  ImportFile(WriteTempFile("again.csv", EventListText({Layer("10", "12"), Layer("20", "25")})));
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(EventCount, 2);

  // Failures in the reading leave the list unloaded; a position too large for
  // a Single fails in the merge's depths, after the list was marked loaded.
  const std::pair<std::string, bool> failing[] = {
      {"", false},
      {EventListText({Layer("10", "12"), Layer("20", "25")}) + "\r\n", false},
      {"h1,h2,h3,h4,h5\r\nA,01,10,20\r\n", false},
      {EventListText({Layer("1e39", "12"), Layer("20", "25")}), true}};
  for (const auto& [text, loaded] : failing) {
    platform.messages.clear();
    ImportText(text);
    EXPECT_TRUE(FailedWithFormatError()) << text;
    EXPECT_EQ(EventCount, -9999);
    EXPECT_EQ(EventListLoaded, loaded) << text;
    EXPECT_TRUE(frmMain->Command3.Enabled);
  }

  // Cancelling and a file that cannot be opened show nothing.
  platform.messages.clear();
  ImportPlainModel();
  platform.QueueCancel();
  frmMain->Command3.Click();
  ImportFile("/nonexistent/events.csv");
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_FALSE(EventListLoaded);
  EXPECT_TRUE(frmMain->Command3.Enabled);
}

TEST_F(EventListImport, EventFreeDepthsOfTheModelWithoutAndWithLayers) {
  ImportText(EventListText(std::vector<EventRow>{}));
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(EventCount, 0);
  EXPECT_EQ(frmMain->Text3.Text.Get(), frmMain->Text2.Text.Get());
  // The EFD is the composite depth rounded to the depth precision, half to even.
  EXPECT_EQ(ModelCell(1, 1, 2, 2), "100.125");
  EXPECT_EQ(ModelCell(2, 1, 2, 2), "100.12");
  EXPECT_EQ(TieCell(2, 3), "150");
  frmMain->Label1(8).Caption = "7.125";
  EXPECT_EQ(frmMain->Text3.Text.Get(), "7.12");

  // Two imported layers.
  Import({Layer("20", "25"), Layer("10", "12")});
  ASSERT_TRUE(platform.messages.empty());
  EXPECT_EQ(CDToEFD(15).ToDouble(), 13);
  // The stored EFD of the model and of the layers.
  EXPECT_EQ(ModelCell(2, 1, 2, 3), "143");
  EXPECT_EQ(TieCell(2, 3), "143");
  EXPECT_EQ(ModelCell(2, 1, 2, 2), "93.12");
  EXPECT_EQ(EventTop(2, 2), 18);
  EXPECT_EQ(EventBottom(2, 2), 18);
  // Each write of the composite depth shown refreshes the EFD box in full digits.
  frmMain->Label1(8).Caption = "22";
  EXPECT_EQ(frmMain->Text3.Text.Get(), "18");
  EXPECT_EQ(frmMain->Label1(10).Caption.Get(), "18");
  frmMain->Label1(8).Caption = "30.123";
  EXPECT_EQ(frmMain->Text3.Text.Get(), "23.12");
  DepthPrecision = 4;
  frmMain->Label1(8).Caption = "1241.5678";
  EXPECT_EQ(frmMain->Text3.Text.Get(), "1234.568");  // a Single's seven digits

  // Three rows read and one merge: the last real layer counts.
  Import({Layer("10", "12"), Layer("20", "25"), Layer("21", "24")});
  EXPECT_EQ(MergedEventCount, 2);
  EXPECT_EQ(EFDToCD(23).ToDouble(), 30);
}

TEST_F(EventListImport, EfdCutsTheLayersOutAndTheWayBackLeavesTheLastOutWithoutAMerge) {
  Import({Layer("10", "12"), Layer("20", "25")});
  ASSERT_TRUE(platform.messages.empty());
  const auto toEfd = [](float cd) { return CDToEFD(cd).ToDouble(); };
  const auto toCd = [](float efd) { return EFDToCD(efd).ToDouble(); };
  // Composite depth to EFD cuts the layers out.
  const std::pair<float, double> cut[] = {{5, 5},   {10, 10}, {11, 10}, {12, 10},
                                          {15, 13}, {22, 18}, {30, 23}, {9999, 9999 - 7}};
  for (auto [cd, efd] : cut) EXPECT_EQ(toEfd(cd), efd) << cd;
  // The junction 10 maps to the top; 23 gives 25, not 30: not the inverse
  // here (with three rows read and one merge the last layer counts: see
  // EventFreeDepthsOfTheModelWithoutAndWithLayers).
  const std::pair<float, double> back[] = {{5, 5},   {10, 10},     {13, 15},      {18, 20},
                                           {23, 25}, {9999, 9999}, {-9999, -9999}};
  for (auto [efd, cd] : back) EXPECT_EQ(toCd(efd), cd) << efd;
  DepthPrecision = 1;
  EXPECT_EQ(toEfd(15.25f), 13.2);  // half to even at one digit
  DepthPrecision = 2;

  // A refused age import takes the layers out.
  EventCount = -9999;
  MergedEventCount = -9999;
  for (float x : {5.0f, 11.0f, 30.006f}) {
    EXPECT_EQ(toEfd(x), toCd(x));
    EXPECT_EQ(toEfd(x), Round(x, 2));
  }
  // A header-only list: the depth rounded, nothing more.
  EventCount = 0;
  EXPECT_EQ(toEfd(12.345f), Round(12.345f, 2));
}

}  // namespace
}  // namespace ostraline
