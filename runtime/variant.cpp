#include "runtime/variant.h"

#include "runtime/general_format.h"
#include "runtime/number_text.h"

namespace ostraline {

// A long text is one block: its length, then its characters.
void Variant::SetText(std::string_view text) {
  if (text.size() <= kShortText) {
    kind_ = Kind::ShortText;
    shortSize_ = static_cast<unsigned char>(text.size());
    if (!text.empty()) std::memcpy(bytes_, text.data(), text.size());
    return;
  }
  const std::size_t size = text.size();
  char* block = new char[sizeof size + size];
  std::memcpy(block, &size, sizeof size);
  std::memcpy(block + sizeof size, text.data(), size);
  kind_ = Kind::LongText;
  Put(block);
}

std::string_view Variant::Text() const {
  if (kind_ == Kind::ShortText) return {bytes_, shortSize_};
  const char* block = Get<const char*>();
  std::size_t size;
  std::memcpy(&size, block, sizeof size);
  return {block + sizeof size, size};
}

Variant& Variant::operator=(const Variant& other) {
  // The copy is made before the old value goes, so a failed one leaves it.
  if (this != &other) *this = Variant(other);
  return *this;
}

bool operator==(const Variant& a, const Variant& b) {
  if (a.IsText() && b.IsText()) return a.Text() == b.Text();
  if (a.kind_ != b.kind_) return false;
  switch (a.kind_) {
    case Variant::Kind::Whole:
      return a.Get<std::int32_t>() == b.Get<std::int32_t>();
    case Variant::Kind::Single:
      return a.Get<float>() == b.Get<float>();
    case Variant::Kind::Double:
      return a.Get<double>() == b.Get<double>();
    default:
      return true;
  }
}

double Variant::ToDouble() const {
  if (IsEmpty()) return 0.0;
  if (IsWhole()) return Get<std::int32_t>();
  if (IsSingle()) return Get<float>();
  if (IsDouble()) return Get<double>();
  return CDbl(Text());
}

float Variant::ToSingle() const {
  if (IsSingle()) return Get<float>();
  if (IsText()) return CSng(Text());
  return CSng(ToDouble());
}

std::string Variant::ToText() const {
  if (IsEmpty()) return {};
  if (IsWhole()) return Str(static_cast<long long>(Get<std::int32_t>()));
  if (IsSingle()) return Str(Get<float>());
  if (IsDouble()) return Str(Get<double>());
  return std::string(Text());
}

double Variant::TextValue() const {
  if (IsEmpty()) return 0.0;
  if (IsWhole()) return Get<std::int32_t>();
  if (IsSingle()) return PrintedValue(Get<float>());
  if (IsDouble()) return PrintedValue(Get<double>());
  return Val(Text());
}

}  // namespace ostraline
