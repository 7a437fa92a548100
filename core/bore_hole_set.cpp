#include "core/bore_hole_set.h"

#include "duo/duo_state.h"
#include "forms/frm2_divider.h"
#include "forms/frm2_main.h"
#include "forms/frm2_select.h"
#include "forms/frm_divider.h"
#include "forms/frm_main.h"
#include "forms/frm_select.h"

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

BoreHoleSet& SetOfTwin(const Form& form) {
  return form.Name().starts_with("frm2") ? duoSet : masterSet;
}

FrmSelect& SelectFormOf(const BoreHoleSet& set) {
  if (set.IsDuo) return *frm2Select;
  return *frmSelect;
}

FrmDivider& DividerOf(const BoreHoleSet& set) {
  if (set.IsDuo) return *frm2Divider;
  return *frmDivider;
}

BoreHoleSet& SetOf(const MainForm& form) {
  return form.IsDuo() ? duoSet : masterSet;
}

}  // namespace ostraline
