#pragma once
// printf's %G of a Single at 7 and of a Double at 15 significant digits, in
// capitals and without the C locale: the desktop toolkit installs the user's
// locale, whose decimal comma would be written otherwise.
#include <cstddef>
#include <optional>
#include <string>

namespace ostraline {

// The number rounded to its digits the long way, as the formatting of the
// run-time library does it.
std::string RoundedGeneral(double value, int digits);

// The same text, rounded in whole numbers of 128 bits from the number's
// binary digits wherever they hold it, which is almost always; the long way
// otherwise.
std::string GeneralText(float value);
std::string GeneralText(double value);
// The same text written where there is room for kGeneralLength characters;
// where it ends.
inline constexpr std::size_t kGeneralLength = 32;
char* WriteGeneral(char* at, float value);
char* WriteGeneral(char* at, double value);

// What Val reads from that text, found without writing it.
double PrintedValue(float value);
double PrintedValue(double value);
// The Single of what Val reads from a Double's text, where the number lies
// so far from every halfway point between two Singles that its fifteen
// digits cannot move it across one: then it is the number's own nearest
// Single. Nothing where that is not sure.
std::optional<float> PrintedSingle(double value);

}  // namespace ostraline
