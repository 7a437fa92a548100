#pragma once
// Numbers to text and back, as the data files and the screen need them.
#include <string>
#include <string_view>

#include "runtime/checked_int.h"

namespace ostraline {

// Number from the leading numeric text; 0 when there is none. Never fails.
// Blanks, tabs and line feeds inside the digits are ignored.
double Val(std::string_view text);

// Strict conversions of the whole text; text that is no number is a type mismatch.
double CDbl(std::string_view text);
float CSng(std::string_view text);
// A float widened or narrowed the strict way: a Single that cannot hold it overflows.
float CSng(double value);

// Shortest text at 7 (Single) or 15 (Double) significant digits, no leading blank.
std::string Str(float value);
std::string Str(double value);
std::string Str(long long value);
inline std::string Str(int value) {
  return Str(static_cast<long long>(value));
}
inline std::string Str(Integer value) {
  return Str(static_cast<long long>(value.Get()));
}
inline std::string Str(Long value) {
  return Str(static_cast<long long>(value.Get()));
}

// A number as Print writes it on a picture: a leading blank for the sign
// position of a positive number, and a trailing blank.
std::string PrintedNumber(const std::string& digits);

// Round half to even on the exact binary value; digits 0..22.
double Round(double value, int digits = 0);

// Division that fails on a zero divisor.
double Divide(double numerator, double denominator);

// Whether the text reads as a number to the strict conversions.
bool IsNumeric(std::string_view text);
// Whether the text is a finite number through and through with no blank in
// it, with its value: then IsNumeric holds and Val and CDbl read that value.
bool IsPlainNumber(std::string_view text, double& value);

// Text procedures of the program's language, with 1-based positions.
std::string Trim(std::string_view text);
std::string LTrim(std::string_view text);
std::string RTrim(std::string_view text);
std::string Left(std::string_view text, long length);
std::string Right(std::string_view text, long length);
std::string Mid(std::string_view text, long start);
std::string Mid(std::string_view text, long start, long length);
long Len(std::string_view text);
// Position of what in text from start on, 0 if absent.
long InStr(std::string_view text, std::string_view what, long start = 1);
std::string UCase(std::string_view text);
std::string LCase(std::string_view text);

}  // namespace ostraline
