#include "runtime/general_format.h"

#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string_view>

#include "runtime/exact_decimal.h"
#include "runtime/number_text.h"

namespace ostraline {
namespace {

using Wide = unsigned __int128;

// Powers of ten that a 128-bit whole number holds.
constexpr auto kTens = [] {
  struct Powers {
    Wide values[39];
  } powers{};
  powers.values[0] = 1;
  for (int i = 1; i < 39; ++i) powers.values[i] = powers.values[i - 1] * 10;
  return powers;
}();

// A number's significant digits rounded to a count, without trailing
// zeros, and the decimal exponent of the first.
struct Digits {
  char text[40];
  int count = 0;
  int exponent = 0;
  bool negative = false;
};

// The rounding of whole * 2^-shift * 10^scaled to a whole number, half to
// even on the exact binary value; false where the product of a whole of so
// many bits would not fit in 128.
template <int kBits>
bool RoundedScaled(std::uint64_t whole, int shift, int scaled, Wide& rounded, Wide& truncated) {
  constexpr int kLargestScale = static_cast<int>((128 - kBits) * 0.30102999566398120);
  if (scaled < 0 || scaled > kLargestScale || shift < 0 || shift > 127) return false;
  // Powers up to 10^19 fit in 64 bits: one multiplication of two halves.
  const Wide product = scaled <= 19 ? Wide(whole) * static_cast<std::uint64_t>(kTens.values[scaled])
                                    : Wide(whole) * kTens.values[scaled];
  truncated = product >> shift;
  rounded = truncated;
  if (shift > 0) {
    const Wide rest = product - (truncated << shift);
    const Wide half = Wide(1) << (shift - 1);
    if (rest > half || (rest == half && (truncated & 1) != 0)) ++rounded;
  }
  return true;
}

// The binary digits of a number, sign apart: value = whole * 2^-shift.
struct Binary {
  std::uint64_t whole;
  int shift;
  bool negative;
};
Binary BinaryOf(float value) {
  const auto bits = std::bit_cast<std::uint32_t>(value);
  const int biased = static_cast<int>((bits >> 23) & 0xFF);
  return {(bits & 0x7FFFFF) | 0x800000, 150 - biased, (bits >> 31) != 0};
}
Binary BinaryOf(double value) {
  const auto bits = std::bit_cast<std::uint64_t>(value);
  const int biased = static_cast<int>((bits >> 52) & 0x7FF);
  return {(bits & 0xFFFFFFFFFFFFF) | 0x10000000000000, 1075 - biased, (bits >> 63) != 0};
}

// A normal number rounded the exact way to a whole number of so many
// digits, times ten to the exponent less the digits but one; false where its
// size lies beyond the reach of 128 bits, for the long way to take.
struct Rounded {
  std::uint64_t whole = 0;
  int exponent = 0;
  bool negative = false;
};

template <class T>
bool RoundedTo(T value, int precision, Rounded& out) {
  if (!std::isnormal(value)) return false;
  const Binary binary = BinaryOf(value);
  // The value lies in [2^(top-1), 2^top): its decimal exponent is one of
  // two, and the truncated digits tell which.
  const int top = std::numeric_limits<T>::digits - binary.shift;
  int exponent = ((top - 1) * 78913) >> 18;  // floor((top - 1) * log10(2))
  const Wide lowest = kTens.values[precision - 1];
  Wide rounded = 0;
  Wide truncated = 0;
  for (int attempt = 0;; ++attempt) {
    if (attempt == 3 ||
        !RoundedScaled<std::numeric_limits<T>::digits>(binary.whole, binary.shift,
                                                       precision - 1 - exponent, rounded, truncated))
      return false;
    if (truncated >= lowest * 10) {
      ++exponent;
    } else if (truncated < lowest) {
      --exponent;
    } else {
      break;
    }
  }
  if (rounded == lowest * 10) {
    rounded = lowest;
    ++exponent;
  }
  out = {static_cast<std::uint64_t>(rounded), exponent, binary.negative};
  return true;
}

template <class T>
bool RoundedDigits(T value, int precision, Digits& digits) {
  Rounded rounded;
  if (!RoundedTo(value, precision, rounded)) return false;
  digits.negative = rounded.negative;
  digits.exponent = rounded.exponent;
  digits.count = precision;
  for (int i = precision - 1; i >= 0; --i) {
    digits.text[i] = static_cast<char>('0' + rounded.whole % 10);
    rounded.whole /= 10;
  }
  while (digits.count > 1 && digits.text[digits.count - 1] == '0') --digits.count;
  return true;
}

// The Double nearest to the rounded digits.
template <class T>
bool NearestToRounded(T value, int precision, double& out) {
  Rounded rounded;
  if (!RoundedTo(value, precision, rounded) ||
      !ExactDecimal(rounded.whole, rounded.exponent - (precision - 1), out)) {
    return false;
  }
  if (rounded.negative) out = -out;
  return true;
}

// %G's layout: plain digits for exponents from -4 up to below the digits,
// the exponent form otherwise, trailing zeros dropped either way. Appended
// where it goes, as the writer of a file wants it.
void AppendLayout(std::string& out, const Digits& digits, int precision) {
  char buf[48];
  char* p = buf;
  if (digits.negative) *p++ = '-';
  const int x = digits.exponent;
  const char* all = digits.text;
  const int count = digits.count;
  if (x >= -4 && x < precision) {
    if (x < 0) {
      *p++ = '0';
      *p++ = '.';
      for (int i = -1; i > x; --i) *p++ = '0';
      for (int i = 0; i < count; ++i) *p++ = all[i];
    } else {
      for (int i = 0; i <= x; ++i) *p++ = i < count ? all[i] : '0';
      if (count > x + 1) {
        *p++ = '.';
        for (int i = x + 1; i < count; ++i) *p++ = all[i];
      }
    }
  } else {
    *p++ = all[0];
    if (count > 1) {
      *p++ = '.';
      for (int i = 1; i < count; ++i) *p++ = all[i];
    }
    *p++ = 'E';
    *p++ = x < 0 ? '-' : '+';
    const int magnitude = std::abs(x);
    if (magnitude >= 100) *p++ = static_cast<char>('0' + magnitude / 100);
    *p++ = static_cast<char>('0' + magnitude / 10 % 10);
    *p++ = static_cast<char>('0' + magnitude % 10);
  }
  out.append(buf, static_cast<std::size_t>(p - buf));
}

template <class T>
void Append(std::string& out, T value, int precision) {
  Digits digits;
  if (RoundedDigits(value, precision, digits)) {
    AppendLayout(out, digits, precision);
  } else {
    out += RoundedGeneral(value, precision);
  }
}

template <class T>
double ReadBack(T value, int precision) {
  double nearest = 0;
  if (value == 0) return 0;
  if (NearestToRounded(value, precision, nearest)) return nearest;
  return Val(RoundedGeneral(value, precision));
}

}  // namespace

std::string RoundedGeneral(double value, int digits) {
  if (value == 0) return "0";  // also drops the sign of a negative zero
  char buf[64];
  const char* end =
      std::to_chars(buf, buf + sizeof buf, value, std::chars_format::general, digits).ptr;
  return UCase(std::string_view(buf, static_cast<std::size_t>(end - buf)));
}

void AppendGeneral(std::string& out, float value) {
  Append(out, value, 7);
}
void AppendGeneral(std::string& out, double value) {
  Append(out, value, 15);
}

std::string GeneralText(float value) {
  std::string text;
  AppendGeneral(text, value);
  return text;
}
std::string GeneralText(double value) {
  std::string text;
  AppendGeneral(text, value);
  return text;
}

double PrintedValue(float value) {
  return ReadBack(value, 7);
}
double PrintedValue(double value) {
  return ReadBack(value, 15);
}

}  // namespace ostraline
