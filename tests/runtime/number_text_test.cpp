#include "runtime/number_text.h"

#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <random>
#include <string>

#include "runtime/checked_int.h"
#include "runtime/variant.h"
#include "support/failures.h"

namespace ostraline {
namespace {

TEST(NumberTextTest, valReadsLeadingNumericTextAndNeverFails) {
  EXPECT_EQ(Val("12.5abc"), 12.5);
  EXPECT_EQ(Val("  -4.5e2x"), -450.0);
  EXPECT_EQ(Val("+7"), 7.0);
  EXPECT_EQ(Val(".25"), 0.25);
  EXPECT_EQ(Val("2D3"), 2000.0);
  // Blanks, tabs and line feeds inside the digits are ignored.
  EXPECT_EQ(Val("1 615 198th Street"), 1615198.0);
  EXPECT_EQ(Val("1\t2\n3"), 123.0);
  EXPECT_EQ(Val("- 5"), -5.0);
  // It stops at the first other character.
  EXPECT_EQ(Val("1.2.3"), 1.2);
  EXPECT_EQ(Val("3,5"), 3.0);
  EXPECT_EQ(Val("1e"), 1.0);
  EXPECT_EQ(Val("1e+x"), 1.0);
  // No numeric text at all.
  EXPECT_EQ(Val(""), 0.0);
  EXPECT_EQ(Val("abc"), 0.0);
  EXPECT_EQ(Val("."), 0.0);
  EXPECT_EQ(Val("-"), 0.0);
  EXPECT_EQ(Val("x12"), 0.0);
  // Hexadecimal and octal prefixes.
  EXPECT_EQ(Val("&H1F"), 31.0);
  EXPECT_EQ(Val("&hff"), 255.0);
  EXPECT_EQ(Val("&O17"), 15.0);
  EXPECT_EQ(Val("&H"), 0.0);
  EXPECT_EQ(Val("&"), 0.0);
  // Beyond the range of a double: no failure.
  EXPECT_NO_THROW(Val("1e999999"));
  EXPECT_TRUE(std::isinf(Val("1e999999")));
  EXPECT_TRUE(std::isinf(Val("-" + std::string(400, '9'))));
  EXPECT_EQ(Val("1e-999999"), 0.0);
  // The place of the first digit counts towards the range, not only the exponent.
  EXPECT_EQ(Val("0." + std::string(800, '0') + "1E400"), 0.0);
  EXPECT_TRUE(std::isinf(Val("1" + std::string(800, '0') + "E-400")));
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
  EXPECT_EQ(Str(0.5f), "0.5");
  EXPECT_EQ(Str(0.5), "0.5");
  EXPECT_EQ(Str(-0.25), "-0.25");
  EXPECT_EQ(Str(-0.25f), "-0.25");
  EXPECT_EQ(Str(100.0), "100");
  EXPECT_EQ(Str(2.5f), "2.5");
  // A Single keeps 7 significant digits, a Double 15.
  EXPECT_EQ(Str(0.1f), "0.1");
  EXPECT_EQ(Str(static_cast<double>(0.1f)), "0.100000001490116");
  EXPECT_EQ(Str(1.0f / 3), "0.3333333");
  EXPECT_EQ(Str(1.0 / 3), "0.333333333333333");
  EXPECT_EQ(Str(0.1 + 0.2), "0.3");
  EXPECT_EQ(Str(1234567.0f), "1234567");
  EXPECT_EQ(Str(123456789012345.0), "123456789012345");
  EXPECT_EQ(Str(0.0001), "0.0001");
  // The exponent form where the digits would not fit.
  EXPECT_EQ(Str(12345678.0f), "1.234568E+07");
  EXPECT_EQ(Str(1e-5), "1E-05");
  EXPECT_EQ(Str(-1e-5f), "-1E-05");
  EXPECT_EQ(Str(1e15), "1E+15");
  EXPECT_EQ(Str(1.5e300), "1.5E+300");
  // Negative zero reads as a plain zero.
  EXPECT_EQ(Str(-0.0), "0");
  EXPECT_EQ(Str(-0.0f), "0");
  EXPECT_EQ(Str(0.0), "0");
  // Whole numbers.
  EXPECT_EQ(Str(42), "42");
  EXPECT_EQ(Str(Integer(-7)), "-7");
  EXPECT_EQ(Str(Long(-2147483647 - 1)), "-2147483648");
}

TEST(NumberTextTest, roundIsHalfToEvenOnTheExactBinaryValue) {
  EXPECT_EQ(Round(2.5), 2.0);
  EXPECT_EQ(Round(3.5), 4.0);
  EXPECT_EQ(Round(0.5), 0.0);
  EXPECT_EQ(Round(1.5), 2.0);
  EXPECT_EQ(Round(-2.5), -2.0);
  EXPECT_EQ(Round(-3.5), -4.0);
  EXPECT_EQ(Round(2.4999), 2.0);
  EXPECT_EQ(Round(-2.6), -3.0);
  // 0.125 and 0.375 are exact in binary: true ties, settled by the even digit.
  EXPECT_EQ(Round(0.125, 2), 0.12);
  EXPECT_EQ(Round(0.375, 2), 0.38);
  // 2.675 is stored a little below the half, 2.665 a little above it.
  EXPECT_EQ(Round(2.675, 2), 2.67);
  EXPECT_EQ(Round(2.665, 2), 2.67);
  EXPECT_EQ(Round(1.005, 2), 1.0);
  EXPECT_EQ(Round(123.4567, 3), 123.457);
  EXPECT_EQ(Round(-0.0049, 2), 0.0);
  // Large values have nothing left to round.
  EXPECT_EQ(Round(1e20, 2), 1e20);
  EXPECT_EQ(Round(4503599627370497.0), 4503599627370497.0);
  EXPECT_EQ(Round(1.2345678901234e300, 3), 1.2345678901234e300);
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
    const double half = (static_cast<double>(draw() % 2000000) - 1000000 + 0.5) / std::pow(10.0, digits);
    for (double value : {std::ldexp(static_cast<double>(draw() >> 11), static_cast<int>(draw() % 80) - 70),
                         half, std::nextafter(half, 0.0), std::nextafter(half, 1e9)}) {
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
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(Trim("\ta\t"), "\ta\t");  // only blanks are trimmed
  EXPECT_EQ(Left("abcdef", 2), "ab");
  EXPECT_EQ(Left("ab", 5), "ab");
  EXPECT_EQ(Right("abcdef", 2), "ef");
  EXPECT_EQ(Right("ab", 5), "ab");
  EXPECT_EQ(Mid("abcdef", 3), "cdef");
  EXPECT_EQ(Mid("abcdef", 3, 2), "cd");
  EXPECT_EQ(Mid("abcdef", 5, 10), "ef");
  EXPECT_EQ(Mid("abc", 7, 2), "");
  EXPECT_EQ(InStr("a-b-c", "-"), 2);
  EXPECT_EQ(InStr("a-b-c", "-", 3), 4);
  EXPECT_EQ(InStr("a-b-c", "x"), 0);
  EXPECT_EQ(InStr("abc", "", 2), 2);
  EXPECT_EQ(FailureOf([] { Mid("abc", 0); }), FailureKind::InvalidProcedureCall);
  EXPECT_EQ(FailureOf([] { Left("abc", -1); }), FailureKind::InvalidProcedureCall);
  EXPECT_EQ(FailureOf([] { Divide(1, 0); }), FailureKind::DivisionByZero);
}

TEST(VariantTest, emptyReadsAsZeroAndAsEmptyText) {
  const Variant empty;
  EXPECT_TRUE(empty.IsEmpty());
  EXPECT_EQ(empty.ToDouble(), 0.0);
  EXPECT_EQ(empty.ToSingle(), 0.0f);
  EXPECT_EQ(empty.ToText(), "");

  EXPECT_EQ(Variant("2.5").ToDouble(), 2.5);
  EXPECT_EQ(Variant(" 3 ").ToSingle(), 3.0f);
  EXPECT_EQ(Variant(Integer(12)).ToText(), "12");
  EXPECT_EQ(Variant(0.1f).ToText(), "0.1");
  EXPECT_EQ(Variant(1.0 / 3).ToText(), "0.333333333333333");
  EXPECT_EQ(Variant(1.0 / 3).ToSingle(), 1.0f / 3);
  EXPECT_TRUE(Variant(Long(5)).IsNumber());
  EXPECT_FALSE(Variant("5").IsNumber());

  EXPECT_EQ(FailureOf([] { Variant("abc").ToDouble(); }), FailureKind::TypeMismatch);
  EXPECT_EQ(FailureOf([] { Variant("").ToDouble(); }), FailureKind::TypeMismatch);
  EXPECT_EQ(FailureOf([] { Variant("1.5 cm").ToSingle(); }), FailureKind::TypeMismatch);
  EXPECT_EQ(FailureOf([] { Variant(1e300).ToSingle(); }), FailureKind::Overflow);
}

}  // namespace
}  // namespace ostraline
