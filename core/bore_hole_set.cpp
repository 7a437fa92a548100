#include "core/bore_hole_set.h"

#include "forms/frm2_main.h"
#include "forms/frm_main.h"

namespace ostraline {

BoreHoleSet::BoreHoleSet(const std::array<const char*, 4>& holeNames, bool isDuo) : IsDuo(isDuo) {
  HoleName.DimUpper(4);
  for (int hole = 1; hole <= 4; ++hole) HoleName(hole) = holeNames[hole - 1];
  HoleTitle.DimUpper(4);
  SectionCount.DimUpper(4);
  CoreBottom.DimUpper(4);
}

MainForm& MainFormOf(const BoreHoleSet& set) {
  if (set.IsDuo) return *frm2Main;
  return *frmMain;
}

}  // namespace ostraline
