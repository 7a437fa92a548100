#include "runtime/number_text.h"

#include <algorithm>
#include <cfloat>
#include <charconv>
#include <cmath>
#include <cstdint>

#include "runtime/exact_decimal.h"
#include "runtime/general_format.h"

namespace ostraline {
namespace {

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

// The length of the numeric text at the start of a run of characters, and
// where its exponent letter stands (npos for none): an optional sign, digits
// with at most one point, and an exponent only where it has digits.
struct NumberSpan {
  std::size_t length = 0;
  std::size_t exponent = std::string_view::npos;
};

NumberSpan LeadingNumber(std::string_view s) {
  std::size_t i = 0;
  if (i < s.size() && (s[i] == '+' || s[i] == '-')) ++i;
  bool digits = false;
  while (i < s.size() && IsDigit(s[i])) {
    ++i;
    digits = true;
  }
  if (i < s.size() && s[i] == '.') {
    ++i;
    while (i < s.size() && IsDigit(s[i])) {
      ++i;
      digits = true;
    }
  }
  if (!digits) return {};
  NumberSpan span{i};
  if (i < s.size() && (s[i] == 'E' || s[i] == 'e' || s[i] == 'D' || s[i] == 'd')) {
    std::size_t j = i + 1;
    if (j < s.size() && (s[j] == '+' || s[j] == '-')) ++j;
    const std::size_t first = j;
    while (j < s.size() && IsDigit(s[j])) ++j;
    if (j > first) span = {j, i};
  }
  return span;
}

double RadixValue(std::string_view s, int radix) {
  double v = 0;
  for (char c : s) {
    int d;
    if (IsDigit(c)) {
      d = c - '0';
    } else if (radix == 16 && c >= 'A' && c <= 'F') {
      d = c - 'A' + 10;
    } else if (radix == 16 && c >= 'a' && c <= 'f') {
      d = c - 'a' + 10;
    } else {
      break;
    }
    if (d >= radix) break;
    v = v * radix + d;
  }
  return v;
}

// Whether a number text beyond the range of a double is too large rather
// than too small.
bool BeyondLargest(std::string_view number) {
  const std::size_t e = std::min(number.find_first_of("Ee"), number.size());
  const std::string_view mantissa = number.substr(0, e);
  const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
  const std::size_t first = mantissa.find_first_of("123456789");
  if (first == std::string_view::npos) return false;
  // The decimal exponent of the first significant digit.
  const long long scale = first < point
                              ? static_cast<long long>(point - first) - 1
                              : static_cast<long long>(point) - static_cast<long long>(first);
  long long exponent = 0;
  bool negative = false;
  for (std::size_t i = e + 1; i < number.size(); ++i) {
    if (number[i] == '-') negative = true;
    if (IsDigit(number[i])) exponent = std::min(exponent * 10 + (number[i] - '0'), 1000000000LL);
  }
  return scale + (negative ? -exponent : exponent) >= 0;
}

// The value of a number text of at most 19 significant digits whose power
// of ten a Double holds exactly: the whole of its digits times or over that
// power, a single rounding as the full reader makes. False for any other.
bool ShortDecimalValue(std::string_view number, NumberSpan span, double& value) {
  const std::size_t end = std::min(span.exponent, number.size());
  std::size_t i = number[0] == '+' || number[0] == '-' ? 1 : 0;
  std::uint64_t whole = 0;
  int digits = 0;
  int scale = 0;
  bool point = false;
  for (; i < end; ++i) {
    if (number[i] == '.') {
      point = true;
      continue;
    }
    if (whole == 0 && number[i] == '0') {
      if (point) --scale;
      continue;
    }
    if (++digits > 19) return false;
    whole = whole * 10 + static_cast<std::uint64_t>(number[i] - '0');
    if (point) --scale;
  }
  if (end < number.size()) {
    std::size_t j = end + 1;
    const bool negative = number[j] == '-';
    if (number[j] == '-' || number[j] == '+') ++j;
    if (number.size() - j > 4) return false;
    int exponent = 0;
    for (; j < number.size(); ++j) exponent = exponent * 10 + (number[j] - '0');
    scale += negative ? -exponent : exponent;
  }
  if (whole == 0 || !ExactDecimal(whole, scale, value)) return false;
  if (number[0] == '-') value = -value;
  return true;
}

// The value of the numeric text at the start of a run of characters, a
// "D" exponent read as an "E". Read without the C locale: the desktop
// toolkit installs the user's, whose decimal comma would make "1.5" read as 1.
double NumberValue(std::string_view text, NumberSpan span) {
  std::string_view number = text.substr(0, span.length);
  if (double value = 0; ShortDecimalValue(number, span, value)) return value;
  std::string spelled;
  if (span.exponent != std::string_view::npos &&
      (number[span.exponent] == 'D' || number[span.exponent] == 'd')) {
    spelled.assign(number);
    spelled[span.exponent] = 'E';
    number = spelled;
  }
  if (number.front() == '+') number.remove_prefix(1);
  double value = 0;
  const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
  if (result.ec == std::errc::result_out_of_range) {
    value = BeyondLargest(number) ? HUGE_VAL : 0.0;
    if (number.front() == '-') value = -value;
  }
  return value;
}

}  // namespace

double Val(std::string_view text) {
  // Most cells hold no blank: they are read where they stand.
  std::string compact;
  if (std::any_of(text.begin(), text.end(), [](char c) { return c == ' ' || c == '\t' || c == '\n'; })) {
    compact.reserve(text.size());
    for (char c : text) {
      if (c != ' ' && c != '\t' && c != '\n') compact += c;
    }
    text = compact;
  }
  if (text.size() >= 2 && text[0] == '&') {
    if (text[1] == 'H' || text[1] == 'h') return RadixValue(text.substr(2), 16);
    if (text[1] == 'O' || text[1] == 'o') return RadixValue(text.substr(2), 8);
  }
  const NumberSpan span = LeadingNumber(text);
  if (span.length == 0) return 0.0;
  return NumberValue(text, span);
}

namespace {

// The text without its leading and trailing blanks and tabs.
std::string_view Core(std::string_view text) {
  std::size_t b = 0;
  std::size_t e = text.size();
  while (b < e && (text[b] == ' ' || text[b] == '\t')) ++b;
  while (e > b && (text[e - 1] == ' ' || text[e - 1] == '\t')) --e;
  return text.substr(b, e - b);
}

}  // namespace

bool IsNumeric(std::string_view text) {
  const std::string_view core = Core(text);
  return !core.empty() && LeadingNumber(core).length == core.size();
}

bool IsPlainNumber(std::string_view text, double& value) {
  // A number's span holds no blank and no radix prefix.
  const NumberSpan span = LeadingNumber(text);
  if (text.empty() || span.length != text.size()) return false;
  value = NumberValue(text, span);
  return std::isfinite(value);
}

double CDbl(std::string_view text) {
  const std::string_view core = Core(text);
  const NumberSpan span = LeadingNumber(core);
  if (core.empty() || span.length != core.size()) {
    Fail(FailureKind::TypeMismatch, std::string(text));
  }
  const double v = NumberValue(core, span);
  if (std::isinf(v)) Fail(FailureKind::Overflow, std::string(text));
  return v;
}

float CSng(double value) {
  if (std::isnan(value)) return static_cast<float>(value);
  if (std::fabs(value) > FLT_MAX) {
    // A double beyond the largest Single still rounds to it when within half an ulp.
    const float narrowed = static_cast<float>(value);
    if (std::isinf(narrowed)) Fail(FailureKind::Overflow);
    return narrowed;
  }
  return static_cast<float>(value);
}

float CSng(std::string_view text) {
  return CSng(CDbl(text));
}

std::string Str(float value) {
  return GeneralText(value);
}
std::string Str(double value) {
  return GeneralText(value);
}
std::string Str(long long value) {
  return std::to_string(value);
}

std::string PrintedNumber(const std::string& digits) {
  if (!digits.empty() && digits[0] == '-') return digits + " ";
  return " " + digits + " ";
}

double Round(double value, int digits) {
  if (digits < 0 || digits > 22) Fail(FailureKind::InvalidProcedureCall, "Round digits");
  if (!std::isfinite(value)) return value;
  const double p = kExactPowersOfTen[digits];
  const double y = value * p;
  // Beyond 2^52 every double is whole: nothing to round at this scale.
  if (std::fabs(y) >= 4503599627370496.0) return value;
  // Below 2^52 a whole number cut from y is its floor, or one above it.
  double f = static_cast<double>(static_cast<long long>(y));
  if (f > y) f -= 1;
  // value * p == y + err exactly, with err within half of y's last place;
  // the sign of (fraction - 1/2) decides, and err only matters near a half.
  const double fromHalf = y - f - 0.5;
  const double above = std::fabs(fromHalf) > std::fabs(y) * 0x1p-52
                           ? fromHalf
                           : fromHalf + std::fma(value, p, -y);
  double n = f;
  if (above > 0) {
    n = f + 1;
  } else if (above == 0) {
    n = std::fmod(f, 2.0) == 0 ? f : f + 1;
  }
  const double r = n / p;
  return r == 0 ? 0.0 : r;
}

double Divide(double numerator, double denominator) {
  if (denominator == 0) Fail(FailureKind::DivisionByZero);
  return numerator / denominator;
}

std::string Trim(std::string_view text) {
  return LTrim(RTrim(text));
}

std::string LTrim(std::string_view text) {
  std::size_t b = 0;
  while (b < text.size() && text[b] == ' ') ++b;
  return std::string(text.substr(b));
}

std::string RTrim(std::string_view text) {
  std::size_t e = text.size();
  while (e > 0 && text[e - 1] == ' ') --e;
  return std::string(text.substr(0, e));
}

std::string Left(std::string_view text, long length) {
  if (length < 0) Fail(FailureKind::InvalidProcedureCall, "Left");
  return std::string(text.substr(0, static_cast<std::size_t>(length)));
}

std::string Right(std::string_view text, long length) {
  if (length < 0) Fail(FailureKind::InvalidProcedureCall, "Right");
  const std::size_t n = static_cast<std::size_t>(length);
  if (n >= text.size()) return std::string(text);
  return std::string(text.substr(text.size() - n));
}

std::string Mid(std::string_view text, long start) {
  if (start < 1) Fail(FailureKind::InvalidProcedureCall, "Mid");
  if (static_cast<std::size_t>(start) > text.size()) return {};
  return std::string(text.substr(static_cast<std::size_t>(start - 1)));
}

std::string Mid(std::string_view text, long start, long length) {
  if (start < 1 || length < 0) Fail(FailureKind::InvalidProcedureCall, "Mid");
  if (static_cast<std::size_t>(start) > text.size()) return {};
  return std::string(
      text.substr(static_cast<std::size_t>(start - 1), static_cast<std::size_t>(length)));
}

long Len(std::string_view text) {
  return static_cast<long>(text.size());
}

long InStr(std::string_view text, std::string_view what, long start) {
  if (start < 1) Fail(FailureKind::InvalidProcedureCall, "InStr");
  if (static_cast<std::size_t>(start) > text.size()) return what.empty() && start == 1 ? 1 : 0;
  if (what.empty()) return start;
  const std::size_t at = text.find(what, static_cast<std::size_t>(start - 1));
  return at == std::string_view::npos ? 0 : static_cast<long>(at + 1);
}

std::string UCase(std::string_view text) {
  std::string s(text);
  for (char& c : s) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return s;
}

std::string LCase(std::string_view text) {
  std::string s(text);
  for (char& c : s) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return s;
}

Integer CInt(double value) {
  const double r = Round(value, 0);
  if (!(r >= -32768.0 && r <= 32767.0)) Fail(FailureKind::Overflow);
  return Integer(static_cast<int>(r));
}

Long CLng(double value) {
  const double r = Round(value, 0);
  if (!(r >= -2147483648.0 && r <= 2147483647.0)) Fail(FailureKind::Overflow);
  return Long(static_cast<long long>(r));
}

}  // namespace ostraline
