#include "core/hole_lookup.h"

#include "core/project_state.h"
#include "runtime/number_text.h"

namespace ostraline {

Integer BHNo(BoreHoleSet& set, const std::string& letter) {
  for (int hole = 1; hole <= 4; ++hole) {
    if (set.HoleName(hole) == letter) return hole;
  }
  return -9999;
}

Variant GetBH(BoreHoleSet& set, const std::string& letter) {
  Variant result = 9999;
  for (int hole = 1; hole <= 4; ++hole) {
    if (set.HoleName(hole) == letter) result = hole;
  }
  return result;
}

Variant AlphaNum(BoreHoleSet& set, const Variant& letter) {
  const std::string text = letter.ToText();
  for (int hole = 1; hole <= 4; ++hole) {
    if (set.HoleName(hole) == text) return hole;
  }
  return 1;
}

Integer SectionOrdinalByName(BoreHoleSet& set, int hole, const std::string& name) {
  if (hole == 9999 || hole == -9999 || name == "9999" || name == "-9999") return 9999;
  try {
    const std::string wanted = Right("000" + name, 3);
    for (int i = 1; i <= set.SectionCount(hole); ++i) {
      const std::string& candidate = set.SectionName(hole, i);
      if (name == candidate || Right("000" + candidate, 3) == wanted) return i;
    }
  } catch (const RuntimeFailure&) {
  }
  return 9999;
}

Variant SectionOrdinalOfRow(BoreHoleSet& set, int hole, int topRow) {
  Long count = 0;
  for (int row = 0; row <= topRow; ++row) {
    if (IsSectionTop(set.ModelCell(0, hole, 0, row))) ++count;
  }
  return count;
}

}  // namespace ostraline
