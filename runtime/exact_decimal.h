#pragma once
// A decimal made of a whole number and a power of ten that a Double holds
// exactly: its Double in a single rounding, as the full reader of number
// texts gives it.
#include <cstdint>

namespace ostraline {

// 10^0 to 10^22, each exact in a Double.
inline constexpr double kExactPowersOfTen[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                               1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                               1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

// whole * 10^scale for a whole of at most 53 bits and a scale within 22;
// false for any other.
inline bool ExactDecimal(std::uint64_t whole, int scale, double& value) {
  if (whole > (std::uint64_t{1} << 53) || scale < -22 || scale > 22) return false;
  const auto mantissa = static_cast<double>(whole);
  value = scale < 0 ? mantissa / kExactPowersOfTen[-scale] : mantissa * kExactPowersOfTen[scale];
  return true;
}

}  // namespace ostraline
