#include "runtime/variant.h"

#include "runtime/number_text.h"

namespace ostraline {

double Variant::ToDouble() const {
  if (IsEmpty()) return 0.0;
  if (IsWhole()) return std::get<std::int32_t>(value_);
  if (IsSingle()) return std::get<float>(value_);
  if (IsDouble()) return std::get<double>(value_);
  return CDbl(std::get<std::string>(value_));
}

float Variant::ToSingle() const {
  if (IsSingle()) return std::get<float>(value_);
  if (IsText()) return CSng(std::get<std::string>(value_));
  return CSng(ToDouble());
}

std::string Variant::ToText() const {
  if (IsEmpty()) return {};
  if (IsWhole()) return Str(static_cast<long long>(std::get<std::int32_t>(value_)));
  if (IsSingle()) return Str(std::get<float>(value_));
  if (IsDouble()) return Str(std::get<double>(value_));
  return std::get<std::string>(value_);
}

}  // namespace ostraline
