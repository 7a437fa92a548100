#pragma once
// Bore holes by letter and sections by name or by row. The three letter
// lookups differ on purpose: which one a caller uses decides ties and misses.
#include <string>

#include "runtime/checked_int.h"
#include "runtime/variant.h"

namespace ostraline {

// 1..4 at the first equal HoleName, -9999 for an unknown letter.
Integer BHNo(const std::string& letter);
// 1..4 with the last equal HoleName winning, 9999 for an unknown letter.
Variant GetBH(const std::string& letter);
// 1..4, and 1 for any other text.
Variant AlphaNum(const Variant& letter);
// The ordinal of a section by name ("1" finds "001" and "01"), 9999 when not found.
Integer SectionOrdinalByName(int hole, const std::string& name);
// How many top labels lie in rows 0..topRow of the bore hole.
Variant SectionOrdinalOfRow(int hole, int topRow);

}  // namespace ostraline
