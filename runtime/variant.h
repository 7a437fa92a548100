#pragma once
// The variant of the program's language: empty, a whole number, a float, a
// double or text. Empty reads as 0 and as "".
#include <cstdint>
#include <string>
#include <variant>

#include "runtime/checked_int.h"

namespace ostraline {

class Variant {
 public:
  Variant() = default;
  Variant(int value) : value_(static_cast<std::int32_t>(value)) {}
  Variant(Integer value) : value_(static_cast<std::int32_t>(value.Get())) {}
  Variant(Long value) : value_(static_cast<std::int32_t>(value.Get())) {}
  Variant(float value) : value_(value) {}
  Variant(double value) : value_(value) {}
  Variant(std::string value) : value_(std::move(value)) {}
  Variant(const char* value) : value_(std::string(value)) {}

  bool IsEmpty() const { return std::holds_alternative<std::monostate>(value_); }
  bool IsText() const { return std::holds_alternative<std::string>(value_); }
  bool IsWhole() const { return std::holds_alternative<std::int32_t>(value_); }
  bool IsSingle() const { return std::holds_alternative<float>(value_); }
  bool IsDouble() const { return std::holds_alternative<double>(value_); }
  bool IsNumber() const { return IsWhole() || IsSingle() || IsDouble(); }

  // As a number: text must read as one (else a type mismatch), empty is 0.
  double ToDouble() const;
  // As a Single, the way the language narrows: CSng.
  float ToSingle() const;
  // As text: numbers by Str at their own precision, empty as "".
  std::string ToText() const;

  friend bool operator==(const Variant& a, const Variant& b) = default;

 private:
  std::variant<std::monostate, std::int32_t, float, double, std::string> value_;
};

}  // namespace ostraline
