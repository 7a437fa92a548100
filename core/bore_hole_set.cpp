#include "core/bore_hole_set.h"

namespace ostraline {

BoreHoleSet::BoreHoleSet(const std::array<const char*, 4>& holeNames) {
  HoleName.DimUpper(4);
  for (int hole = 1; hole <= 4; ++hole) HoleName(hole) = holeNames[hole - 1];
  HoleTitle.DimUpper(4);
  SectionCount.DimUpper(4);
  CoreBottom.DimUpper(4);
}

}  // namespace ostraline
