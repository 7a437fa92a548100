#include "runtime/variant_table.h"

#include <algorithm>
#include <utility>

namespace ostraline {

// Nothing is derived from these tables: their cells need no revisions.
void VariantTable::Set(long column, long row, const Variant& value) {
  // A variant's kind fits the low bits of a cell's first byte.
  static_assert(static_cast<unsigned>(Variant::Kind::LongText) < 16);
  const bool shortText = value.kind_ == Variant::Kind::ShortText;
  if (value.kind_ == Variant::Kind::LongText || (shortText && value.shortSize_ > kPayload)) {
    SetText(column, row, value.Text());
    return;
  }
  Cell cell;
  const unsigned char size = shortText ? value.shortSize_ : 0;
  cell.bytes[0] = static_cast<unsigned char>(static_cast<unsigned char>(value.kind_) | size << 4);
  std::memcpy(cell.bytes + 1, value.bytes_, kPayload);
  cells_.SetUntracked(cell, column, row);
}

void VariantTable::SetText(long column, long row, std::string_view text) {
  Cell cell{};
  if (text.size() <= kPayload) {
    cell.bytes[0] = static_cast<unsigned char>(
        static_cast<unsigned char>(Variant::Kind::ShortText) | text.size() << 4);
    if (!text.empty()) std::memcpy(cell.bytes + 1, text.data(), text.size());
    cells_.SetUntracked(cell, column, row);
    return;
  }
  // The subscripts are checked before the text is stored.
  static_cast<void>(std::as_const(cells_)(column, row));
  const std::uint64_t where = Store(text);
  cell.bytes[0] = static_cast<unsigned char>(Variant::Kind::LongText);
  std::memcpy(cell.bytes + 1, &where, sizeof where);
  cells_.SetUntracked(cell, column, row);
}

// A stored text is its length, then its characters.
std::uint64_t VariantTable::Store(std::string_view text) {
  const std::uint64_t size = text.size();
  if (texts_.empty() || texts_.back().size() + sizeof size + size > kChunk) {
    texts_.emplace_back().reserve(std::max<std::size_t>(kChunk, sizeof size + size));
  }
  std::string& chunk = texts_.back();
  const std::uint64_t where = (static_cast<std::uint64_t>(texts_.size() - 1) << 32) | chunk.size();
  chunk.append(reinterpret_cast<const char*>(&size), sizeof size);
  chunk.append(text);
  return where;
}

Variant VariantTable::StoredText(const Cell& cell) const {
  std::uint64_t where;
  std::memcpy(&where, cell.bytes + 1, sizeof where);
  const std::string& chunk = texts_[where >> 32];
  const std::size_t at = where & 0xffffffffu;
  std::uint64_t size;
  std::memcpy(&size, chunk.data() + at, sizeof size);
  return Variant(std::string_view(chunk.data() + at + sizeof size, static_cast<std::size_t>(size)));
}

}  // namespace ostraline
