#pragma once
// Whole numbers whose overflow is a failure, not a wrap: Integer (16 bits) and
// Long (32 bits). They convert freely to int for reading; every store checks.
#include <concepts>
#include <cstdint>
#include <limits>

#include "runtime/failure.h"

namespace ostraline {

template <class Rep>
class CheckedInt {
 public:
  constexpr CheckedInt() = default;
  template <std::integral T>
  constexpr CheckedInt(T value) : value_(Check(static_cast<long long>(value))) {}
  // An Integer stored in a Long and back: the store checks.
  template <class Other>
  constexpr CheckedInt(CheckedInt<Other> value)
      : value_(Check(static_cast<long long>(value.Get()))) {}

  constexpr operator Rep() const { return value_; }
  constexpr Rep Get() const { return value_; }

  CheckedInt& operator++() { return *this = static_cast<long long>(value_) + 1; }
  CheckedInt& operator--() { return *this = static_cast<long long>(value_) - 1; }
  CheckedInt operator++(int) {
    CheckedInt old = *this;
    ++*this;
    return old;
  }
  CheckedInt operator--(int) {
    CheckedInt old = *this;
    --*this;
    return old;
  }
  template <std::integral T>
  CheckedInt& operator+=(T d) {
    return *this = static_cast<long long>(value_) + d;
  }
  template <std::integral T>
  CheckedInt& operator-=(T d) {
    return *this = static_cast<long long>(value_) - d;
  }
  CheckedInt& operator+=(CheckedInt d) { return *this = static_cast<long long>(value_) + d.value_; }
  CheckedInt& operator-=(CheckedInt d) { return *this = static_cast<long long>(value_) - d.value_; }

 private:
  static constexpr Rep Check(long long v) {
    if (v < std::numeric_limits<Rep>::min() || v > std::numeric_limits<Rep>::max())
      Fail(FailureKind::Overflow);
    return static_cast<Rep>(v);
  }
  Rep value_ = 0;
};

using Integer = CheckedInt<std::int16_t>;
using Long = CheckedInt<std::int32_t>;
using Single = float;
using Double = double;
// A 16-bit flag holding 0 (false) or -1 (true).
using BooleanFlag = bool;

// Conversion of a floating value to a whole number: round half to even, and
// fail when it does not fit.
Integer CInt(double value);
Long CLng(double value);

}  // namespace ostraline
