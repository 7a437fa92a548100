#include "display/form_view.h"

#include "core/project_state.h"
#include "display/display_state.h"
#include "duo/duo_state.h"
#include "forms/main_form.h"

namespace ostraline {

Integer& ViewSpanOf(const BoreHoleSet& set) {
  return set.IsDuo ? ViewSpan2 : ViewSpan;
}

Integer& ViewSpanOf(const MainForm& form) {
  return ViewSpanOf(SetOf(form));
}

Integer& ViewSpanOf(const Control& onMainForm) {
  return ViewSpanOf(static_cast<const MainForm&>(onMainForm.Parent()));
}

bool OnMasterScale(const BoreHoleSet& set) {
  return set.IsDuo && DuoScale == 2;
}

Integer ColumnScaleOf(const BoreHoleSet& set) {
  return set.IsDuo ? DuoScale : DepthAxis;
}

}  // namespace ostraline
