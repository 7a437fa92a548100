// The short way to a number's text, and to what it reads back as, against
// the long way: every Single of the ranges where the neighbours lie far
// apart, and numbers of every magnitude drawn at random.
#include "runtime/general_format.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <random>
#include <string>
#include <type_traits>

#include "runtime/number_text.h"

namespace ostraline {
namespace {

// The same text, and the same number read back from it, to the last bit: a
// Single at 7 digits, a Double at 15.
template <class T>
void ExpectSameText(T value) {
  using Bits = std::conditional_t<sizeof(T) == 4, std::uint32_t, std::uint64_t>;
  const std::string text = RoundedGeneral(value, sizeof(T) == 4 ? 7 : 15);
  ASSERT_EQ(GeneralText(value), text) << std::bit_cast<Bits>(value);
  ASSERT_EQ(std::bit_cast<std::uint64_t>(PrintedValue(value)),
            std::bit_cast<std::uint64_t>(Val(text)))
      << text;
}

// Every Single from one to the other, both included.
void EverySingleBetween(float from, float to) {
  for (float f = from; f <= to; f = std::nextafter(f, to + 1)) {
    ExpectSameText(f);
    ExpectSameText(-f);
    if (f == to) break;
  }
}

TEST(GeneralFormatTest, shortDigitsGiveTheRoundedTextOfEverySingle) {
  // Where a Single's neighbours lie farther apart than the seventh digit
  // counts: just below a thousandth, a millionth, and the like.
  EverySingleBetween(0.0009765625f, 0.001f);
  EverySingleBetween(9.5367431640625e-07f, 1e-06f);
  EverySingleBetween(8388600.0f, 10000000.0f);
  // Around every power of ten, and the numbers a depth file holds.
  for (int e = -38; e <= 38; ++e) {
    const float p = static_cast<float>(std::pow(10.0, e));
    float f = p;
    for (int i = 0; i < 200; ++i) f = std::nextafter(f, 0.0f);
    for (int i = 0; i < 400; ++i, f = std::nextafter(f, INFINITY)) ExpectSameText(f);
  }
  for (int tenths = -100000; tenths <= 1000000; ++tenths) {
    ExpectSameText(static_cast<float>(tenths) / 10);
    ExpectSameText(static_cast<float>(tenths / 10.0));
  }
  std::mt19937 draw(20261123);
  for (int i = 0; i < 300000; ++i) {
    ExpectSameText(std::bit_cast<float>(static_cast<std::uint32_t>(draw())));
    ExpectSameText(
        std::ldexp(static_cast<float>(draw() % 16777216), static_cast<int>(draw() % 80) - 100));
  }
  // Halves at the eighth digit round to the even seventh.
  for (float f : {1234567.5f, 1234566.5f, 9999999.5f, 0.0f, -0.0f,
                  std::numeric_limits<float>::denorm_min(), std::numeric_limits<float>::min(),
                  std::numeric_limits<float>::max(), INFINITY, -INFINITY, NAN}) {
    ExpectSameText(f);
  }
}

TEST(GeneralFormatTest, shortDigitsGiveTheRoundedTextOfEveryDouble) {
  std::mt19937_64 draw(20261123);
  for (int i = 0; i < 300000; ++i) {
    ExpectSameText(std::bit_cast<double>(draw()));
    ExpectSameText(
        std::ldexp(static_cast<double>(draw() >> 11), static_cast<int>(draw() % 120) - 140));
  }
  // Sums and quotients with sixteen or seventeen shortest digits.
  for (int i = 1; i <= 100000; ++i) {
    ExpectSameText(i / 10.0 + 0.2);
    ExpectSameText(1.0 / i);
    ExpectSameText(static_cast<double>(static_cast<float>(i) / 7));
  }
  // Decimals of a few places, as rounded depths and ages are, their
  // neighbours, and the same at the edge of fifteen digits.
  for (int i = -300000; i <= 300000; i += 13) {
    for (double scale : {1.0, 10.0, 100.0, 1e3, 1e4, 1e5}) {
      for (double d : {i / scale, i * 1e9 + i / scale, Round(i * 1.37e-3 + i / scale, 2)}) {
        ExpectSameText(d);
        ExpectSameText(std::nextafter(d, INFINITY));
        ExpectSameText(std::nextafter(d, -INFINITY));
      }
    }
  }
  for (double d : {0.0, -0.0, std::numeric_limits<double>::denorm_min(),
                   std::numeric_limits<double>::min(), std::numeric_limits<double>::max(), 1e15,
                   999999999999999.9, 999999999999999.0, 99999999999999.99, 123456789012345.5,
                   123456789012344.5, 1e-5, 0.0001, 123456789012345.0, 1234567890123456.0}) {
    ExpectSameText(d);
    ExpectSameText(-d);
  }
}

// The Single of a Double's text, where it is given without the text: the
// same as the long way, also a few units of the last place from a halfway
// point between two Singles; and given for nearly every depth.
TEST(GeneralFormatTest, printedSingleIsTheSingleOfTheText) {
  long given = 0;
  const auto expectSame = [&given](double d) {
    if (const std::optional<float> single = PrintedSingle(d)) {
      ++given;
      ASSERT_EQ(std::bit_cast<std::uint32_t>(*single),
                std::bit_cast<std::uint32_t>(CSng(PrintedValue(d))))
          << std::bit_cast<std::uint64_t>(d);
    }
  };
  std::mt19937_64 draw(20261124);
  for (int i = 0; i < 200000; ++i) {
    const double depth = static_cast<double>(draw() % 100000000) / 9973.0;
    expectSame(depth);
    expectSame(-depth);
    expectSame(std::ldexp(static_cast<double>(draw() >> 11), static_cast<int>(draw() % 200) - 150));
    // Around the halfway point above a Single, by a few units of the last
    // place and by a few in the fifteenth digit.
    const float single = std::bit_cast<float>(static_cast<std::uint32_t>(draw() % 0x7f000000));
    const double half = (static_cast<double>(single) + std::nextafter(single, INFINITY)) / 2;
    const double away = static_cast<double>(static_cast<int>(draw() % 201) - 100);
    expectSame(half + away * half * 0x1p-52);
    expectSame(half + away * half * 1e-16);
    expectSame(half + away * half * 1e-15);
  }
  // Below a power of two the step down is half the step up.
  for (int e = -90; e <= 90; ++e) {
    const float power = std::ldexp(1.0f, e);
    const double half = (static_cast<double>(power) + std::nextafter(power, 0.0f)) / 2;
    for (int away = -100; away <= 100; ++away) {
      expectSame(half + away * half * 0x1p-52);
      expectSame(half + away * half * 1e-15);
    }
  }
  EXPECT_GT(given, 600000);
  for (double d :
       {0.0, -0.0, 9999.0, 1e30, 1e31, 1e-31, 3.4028234663852886e38,
        std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
    expectSame(d);
  }
  EXPECT_FALSE(PrintedSingle(-0.0).has_value());
}

}  // namespace
}  // namespace ostraline
