#pragma once
// The data file of a batch conversion as it was read, and the scales chosen
// on frmConversion: module-level tables of the events and ages subsystem.
#include <cstdint>
#include <string>

#include "runtime/checked_int.h"
#include "runtime/variant.h"
#include "runtime/variant_table.h"

namespace ostraline {

// A whole number kept as a fixed-point currency value: 64 bits, no overflow
// at the row counts of any file.
using Currency = std::int64_t;

// The codes of the scales: the index of frmConversion's options and boxes,
// summed in ToMask.
constexpr int kScaleTrinity = 1;
constexpr int kScaleComposite = 2;
constexpr int kScaleEfd = 4;
constexpr int kScaleAge = 8;

struct BatchState {
  // Input given as a position: columns 0..5, rows 0..ConversionRows. Columns
  // 0 to 3 are label, bore hole, section and PSP as read; 4 the composite
  // depth, 5 the EFD. Row 0 is the header.
  VariantTable ConversionTable;
  // Input given as one value per sample: columns 0..3, rows 0..ValueRows.
  // Column 1 the label, 2 the value, 3 the first pass's result; 0 holds nothing.
  VariantTable ValueTable;
  Currency ConversionRows = 0;
  Currency ValueRows = 0;
  // What the file was found to hold, the scale chosen under " From ", and the
  // sum of the codes ticked under " To ".
  Integer InputKind = 0;
  Integer FromKind = 0;
  Integer ToMask = 0;
};

// The second field of a data file's second record makes it a file of values
// only when it is a number that prints back as itself: "12.50" makes a file
// of positions.
bool IsValueFileCell(const std::string& cell);

inline BatchState batchState;

inline auto& ConversionTable = batchState.ConversionTable;
inline auto& ValueTable = batchState.ValueTable;
inline auto& ConversionRows = batchState.ConversionRows;
inline auto& ValueRows = batchState.ValueRows;
inline auto& InputKind = batchState.InputKind;
inline auto& FromKind = batchState.FromKind;
inline auto& ToMask = batchState.ToMask;

}  // namespace ostraline
