#include "core/trinity_view.h"

#include "core/depth_conversions.h"
#include "core/hole_lookup.h"
#include "core/project_state.h"
#include "display/core_columns.h"
#include "display/display_state.h"
#include "events/age_lookup.h"
#include "events/event_free_depth.h"
#include "forms/frm_main.h"
#include "runtime/number_text.h"

namespace ostraline {

void SearchCoreTop() {
  MainForm& form = *frmMain;
  for (int hole = 1; hole <= 4; ++hole) {
    if (HoleName(hole) == form.Combo1.Text) K = hole;
  }
  I = SectionTopRow(K, static_cast<long>(Val(form.Combo2.Text)));
  Single depth = 0;
  if (DepthAxis != 0) {
    const Integer section = SectionOrdinalByName(K, form.Combo5.Text);
    // An unconvertible horizon is empty, which draws at 0.
    depth = CompositeFromTrinity(K, section, CSng(Val(form.Text1.Text))).ToSingle();
    if (form.Option2(2).Value) depth = CDToEFD(depth).ToSingle();
    if (form.Option2(3).Value) depth = GetAgeFromCD(depth).ToSingle();
  }
  if (DepthAxis == 0) depth = CSng(CDbl(ModelCell(DepthAxis, K, 2, I)) + Val(form.Text1.Text));
  for (J = 1; J <= 5; ++J) {
    form.BoreHole(J).Cls();
    form.BoreHole(J).ScaleTop = depth - static_cast<Single>(ViewSpan) / 2;
  }
  DrawLamina();
}

void GetCompositDepth() {
  MainForm& form = *frmMain;
  int hole = 0;
  for (int h = 1; h <= 4; ++h) {
    if (HoleName(h) == form.Combo1.Text) hole = h;
  }
  const Single composite = CompositeFromTrinity(hole, static_cast<int>(Val(form.Combo2.Text)),
                                                CSng(Val(form.Text1.Text)))
                               .ToSingle();
  // The value goes through its text, at a Single's digits.
  form.Label1(8).Caption = Str(Round(Val(Str(composite)), DepthPrecision));
  form.Text2.Text = form.Label1(8).Caption.Get();
}

}  // namespace ostraline
