// The conversion table of a data file of a million positions, grown one row
// at a time as the batch reader grows it, and read back cell by cell. The
// bytes counter is what the table's cells take.
#include <benchmark/benchmark.h>

#include <string>

#include "runtime/variant_table.h"

namespace ostraline {
namespace {

constexpr long kRows = 1000000;

void FillConversionTable(VariantTable& table) {
  table.Dim({{0, 5}, {0, 1}});
  for (long row = 2; row <= kRows; ++row) {
    table.ReDimPreserve(row);
    table.SetText(0, row, "LC20-" + std::to_string(row));
    table.SetText(1, row, "Bore hole A");
    table.SetText(2, row, "05");
    table.SetText(3, row, "134.3");
  }
}

void GrowConversionTable(benchmark::State& state) {
  for (auto _ : state) {
    VariantTable table;
    FillConversionTable(table);
    benchmark::DoNotOptimize(table(0, kRows));
  }
  state.counters["cell bytes"] = static_cast<double>(9 * 6 * (kRows + 1));
}
BENCHMARK(GrowConversionTable)->Unit(benchmark::kMillisecond);

// Every cell read as the writer of the converted file reads it.
void ReadConversionTable(benchmark::State& state) {
  VariantTable table;
  FillConversionTable(table);
  for (auto _ : state) {
    std::size_t length = 0;
    for (long row = 1; row <= kRows; ++row) {
      for (long column = 0; column <= 3; ++column) length += table(column, row).ToText().size();
    }
    benchmark::DoNotOptimize(length);
  }
}
BENCHMARK(ReadConversionTable)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace ostraline
