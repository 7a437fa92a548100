// The repaint of the core view on a model of the largest size a file may
// hold, with a few hundred event layers and an age model, centred deep in
// the core, as every change of the target horizon repaints it.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "bench/synthetic_project.h"
#include "core/project_state.h"
#include "display/core_columns.h"
#include "display/display_state.h"
#include "display/scale_strip.h"
#include "events/event_free_depth.h"
#include "events/event_state.h"
#include "forms/frm_main.h"
#include "forms/scripted_platform.h"
#include "runtime/number_text.h"

namespace ostraline {
namespace {

constexpr int kRows = 5000;
constexpr int kSectionRows = 50;
constexpr int kLayers = 300;
constexpr int kAgePoints = 120;

// Thin layers every 30 cm, merged as the import leaves them: ordinary
// layers, tephras and voids in turn, on all four bore holes.
void LoadEventLayers() {
  EventListLoaded = true;
  EventCount = kLayers;
  MergedEventCount = kLayers;
  EventList.Dim({{0, 9}, {0, kLayers}});
  EventTop.Dim({{0, 3}, {0, kLayers}});
  EventBottom.Dim({{0, 3}, {0, kLayers}});
  const char* descriptions[] = {"Sand", "Tephra T", "Void"};
  for (int i = 1; i <= kLayers; ++i) {
    const Single top = static_cast<Single>(i * 30 + 3);
    const Single bottom = top + 2;
    EventTop(1, i) = top;
    EventBottom(1, i) = bottom;
    EventList(1, i) = std::string(1, static_cast<char>('A' + i % 4));
    EventList(5, i) = std::string(descriptions[i % 3]) + Str(i);
    EventList(6, i) = Str(top);
    EventList(7, i) = Str(bottom);
  }
  for (int i = 1; i <= kLayers; ++i) EventList(8, i) = CDToEFD(Val(EventList(6, i))).ToText();
}

// Control points every 80 cm, ten years to the centimetre, with a stretch of
// varve-counted rows and a few reference rows.
void LoadAgeModel() {
  AgeModelLoaded = true;
  AgeModelCount = kAgePoints;
  AgeModel.Dim({{0, 11}, {0, kAgePoints}});
  for (int j = 1; j <= kAgePoints; ++j) {
    const double depth = j * 80.0;
    AgeModel(0, j) = j % 20 < 4 ? "V" : "C" + Str(j % 5 + 1);
    AgeModel(1, j) = "Lab-" + Str(j);
    AgeModel(2, j) = j % 3 == 0 ? "---" : std::string(1, static_cast<char>('A' + j % 4));
    AgeModel(5, j) = Str(depth);
    AgeModel(6, j) = "20";
    AgeModel(7, j) = Str(depth * 10);
    AgeModel(8, j) = "20";
    AgeModel(9, j) = "yr";
    AgeModel(11, j) = CDToEFD(static_cast<Single>(depth)).ToText();
  }
  AgeReferenceCount = 10;
  AgeReferenceRows.Dim({{0, 11}, {0, 10}});
  for (int j = 1; j <= 10; ++j) {
    AgeReferenceRows(0, j) = "R";
    AgeReferenceRows(1, j) = "Ref-" + Str(j);
    AgeReferenceRows(2, j) = "A";
    AgeReferenceRows(5, j) = Str(j * 900);
  }
}

class CoreView : public benchmark::Fixture {
 public:
  void SetUp(const benchmark::State&) override {
    ImportSyntheticModel(platform_, kRows, kSectionRows);
    LoadEventLayers();
    LoadAgeModel();
    frmMain->mnuShowTiePoints.Checked = true;
    frmMain->mnuShowLabCodes.Checked = true;
    for (int i = 0; i <= 4; ++i) frmMain->BoreHole(i).ScaleTop = 8000;
  }
  void TearDown(const benchmark::State&) override { EndBenchProgram(); }

 private:
  ScriptedPlatform platform_;
};

BENCHMARK_F(CoreView, DrawLaminaDepthStrip)(benchmark::State& state) {
  for (auto _ : state) DrawLamina();
  state.counters["base ops"] = static_cast<double>(frmMain->BoreHole(1).BaseOps().size());
}

BENCHMARK_F(CoreView, DrawLaminaAgeStrip)(benchmark::State& state) {
  frmMain->mnuDepth.Checked = false;
  frmMain->mnuAge.Checked = true;
  for (auto _ : state) DrawLamina();
}

// The pointer moving over bore hole B: the overlay on the columns and the
// tool tips of the rows under it, now and then at the target's level, where
// the search of its section runs too.
BENCHMARK_F(CoreView, PointerMove)(benchmark::State& state) {
  DrawLamina();
  FrmMain& form = *frmMain;
  const float top = form.BoreHole(2).ScaleTop;
  int step = 0;
  for (auto _ : state) {
    const float y = top + static_cast<float>(step % 500);
    form.BoreHole_MouseMove(2, 0, 0, 3.0f, y);
    ++step;
  }
}

// Twenty thousand years to the cm: a tick of the strip every hundred years is
// a hundred thousand lookups in the model. The argument 0 runs every tick of
// the loop; 1 computes what can show.
BENCHMARK_DEFINE_F(CoreView, DrawSteepAgeStrip)(benchmark::State& state) {
  for (int j = 1; j <= kAgePoints; ++j) AgeModel(7, j) = Str(j * 80.0 * 20000);
  frmMain->mnuDepth.Checked = false;
  frmMain->mnuAge.Checked = true;
  DrawOnlyWhatShows = state.range(0) != 0;
  for (auto _ : state) DrawBH5();
  state.counters["strip ops"] = static_cast<double>(frmMain->BoreHole(5).WorkingOps().size());
}
BENCHMARK_REGISTER_F(CoreView, DrawSteepAgeStrip)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace ostraline
