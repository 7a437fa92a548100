#include "runtime/general_format.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string_view>
#include <type_traits>
#include <utility>

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

// A value that a decimal of few places gives back exactly, as Round leaves
// depths and ages, is that decimal when no other of so many digits lies
// nearer: for a Double always, its steps being finer than fifteen digits';
// a Single's may be coarser than seven digits', so for it whole numbers only.
struct ShortDecimal {
  std::uint64_t whole;  // without trailing zeros where there are places
  int places;
  bool negative;
};
template <class T>
bool ShortDecimalOf(T value, int precision, ShortDecimal& out) {
  const double size = std::abs(static_cast<double>(value));
  const double largest = kExactPowersOfTen[precision];
  // Four places where the whole number of them still has so many digits.
  constexpr int kPlaces = std::is_same_v<T, double> ? 4 : 0;
  int places = size * kExactPowersOfTen[kPlaces] < largest ? kPlaces : 0;
  const double scaled = size * kExactPowersOfTen[places];
  if (!(scaled < largest)) return false;
  auto whole = static_cast<std::uint64_t>(scaled + 0.5);
  if (whole == 0 || whole >= static_cast<std::uint64_t>(kTens.values[precision]) ||
      static_cast<double>(whole) / kExactPowersOfTen[places] != size) {
    return false;
  }
  for (; places > 0 && whole % 10 == 0; --places) whole /= 10;
  out = {whole, places, std::signbit(value)};
  return true;
}

// Its text, which %G writes without an exponent: the digits with the point
// set in.
char* WriteShortDecimal(char* p, const ShortDecimal& decimal) {
  if (decimal.negative) *p++ = '-';
  char* end = std::to_chars(p, p + 24, decimal.whole).ptr;
  const int places = decimal.places;
  if (places == 0) return end;
  const int before = static_cast<int>(end - p) - places;
  if (before > 0) {
    // The places move one on for the point.
    for (int i = 0; i < places; ++i, --end) *end = end[-1];
    *end = '.';
    return p + before + places + 1;
  }
  // "0." and the zeros the digits lack go in front of them.
  const int shift = 2 - before;
  for (int i = places + before - 1; i >= 0; --i) p[i + shift] = p[i];
  p[0] = '0';
  p[1] = '.';
  for (int i = 2; i < shift; ++i) p[i] = '0';
  return p + shift + places + before;
}

// The rounding from the number's binary digits, for any normal number.
template <class T>
bool RoundedBinary(T value, int precision, Rounded& out) {
  if (!std::isnormal(value)) return false;
  const Binary binary = BinaryOf(value);
  // The value lies in [2^(top-1), 2^top): its decimal exponent is one of
  // two, and the truncated digits tell which.
  const int top = std::numeric_limits<T>::digits - binary.shift;
  int exponent = ((top - 1) * 78913) >> 18;  // floor((top - 1) * log10(2))
  // The larger of the two where the value reaches the next power; the
  // comparison need not be exact, the whole numbers below tell for sure.
  const int next = exponent + 1;
  const double size = std::abs(static_cast<double>(value));
  if (next >= 0 && next <= 22 ? size >= kExactPowersOfTen[next]
      : next < 0 && next >= -22 ? size * kExactPowersOfTen[-next] >= 1
                                : false) {
    exponent = next;
  }
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

// The digits of the binary rounding: the writer has tried the short decimal.
template <class T>
bool RoundedDigits(T value, int precision, Digits& digits) {
  Rounded rounded;
  if (!RoundedBinary(value, precision, rounded)) return false;
  digits.negative = rounded.negative;
  digits.exponent = rounded.exponent;
  // The trailing zeros go first, in steps of eight, four, two and one.
  std::uint64_t whole = rounded.whole;
  int count = precision;
  if (count > 8 && whole % 100000000 == 0) {
    whole /= 100000000;
    count -= 8;
  }
  if (count > 4 && whole % 10000 == 0) {
    whole /= 10000;
    count -= 4;
  }
  if (count > 2 && whole % 100 == 0) {
    whole /= 100;
    count -= 2;
  }
  if (count > 1 && whole % 10 == 0) whole /= 10;
  const char* end = std::to_chars(digits.text, digits.text + sizeof digits.text, whole).ptr;
  digits.count = static_cast<int>(end - digits.text);
  return true;
}

// The Double nearest to the digits of the binary rounding: the reading back
// has tried the short decimal.
template <class T>
bool NearestToRounded(T value, int precision, double& out) {
  Rounded rounded;
  if (!RoundedBinary(value, precision, rounded) ||
      !ExactDecimal(rounded.whole, rounded.exponent - (precision - 1), out)) {
    return false;
  }
  if (rounded.negative) out = -out;
  return true;
}

// %G's layout: plain digits for exponents from -4 up to below the digits,
// the exponent form otherwise, trailing zeros dropped either way. Written
// where it goes, as the writer of a file wants it; its end.
char* WriteLayout(char* p, const Digits& digits, int precision) {
  if (digits.negative) *p++ = '-';
  const int x = digits.exponent;
  const char* all = digits.text;
  const int count = digits.count;
  const auto put = [&p](const char* from, int n) {
    std::memcpy(p, from, static_cast<std::size_t>(n));
    p += n;
  };
  if (x >= -4 && x < precision) {
    if (x < 0) {
      put("0.0000", 1 - x);
      put(all, count);
    } else if (count > x + 1) {
      put(all, x + 1);
      *p++ = '.';
      put(all + x + 1, count - x - 1);
    } else {
      put(all, count);
      std::memset(p, '0', static_cast<std::size_t>(x + 1 - count));
      p += x + 1 - count;
    }
  } else {
    *p++ = all[0];
    if (count > 1) {
      *p++ = '.';
      put(all + 1, count - 1);
    }
    *p++ = 'E';
    *p++ = x < 0 ? '-' : '+';
    const int magnitude = std::abs(x);
    if (magnitude >= 100) *p++ = static_cast<char>('0' + magnitude / 100);
    *p++ = static_cast<char>('0' + magnitude / 10 % 10);
    *p++ = static_cast<char>('0' + magnitude % 10);
  }
  return p;
}

template <class T>
char* Write(char* at, T value, int precision) {
  if (ShortDecimal decimal; ShortDecimalOf(value, precision, decimal)) {
    return WriteShortDecimal(at, decimal);
  }
  Digits digits;
  if (RoundedDigits(value, precision, digits)) return WriteLayout(at, digits, precision);
  const std::string text = RoundedGeneral(value, precision);
  std::memcpy(at, text.data(), text.size());
  return at + text.size();
}

template <class T>
double ReadBack(T value, int precision) {
  double nearest = 0;
  if (value == 0) return 0;
  // A short decimal is its own text, and the text reads back as the number.
  if (ShortDecimal decimal; ShortDecimalOf(value, precision, decimal)) return value;
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

char* WriteGeneral(char* at, float value) {
  return Write(at, value, 7);
}
char* WriteGeneral(char* at, double value) {
  return Write(at, value, 15);
}

std::string GeneralText(float value) {
  char text[kGeneralLength];
  return std::string(text, WriteGeneral(text, value));
}
std::string GeneralText(double value) {
  char text[kGeneralLength];
  return std::string(text, WriteGeneral(text, value));
}

double PrintedValue(float value) {
  return ReadBack(value, 7);
}
double PrintedValue(double value) {
  return ReadBack(value, 15);
}

std::optional<float> PrintedSingle(double value) {
  // Normal Singles only, whose neighbours lie a whole step apart; zero
  // reads back without its sign.
  const double size = std::abs(value);
  if (!(size >= 1e-30 && size <= 1e30)) return std::nullopt;
  const auto single = static_cast<float>(value);
  const double below = std::nextafter(single, -INFINITY);
  const double above = std::nextafter(single, INFINITY);
  const double halfStep = std::min(above - single, single - below) / 2;
  // Fifteen digits move the number by half a unit of the fifteenth at most,
  // under 5.2e-15 of it with the reading back: 2^-47 is more.
  const double moved = size * 0x1p-47;
  if (std::abs(value - single) + moved >= halfStep) return std::nullopt;
  return single;
}

}  // namespace ostraline
