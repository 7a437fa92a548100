// The import of a correlation model of the largest size a file may hold, and
// the search of the four bore holes at one target, as every typed depth runs it.
#include <benchmark/benchmark.h>

#include <string>

#include "bench/synthetic_project.h"
#include "core/depth_conversions.h"
#include "core/project_state.h"
#include "display/display_state.h"
#include "events/event_state.h"
#include "forms/frm_main.h"
#include "forms/scripted_platform.h"
#include "runtime/number_text.h"

namespace ostraline {
namespace {

// 5000 rows in sections of 48: about 100 sections in each bore hole, each
// short enough for the divider's list of 50 rows, so that GetPSP runs to its end.
constexpr int kRows = 5000;
constexpr int kSectionRows = 48;

void ImportModel(benchmark::State& state) {
  for (auto _ : state) {
    ScriptedPlatform platform;
    ImportSyntheticModel(platform, kRows, kSectionRows);
    if (LastRow != kRows || !platform.messages.empty()) {
      state.SkipWithError(platform.messages.empty() ? "the import failed"
                                                    : platform.messages[0].text.c_str());
    }
    EndBenchProgram();
  }
}
BENCHMARK(ImportModel)->Unit(benchmark::kMillisecond);

void GetPspOfFourHoles(benchmark::State& state) {
  ScriptedPlatform platform;
  ImportSyntheticModel(platform, kRows, kSectionRows);
  const Single target = 8123.4f;  // deep in the core
  for (int hole = 1; hole <= 4; ++hole) {
    frmMain->BoreHole(hole).ScaleTop = target - static_cast<Single>(ViewSpan) / 2;
  }
  TargetPSP = -1;
  TieRowBelow = 0;
  for (auto _ : state) {
    for (int hole = 1; hole <= 4; ++hole) GetPSP(hole, target);
    benchmark::ClobberMemory();
    Single found = TargetPSP;
    benchmark::DoNotOptimize(found);
  }
  // A lookup that stopped early leaves the bracketing tie unset.
  if (TargetPSP < 0 || TieRowBelow == 0) state.SkipWithError("the target was not found");
  EndBenchProgram();
}
BENCHMARK(GetPspOfFourHoles)->Unit(benchmark::kMicrosecond);

// The longest event list a count of 16 bits allows: layers in every section
// of bore hole A, tops in no order, now and then two alike. The argument 0
// sorts them by the scan, 1 by the tree.
void ImportLongEventList(benchmark::State& state) {
  constexpr int kLayers = 32767;
  const int sections = kRows / kSectionRows;
  std::string list = "Hole,Section,Top,Bottom,Description\r\n";
  for (int i = 0; i < kLayers; ++i) {
    const int section = static_cast<int>((i * 7919LL) % sections) + 1;
    const int top = static_cast<int>((i * 104729LL) % 40);
    list += "A," +
            std::string(section < 10    ? "00"
                        : section < 100 ? "0"
                                        : "") +
            std::to_string(section) + "," + std::to_string(top) + "," + std::to_string(top + 1) +
            ",Layer\r\n";
  }
  const std::string file = WriteBenchFile("events_20110401.csv", list);
  FastLookups = state.range(0) != 0;
  for (auto _ : state) {
    state.PauseTiming();
    ScriptedPlatform platform;
    ImportSyntheticModel(platform, kRows, kSectionRows);
    FastLookups = state.range(0) != 0;
    state.ResumeTiming();
    platform.QueueFile(file);
    frmMain->Command3_Click();
    if (EventCount != kLayers || !platform.messages.empty()) state.SkipWithError("not imported");
    state.PauseTiming();
    EndBenchProgram();
    state.ResumeTiming();
  }
}
BENCHMARK(ImportLongEventList)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace
}  // namespace ostraline
