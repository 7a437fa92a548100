#include "runtime/variant_table.h"

#include <algorithm>
#include <cstring>

namespace ostraline {

Variant VariantTable::operator()(long column, long row) const {
  const Cell& cell = cells_(column, row);
  const unsigned char* payload = cell.bytes + 1;
  switch (cell.bytes[0] & 0x0f) {
    case kWhole: {
      std::int32_t value;
      std::memcpy(&value, payload, sizeof value);
      return Variant(static_cast<int>(value));
    }
    case kSingle: {
      float value;
      std::memcpy(&value, payload, sizeof value);
      return Variant(value);
    }
    case kDouble: {
      double value;
      std::memcpy(&value, payload, sizeof value);
      return Variant(value);
    }
    case kInlineText:
      return Variant(std::string_view(reinterpret_cast<const char*>(payload), cell.bytes[0] >> 4));
    case kStoredText: {
      std::uint64_t where;
      std::memcpy(&where, payload, sizeof where);
      return Variant(Stored(where));
    }
    default:
      return Variant();
  }
}

void VariantTable::Set(long column, long row, const Variant& value) {
  if (value.IsText()) {
    SetText(column, row, value.Text());
    return;
  }
  Cell cell{};
  switch (value.kind_) {
    case Variant::Kind::Whole:
      cell.bytes[0] = kWhole;
      std::memcpy(cell.bytes + 1, value.bytes_, sizeof(std::int32_t));
      break;
    case Variant::Kind::Single:
      cell.bytes[0] = kSingle;
      std::memcpy(cell.bytes + 1, value.bytes_, sizeof(float));
      break;
    case Variant::Kind::Double:
      cell.bytes[0] = kDouble;
      std::memcpy(cell.bytes + 1, value.bytes_, sizeof(double));
      break;
    default:
      break;
  }
  cells_(column, row) = cell;
}

void VariantTable::SetText(long column, long row, std::string_view text) {
  // The subscripts are checked before the text is stored.
  Cell& cell = cells_(column, row);
  if (text.size() <= kInline) {
    cell.bytes[0] = static_cast<unsigned char>(kInlineText | text.size() << 4);
    if (!text.empty()) std::memcpy(cell.bytes + 1, text.data(), text.size());
    return;
  }
  const std::uint64_t where = Store(text);
  cell.bytes[0] = kStoredText;
  std::memcpy(cell.bytes + 1, &where, sizeof where);
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

std::string_view VariantTable::Stored(std::uint64_t where) const {
  const std::string& chunk = texts_[where >> 32];
  const std::size_t at = where & 0xffffffffu;
  std::uint64_t size;
  std::memcpy(&size, chunk.data() + at, sizeof size);
  return {chunk.data() + at + sizeof size, static_cast<std::size_t>(size)};
}

}  // namespace ostraline
