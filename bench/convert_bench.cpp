// The batch conversion of a large data file against a model of the largest
// size a file may hold, with a few hundred event layers, a few hundred age
// control points and a long varve record, all imported through the buttons
// of the import chain. Each iteration reads the data file and writes the
// converted one with every scale ticked.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <string>
#include <string_view>

#include "bench/synthetic_project.h"
#include "core/project_state.h"
#include "display/display_state.h"
#include "events/batch_state.h"
#include "events/event_state.h"
#include "forms/frm_conversion.h"
#include "forms/frm_main.h"
#include "forms/scripted_platform.h"
#include "runtime/number_text.h"

namespace ostraline {
namespace {

constexpr int kModelRows = 5000;
constexpr int kSectionRows = 50;
constexpr int kSections = kModelRows / kSectionRows;
constexpr int kLayers = 300;
constexpr int kAgePoints = 300;
constexpr int kVarveMarkers = 20000;
constexpr int kSamples = 100000;

std::string Pad3(int n) {
  return Right(std::string("00").append(Str(n)), 3);
}

// Appending part by part keeps GCC 12 from a false -Wrestrict on long + chains.
void Append(std::string& text, std::initializer_list<std::string_view> parts) {
  for (std::string_view part : parts) text.append(part);
}

// Three thin layers in each section of bore hole A.
std::string EventFile() {
  std::string text = "Hole,Section,Top,Bottom,Description\r\n";
  for (int i = 0; i < kLayers; ++i) {
    const int top = 10 + (i % 3) * 30;
    text +=
        "A," + Pad3(i / 3 + 1) + "," + Str(top) + "," + Str(top + 2) + ",Tephra " + Str(i) + "\r\n";
  }
  return text;
}

// Control points every 30 cm by composite depth alone, ten years to the cm,
// in two units.
std::string AgeFile() {
  std::string text =
      "Label,Hole,Section,PSP,Composite depth (05 Mar. 2011),Plus error 95.4,Age,Minus error "
      "68.2,Class,Unit,Remark\r\n";
  for (int j = 1; j <= kAgePoints; ++j) {
    Append(text, {"P", Str(j), ",---,---,---,", Str(j * 30), ",20,", Str(j * 300), ",25,C1,",
                  j % 7 == 0 ? "varve yr" : "cal BP", ",-\r\n"});
  }
  return text;
}

// A marker every 0.2 cm from 2000 to 6000 cm, one to three varves apart.
std::string VarveFile() {
  std::string text = "Composite depth,Varves\r\n";
  int count = 0;
  for (int i = 0; i < kVarveMarkers; ++i) {
    count += 1 + i % 3;
    text += Str(2000 + i * 0.2) + "," + Str(count) + "\r\n";
  }
  return text;
}

// Samples all over the four holes, now and then a PSP beyond its section
// and a row without a position.
std::string PositionFile() {
  std::string text = "Sample,Hole,Section,PSP\r\n";
  std::uint32_t draw = 12345;
  auto next = [&draw](std::uint32_t range) {
    draw = draw * 1664525u + 1013904223u;
    return (draw >> 8) % range;
  };
  for (int i = 1; i <= kSamples; ++i) {
    const std::string hole(1, static_cast<char>('A' + next(4)));
    const std::string psp = i % 500 == 0  ? "9999"
                            : i % 97 == 0 ? "120"
                                          : Str(static_cast<double>(next(980)) / 10);
    Append(text, {"S", Str(i), ",", hole, ",", Str(static_cast<int>(next(kSections)) + 1), ",", psp,
                  "\r\n"});
  }
  return text;
}

class BatchConversion : public benchmark::Fixture {
 public:
  void SetUp(const benchmark::State&) override {
    ImportSyntheticModel(platform_, kModelRows, kSectionRows);
    FrmMain& main = *frmMain;
    platform_.QueueFile(WriteBenchFile("events_20110401.csv", EventFile()));
    main.Command3_Click();
    platform_.QueueFile(WriteBenchFile("ages_20120101.csv", AgeFile()));
    main.Command4_Click();
    platform_.QueueFile(WriteBenchFile("varves_20130201.csv", VarveFile()));
    main.Command5_Click();
    input_ = WriteBenchFile("samples.csv", PositionFile());
    output_ = WriteBenchFile("converted.csv", "");
  }
  void TearDown(const benchmark::State&) override { EndBenchProgram(); }

 protected:
  // True when every import took and no message came.
  bool Ready() const { return VarveCountsLoaded && platform_.messages.empty(); }
  void ReadAndConvert() {
    platform_.QueueFile(input_);
    frmMain->Command2_Click();
    platform_.QueueFile(output_);
    frmConversion->Command1_Click();
  }

  ScriptedPlatform platform_;
  std::string input_;
  std::string output_;
};

BENCHMARK_DEFINE_F(BatchConversion, PositionsToEveryScale)(benchmark::State& state) {
  if (!Ready()) {
    state.SkipWithError("the project did not import");
    return;
  }
  for (auto _ : state) ReadAndConvert();
  if (!platform_.messages.empty()) state.SkipWithError(platform_.messages.back().text.c_str());
  state.counters["rows/s"] =
      benchmark::Counter(static_cast<double>(kSamples) * static_cast<double>(state.iterations()),
                         benchmark::Counter::kIsRate);
  state.counters["bytes written"] = static_cast<double>(std::filesystem::file_size(output_));
}
// Rows a second by the clock: the file is read and written by more than one
// thread.
BENCHMARK_REGISTER_F(BatchConversion, PositionsToEveryScale)->UseRealTime();

}  // namespace
}  // namespace ostraline
