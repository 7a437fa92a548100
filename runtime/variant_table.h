#pragma once
// The tables of a batch conversion: a million rows of six variants. A cell
// here takes nine bytes, not a variant's sixteen: its kind, then a number or
// a text of up to eight characters; a longer text lies in the table's store
// of texts. A cell reads back as the very variant that was written to it.
#include <cstdint>
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
  Variant operator()(long column, long row) const;
  void Set(long column, long row, const Variant& value);
  // A text read from a file, without making a variant of it first.
  void SetText(long column, long row, std::string_view text);

 private:
  struct Cell {
    // The kind in the low bits, an inline text's length in the high ones;
    // then the payload.
    unsigned char bytes[9];
  };
  enum Kind : unsigned char { kEmpty, kWhole, kSingle, kDouble, kInlineText, kStoredText };
  static constexpr std::size_t kInline = 8;
  static constexpr std::size_t kChunk = 1 << 20;

  // Where a long text begins in the store: the chunk, then the place in it.
  std::uint64_t Store(std::string_view text);
  std::string_view Stored(std::uint64_t where) const;

  Table<Cell, 2> cells_;
  // Texts go into chunks of a megabyte, so that a store grown by a million
  // texts is never copied whole to grow.
  std::vector<std::string> texts_;
};

}  // namespace ostraline
