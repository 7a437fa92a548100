#include "runtime/number_text.h"

#include <algorithm>
#include <cfloat>
#include <charconv>
#include <cmath>

namespace ostraline {
namespace {

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

// The numeric text at the start of a run of characters, in the form NumberValue
// reads ("D" exponents become "E"). Blanks have already been taken out.
std::string LeadingNumber(std::string_view s) {
  std::string out;
  std::size_t i = 0;
  if (i < s.size() && (s[i] == '+' || s[i] == '-')) out += s[i++];
  bool digits = false;
  while (i < s.size() && IsDigit(s[i])) {
    out += s[i++];
    digits = true;
  }
  if (i < s.size() && s[i] == '.') {
    out += s[i++];
    while (i < s.size() && IsDigit(s[i])) {
      out += s[i++];
      digits = true;
    }
  }
  if (!digits) return {};
  if (i < s.size() && (s[i] == 'E' || s[i] == 'e' || s[i] == 'D' || s[i] == 'd')) {
    std::size_t j = i + 1;
    std::string exponent = "E";
    if (j < s.size() && (s[j] == '+' || s[j] == '-')) exponent += s[j++];
    bool expDigits = false;
    while (j < s.size() && IsDigit(s[j])) {
      exponent += s[j++];
      expDigits = true;
    }
    if (expDigits) out += exponent;
  }
  return out;
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
  const std::size_t e = std::min(number.find('E'), number.size());
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

// The value of a text as LeadingNumber gives it. Read without the C locale:
// the desktop toolkit installs the user's, whose decimal comma would make
// "1.5" read as 1.
double NumberValue(std::string_view number) {
  if (!number.empty() && number.front() == '+') number.remove_prefix(1);
  double value = 0;
  const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
  if (result.ec == std::errc::result_out_of_range) {
    value = BeyondLargest(number) ? HUGE_VAL : 0.0;
    if (number.front() == '-') value = -value;
  }
  return value;
}

// printf's %G, written without the C locale for the same reason.
std::string FormatG(double value, int digits) {
  if (value == 0) return "0";  // also drops the sign of a negative zero
  char buf[64];
  const char* end =
      std::to_chars(buf, buf + sizeof buf, value, std::chars_format::general, digits).ptr;
  return UCase(std::string_view(buf, static_cast<std::size_t>(end - buf)));
}

}  // namespace

double Val(std::string_view text) {
  std::string s;
  s.reserve(text.size());
  for (char c : text) {
    if (c != ' ' && c != '\t' && c != '\n') s += c;
  }
  if (s.size() >= 2 && s[0] == '&') {
    if (s[1] == 'H' || s[1] == 'h') return RadixValue(std::string_view(s).substr(2), 16);
    if (s[1] == 'O' || s[1] == 'o') return RadixValue(std::string_view(s).substr(2), 8);
  }
  const std::string number = LeadingNumber(s);
  if (number.empty()) return 0.0;
  return NumberValue(number);
}

bool IsNumeric(std::string_view text) {
  std::size_t b = 0;
  std::size_t e = text.size();
  while (b < e && (text[b] == ' ' || text[b] == '\t')) ++b;
  while (e > b && (text[e - 1] == ' ' || text[e - 1] == '\t')) --e;
  const std::string_view core = text.substr(b, e - b);
  if (core.empty()) return false;
  // "1.5D3" reads as "1.5E3", of the same length, so a length test suffices.
  return LeadingNumber(core).size() == core.size();
}

double CDbl(std::string_view text) {
  if (!IsNumeric(text)) Fail(FailureKind::TypeMismatch, std::string(text));
  std::size_t b = 0;
  while (text[b] == ' ' || text[b] == '\t') ++b;
  const std::string number = LeadingNumber(text.substr(b));
  const double v = NumberValue(number);
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
  return FormatG(value, 7);
}
std::string Str(double value) {
  return FormatG(value, 15);
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
  static constexpr double kPowers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                       1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                       1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
  const double p = kPowers[digits];
  const double y = value * p;
  // Beyond 2^52 every double is whole: nothing to round at this scale.
  if (std::fabs(y) >= 4503599627370496.0) return value;
  // value * p == y + err exactly; the sign of (fraction - 1/2) decides.
  const double err = std::fma(value, p, -y);
  const double f = std::floor(y);
  const double above = (y - f - 0.5) + err;
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
