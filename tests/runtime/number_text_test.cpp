#include "runtime/number_text.h"

#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <random>
#include <string>
#include <utility>

#include "runtime/checked_int.h"
#include "support/failures.h"

namespace ostraline {
namespace {

TEST(NumberTextTest, valReadsLeadingNumericTextAndNeverFails) {
  const std::pair<const char*, double> cases[] = {
      {"12.5abc", 12.5}, {"  -4.5e2x", -450}, {"+7", 7}, {".25", 0.25}, {"2D3", 2000},
      // Blanks, tabs and line feeds inside the digits are ignored.
      {"1 615 198th Street", 1615198}, {"1\t2\n3", 123}, {"- 5", -5},
      // It stops at the first other character.
      {"1.2.3", 1.2}, {"3,5", 3}, {"1e", 1}, {"1e+x", 1},
      // No numeric text at all.
      {"", 0}, {"abc", 0}, {".", 0}, {"-", 0}, {"x12", 0},
      // Hexadecimal and octal prefixes.
      {"&H1F", 31}, {"&hff", 255}, {"&O17", 15}, {"&H", 0}, {"&", 0},
      // Beyond the range of a double: no failure.
      {"1e999999", INFINITY}, {"1e-999999", 0}};
  for (const auto& [text, value] : cases) EXPECT_EQ(Val(text), value) << text;
  EXPECT_EQ(Val("-" + std::string(400, '9')), -INFINITY);
  // The place of the first digit counts towards the range, not only the exponent.
  EXPECT_EQ(Val("0." + std::string(800, '0') + "1E400"), 0.0);
  EXPECT_EQ(Val("1" + std::string(800, '0') + "E-400"), INFINITY);
  EXPECT_EQ(Val("0." + std::string(400, '0') + "1"), 0.0);
  EXPECT_EQ(Val("0." + std::string(399, '0') + "1E500"), 1e100);
}

// Short decimals take a shorter way than long ones: both read as the
// standard reader reads them, to the last bit.
TEST(NumberTextTest, valReadsEveryDecimalAsTheStandardReaderDoes) {
  std::mt19937 draw(20261123);
  for (int i = 0; i < 200000; ++i) {
    std::string text = draw() % 4 == 0 ? "-" : "";
    const int digits = 1 + static_cast<int>(draw() % 24);
    const int point = static_cast<int>(draw() % (digits + 2));
    for (int d = 0; d < digits; ++d) {
      if (d == point) text += '.';
      text += static_cast<char>('0' + (draw() % 3 == 0 ? 0 : draw() % 10));
    }
    if (draw() % 3 == 0) text += "E" + std::to_string(static_cast<int>(draw() % 70) - 35);
    double expected = 0;
    std::from_chars(text.data(), text.data() + text.size(), expected);
    ASSERT_EQ(std::bit_cast<std::uint64_t>(Val(text)), std::bit_cast<std::uint64_t>(expected))
        << text;
    ASSERT_EQ(std::bit_cast<std::uint64_t>(CDbl(text)), std::bit_cast<std::uint64_t>(expected))
        << text;
    double plain = 0;
    ASSERT_TRUE(IsPlainNumber(text, plain)) << text;
    ASSERT_EQ(std::bit_cast<std::uint64_t>(plain), std::bit_cast<std::uint64_t>(expected)) << text;
  }
}

TEST(NumberTextTest, strictConversionsFailOnTextThatIsNoNumber) {
  EXPECT_EQ(CDbl("1.5"), 1.5);
  EXPECT_EQ(CDbl("  -2.25 "), -2.25);
  EXPECT_EQ(CDbl("1E3"), 1000.0);
  EXPECT_EQ(CDbl("+7"), 7.0);
  EXPECT_EQ(CSng("1.1"), 1.1f);
  EXPECT_EQ(CSng(" 0.5"), 0.5f);
  // Texts that the two readers read alike only after a closer look.
  double plain = 0;
  for (const char* text : {"", "  -2.25 ", "1 2", "&H10", "1e400", "1.5x", "."}) {
    EXPECT_FALSE(IsPlainNumber(text, plain)) << '"' << text << '"';
  }
  for (const char* text : {"", "  ", "abc", "1.5x", "1 2", ".", "-", "1e"}) {
    EXPECT_EQ(FailureOf([&] { CDbl(text); }), FailureKind::TypeMismatch) << '"' << text << '"';
    EXPECT_EQ(FailureOf([&] { CSng(text); }), FailureKind::TypeMismatch) << '"' << text << '"';
  }
  EXPECT_EQ(FailureOf([] { CDbl("1e400"); }), FailureKind::Overflow);
  EXPECT_EQ(FailureOf([] { CSng("1e39"); }), FailureKind::Overflow);
  EXPECT_EQ(FailureOf([] { CSng(-1e39); }), FailureKind::Overflow);
  EXPECT_EQ(CSng(1e-50), 0.0f);
}

TEST(NumberTextTest, strGivesShortestTextAtSevenOrFifteenDigits) {
  // A Single keeps 7 significant digits, a Double 15; the exponent form where
  // the digits would not fit; negative zero reads as a plain zero.
  const std::pair<float, const char*> singles[] = {
      {0.5f, "0.5"}, {-0.25f, "-0.25"}, {2.5f, "2.5"}, {0.1f, "0.1"}, {1.0f / 3, "0.3333333"},
      {1234567.0f, "1234567"}, {12345678.0f, "1.234568E+07"}, {-1e-5f, "-1E-05"}, {-0.0f, "0"}};
  for (const auto& [value, text] : singles) EXPECT_EQ(Str(value), text) << value;
  const std::pair<double, const char*> doubles[] = {
      {0.5, "0.5"}, {-0.25, "-0.25"}, {100.0, "100"}, {0.1f, "0.100000001490116"},
      {1.0 / 3, "0.333333333333333"}, {0.1 + 0.2, "0.3"}, {123456789012345.0, "123456789012345"},
      {0.0001, "0.0001"}, {1e-5, "1E-05"}, {1e15, "1E+15"}, {1.5e300, "1.5E+300"}, {-0.0, "0"},
      {0.0, "0"}};
  for (const auto& [value, text] : doubles) EXPECT_EQ(Str(value), text) << value;
  EXPECT_EQ(Str(42), "42");
  EXPECT_EQ(Str(Integer(-7)), "-7");
  EXPECT_EQ(Str(Long(-2147483647 - 1)), "-2147483648");
}

TEST(NumberTextTest, roundIsHalfToEvenOnTheExactBinaryValue) {
  const struct {
    double value;
    int digits;
    double rounded;
  } cases[] = {
      {2.5, 0, 2}, {3.5, 0, 4}, {0.5, 0, 0}, {1.5, 0, 2}, {-2.5, 0, -2}, {-3.5, 0, -4},
      {2.4999, 0, 2}, {-2.6, 0, -3},
      // 0.125 and 0.375 are exact in binary: true ties, settled by the even digit.
      {0.125, 2, 0.12}, {0.375, 2, 0.38},
      // 2.675 is stored a little below the half, 2.665 a little above it.
      {2.675, 2, 2.67}, {2.665, 2, 2.67}, {1.005, 2, 1.0}, {123.4567, 3, 123.457},
      {-0.0049, 2, 0.0},
      // Large values have nothing left to round.
      {1e20, 2, 1e20}, {4503599627370497.0, 0, 4503599627370497.0},
      {1.2345678901234e300, 3, 1.2345678901234e300}};
  for (const auto& c : cases) EXPECT_EQ(Round(c.value, c.digits), c.rounded) << c.value;
  EXPECT_EQ(Round(2.5), 2.0);  // no digits given: to a whole number
  EXPECT_TRUE(std::isinf(Round(INFINITY, 2)));
  EXPECT_EQ(FailureOf([] { Round(1.0, -1); }), FailureKind::InvalidProcedureCall);

  // Against the rounding that always takes the exact product's error in:
  // numbers drawn at random, halves at each place and their neighbours.
  const auto plain = [](double value, int digits) {
    const double p = std::pow(10.0, digits);
    const double y = value * p;
    if (std::fabs(y) >= 4503599627370496.0) return value;
    const double f = std::floor(y);
    const double above = (y - f - 0.5) + std::fma(value, p, -y);
    const double n = above > 0 ? f + 1 : above < 0 ? f : std::fmod(f, 2.0) == 0 ? f : f + 1;
    const double r = n / p;
    return r == 0 ? 0.0 : r;
  };
  std::mt19937_64 draw(20261123);
  for (int i = 0; i < 200000; ++i) {
    const int digits = static_cast<int>(draw() % 6);
    const double half =
        (static_cast<double>(draw() % 2000000) - 1000000 + 0.5) / std::pow(10.0, digits);
    for (double value :
         {std::ldexp(static_cast<double>(draw() >> 11), static_cast<int>(draw() % 80) - 70), half,
          std::nextafter(half, 0.0), std::nextafter(half, 1e9)}) {
      ASSERT_EQ(std::bit_cast<std::uint64_t>(Round(value, digits)),
                std::bit_cast<std::uint64_t>(plain(value, digits)))
          << value << " " << digits;
    }
  }
}

TEST(NumberTextTest, wholeNumbersOverflowInsteadOfWrapping) {
  Integer i = 32767;
  EXPECT_EQ(FailureOf([&] { i += 1; }), FailureKind::Overflow);
  EXPECT_EQ(i, 32767);
  EXPECT_EQ(FailureOf([&] { ++i; }), FailureKind::Overflow);
  EXPECT_EQ(FailureOf([&] { (void)Integer(i + 1); }), FailureKind::Overflow);
  Integer low = -32768;
  EXPECT_EQ(FailureOf([&] { low--; }), FailureKind::Overflow);
  EXPECT_EQ(FailureOf([] { (void)Integer(40000); }), FailureKind::Overflow);
  Integer counter = 0;
  for (int n = 0; n < 5; ++n) ++counter;
  counter -= Integer(2);
  EXPECT_EQ(counter, 3);

  Long l = 2147483647;
  EXPECT_EQ(FailureOf([&] { l += 1; }), FailureKind::Overflow);
  EXPECT_EQ(FailureOf([] { (void)Long(-2147483649LL); }), FailureKind::Overflow);
  EXPECT_EQ(Long(70000) + 1, 70001);

  // Conversions from a float round half to even, then check the range.
  EXPECT_EQ(CInt(2.5), 2);
  EXPECT_EQ(CInt(3.5), 4);
  EXPECT_EQ(CInt(-32768.4), -32768);
  EXPECT_EQ(FailureOf([] { CInt(32767.5); }), FailureKind::Overflow);
  EXPECT_EQ(FailureOf([] { CInt(NAN); }), FailureKind::Overflow);
  EXPECT_EQ(CLng(100000.5), 100000);
  EXPECT_EQ(FailureOf([] { CLng(2147483648.0); }), FailureKind::Overflow);
}

TEST(NumberTextTest, textProceduresCountFromOne) {
  const std::pair<std::string, const char*> texts[] = {
      {Trim("  a b  "), "a b"}, {Trim("\ta\t"), "\ta\t"},  // only blanks are trimmed
      {Left("abcdef", 2), "ab"}, {Left("ab", 5), "ab"}, {Right("abcdef", 2), "ef"},
      {Right("ab", 5), "ab"}, {Mid("abcdef", 3), "cdef"}, {Mid("abcdef", 3, 2), "cd"},
      {Mid("abcdef", 5, 10), "ef"}, {Mid("abc", 7, 2), ""}};
  for (const auto& [text, expected] : texts) EXPECT_EQ(text, expected);
  EXPECT_EQ(InStr("a-b-c", "-"), 2);
  EXPECT_EQ(InStr("a-b-c", "-", 3), 4);
  EXPECT_EQ(InStr("a-b-c", "x"), 0);
  EXPECT_EQ(InStr("abc", "", 2), 2);
  EXPECT_EQ(FailureOf([] { Mid("abc", 0); }), FailureKind::InvalidProcedureCall);
  EXPECT_EQ(FailureOf([] { Left("abc", -1); }), FailureKind::InvalidProcedureCall);
  EXPECT_EQ(FailureOf([] { Divide(1, 0); }), FailureKind::DivisionByZero);
}

}  // namespace
}  // namespace ostraline
