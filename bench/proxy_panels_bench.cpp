// Every scroll of the core view redraws every loaded proxy panel: five
// records of the largest size a file may hold, each with the window of 208
// laid over its curve, the view deep in the record.
#include <benchmark/benchmark.h>

#include <cmath>

#include "bench/synthetic_project.h"
#include "display/core_columns.h"
#include "display/display_state.h"
#include "forms/frm_main.h"
#include "forms/scripted_platform.h"
#include "proxies/proxy_records.h"

namespace ostraline {
namespace {

constexpr long kRecordRows = 65535;

// A sample every 0.15 cm down to 9830 cm, two columns of wavy values with a
// gap now and then.
void LoadRecord(FrmMain& form, int p) {
  ProxyRowCount(p) = kRecordRows;
  ProxyColumnCount(p) = 2;
  ProxyLabel(p).DimUpper(kRecordRows);
  ProxyDepth(p).Dim({{0, 3}, {0, kRecordRows}});
  ProxyHeader(p).DimUpper(2);
  ProxyHeader(p)(1) = "Ti";
  ProxyHeader(p)(2) = "Ca";
  ProxyValue(p).Dim({{0, kRecordRows}, {0, 2}});
  for (long r = 1; r <= kRecordRows; ++r) {
    ProxyDepth(p)(1, r) = static_cast<Single>(r) * 0.15f;
    ProxyValue(p)(r, 1) = r % 997 == 0 ? 9999.0f : 100 + 50 * std::sin(0.01f * r + p);
    ProxyValue(p)(r, 2) = 200 + 20 * std::cos(0.003f * r);
  }
  ProxyLoaded(p) = true;
  form.Combo3(p).Text = "Ti";
  form.Combo4(p).Text = "1";
  form.mnuFlat208_(p).Checked = true;
}

// The argument 0 computes every row through the checked tables, as the plain
// walk does; 1 skips what the canvas would drop and reads the record once.
void RedrawFivePanels(benchmark::State& state) {
  ScriptedPlatform platform;
  ImportSyntheticModel(platform, 5000, 50);
  FrmMain& form = *frmMain;
  for (int p = 0; p <= 4; ++p) LoadRecord(form, p);
  ViewSpan = 500;
  for (int i = 0; i <= 4; ++i) {
    form.BoreHole(i).ScaleTop = 8000 - 250;
    form.BoreHole(i).ScaleHeight = 500;
  }
  DrawOnlyWhatShows = state.range(0) != 0;
  for (auto _ : state) {
    DrawLamina();
    benchmark::ClobberMemory();
  }
  state.counters["panel ops"] =
      static_cast<double>(form.Picture1(0).BaseOps().size() + form.Picture1(0).WorkingOps().size());
  EndBenchProgram();
}
BENCHMARK(RedrawFivePanels)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace ostraline
