#include "core/hole_lookup.h"

#include <algorithm>
#include <string>
#include <utility>

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

namespace {

// The name's last three characters, zeros before a shorter one.
std::string LastThree(const std::string& name) {
  const std::size_t size = name.size();
  std::string three(size < 3 ? 3 - size : 0, '0');
  return three.append(name, size < 3 ? 0 : size - 3);
}

// The sections of each bore hole by name, read anew when the lists change.
SectionNames* Names(BoreHoleSet& set, int hole) {
  const Table<std::string, 2>& names = set.SectionName;
  if (hole < 1 || hole > 4 || !names.Allocated()) return nullptr;
  const long count = std::as_const(set.SectionCount)(hole);
  if (count > names.UBound(2)) return nullptr;
  SectionNames& index = set.Derived.sections;
  if (!index.holeBuilt[hole] || index.revisions[hole] != names.Revision(hole) ||
      index.counts[hole] != count) {
    index.exact[hole].clear();
    index.lastThree[hole].clear();
    index.asked[hole].clear();
    for (int i = 1; i <= count; ++i) {
      const std::string& candidate = names(hole, i);
      index.exact[hole].emplace(candidate, i);
      index.lastThree[hole].emplace(LastThree(candidate), i);
    }
    index.counts[hole] = count;
    index.revisions[hole] = names.Revision(hole);
    index.holeBuilt[hole] = true;
  }
  return &index;
}

}  // namespace

Integer SectionOrdinalByName(BoreHoleSet& set, int hole, const std::string& name) {
  if (hole == 9999 || hole == -9999 || name == "9999" || name == "-9999") return 9999;
  if (FastLookups) {
    if (SectionNames* index = Names(set, hole)) {
      std::unordered_map<std::string, int>& asked = index->asked[hole];
      if (const auto known = asked.find(name); known != asked.end()) return known->second;
      // The scan takes the first section that matches either way.
      int found = 9999;
      const auto exact = index->exact[hole].find(name);
      if (exact != index->exact[hole].end()) found = exact->second;
      const auto tail = index->lastThree[hole].find(LastThree(name));
      if (tail != index->lastThree[hole].end()) found = std::min(found, tail->second);
      if (asked.size() < SectionNames::kAskedNames) asked.emplace(name, found);
      return found;
    }
  }
  const std::string wanted = LastThree(name);
  try {
    for (int i = 1; i <= set.SectionCount(hole); ++i) {
      const std::string& candidate = set.SectionName(hole, i);
      if (name == candidate || LastThree(candidate) == wanted) return i;
    }
  } catch (const RuntimeFailure&) {
  }
  return 9999;
}

Variant SectionOrdinalOfRow(BoreHoleSet& set, int hole, int topRow) {
  Long count = 0;
  for (int row = 0; row <= topRow; ++row) {
    if (IsSectionTop(std::as_const(set.ModelCell)(0, hole, 0, row))) ++count;
  }
  return count;
}

}  // namespace ostraline
