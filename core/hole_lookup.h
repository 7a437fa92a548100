#pragma once
// Bore holes by letter and sections by name or by row. The three letter
// lookups differ on purpose: which one a caller uses decides ties and misses.
#include <string>

#include "core/bore_hole_set.h"
#include "runtime/checked_int.h"
#include "runtime/variant.h"

namespace ostraline {

// 1..4 at the first equal HoleName, -9999 for an unknown letter.
Integer BHNo(BoreHoleSet& set, const std::string& letter);
inline Integer BHNo(const std::string& letter) {
  return BHNo(masterSet, letter);
}
// 1..4 with the last equal HoleName winning, 9999 for an unknown letter.
Variant GetBH(BoreHoleSet& set, const std::string& letter);
inline Variant GetBH(const std::string& letter) {
  return GetBH(masterSet, letter);
}
// 1..4, and 1 for any other text.
Variant AlphaNum(BoreHoleSet& set, const Variant& letter);
inline Variant AlphaNum(const Variant& letter) {
  return AlphaNum(masterSet, letter);
}
// The ordinal of a section by name ("1" finds "001" and "01"), 9999 when not found.
Integer SectionOrdinalByName(BoreHoleSet& set, int hole, const std::string& name);
inline Integer SectionOrdinalByName(int hole, const std::string& name) {
  return SectionOrdinalByName(masterSet, hole, name);
}
// How many top labels lie in rows 0..topRow of the bore hole.
Variant SectionOrdinalOfRow(BoreHoleSet& set, int hole, int topRow);
inline Variant SectionOrdinalOfRow(int hole, int topRow) {
  return SectionOrdinalOfRow(masterSet, hole, topRow);
}

}  // namespace ostraline
