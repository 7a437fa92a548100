#pragma once
// The tables of a batch conversion: a million rows of six variants. A cell
// here takes nine bytes, not a variant's sixteen: its kind, then a number or
// a text of up to eight characters; a longer text lies in the table's store
// of texts. A cell reads back as the very variant that was written to it.
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/table.h"
#include "runtime/variant.h"

namespace ostraline {

class VariantTable {
 public:
  // Dimension anew: all cells empty, all texts dropped.
  void Dim(std::initializer_list<Bounds> bounds) {
    cells_.Dim(bounds);
    texts_.clear();
  }
  // Keeps what is there; only the upper bound of the rows may change.
  void ReDimPreserve(long lastHi) { cells_.ReDimPreserve(lastHi); }
  bool Allocated() const { return cells_.Allocated(); }
  long LBound(int dim = 1) const { return cells_.LBound(dim); }
  long UBound(int dim = 1) const { return cells_.UBound(dim); }

  // Outside the bounds, as in any table, a subscript failure.
  Variant operator()(long column, long row) const {
    const Cell& cell = cells_(column, row);
    const auto kind = static_cast<Variant::Kind>(cell.bytes[0] & 0x0f);
    if (kind == Variant::Kind::LongText) return StoredText(cell);
    Variant value;
    std::memcpy(value.bytes_, cell.bytes + 1, kPayload);
    value.shortSize_ = cell.bytes[0] >> 4;
    value.kind_ = kind;
    return value;
  }
  void Set(long column, long row, const Variant& value);
  // A text read from a file, without making a variant of it first.
  void SetText(long column, long row, std::string_view text);

 private:
  static constexpr std::size_t kPayload = 8;
  struct Cell {
    // The variant's kind in the low bits, a short text's length in the high
    // ones; then the first bytes of the variant's own. A long text is one
    // the table stores, and the payload says where.
    unsigned char bytes[1 + kPayload];
  };
  static constexpr std::size_t kChunk = 1 << 20;

  // Where a long text begins in the store: the chunk, then the place in it.
  std::uint64_t Store(std::string_view text);
  Variant StoredText(const Cell& cell) const;

  Table<Cell, 2> cells_;
  // Texts go into chunks of a megabyte, so that a store grown by a million
  // texts is never copied whole to grow.
  std::vector<std::string> texts_;
};

}  // namespace ostraline
