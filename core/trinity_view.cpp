#include "core/trinity_view.h"

#include <utility>

#include "core/depth_conversions.h"
#include "core/hole_lookup.h"
#include "core/project_state.h"
#include "display/core_columns.h"
#include "display/display_state.h"
#include "display/form_view.h"
#include "duo/depth_map.h"
#include "events/age_lookup.h"
#include "events/event_free_depth.h"
#include "forms/main_form.h"
#include "runtime/number_text.h"

namespace ostraline {

void SearchCoreTop(BoreHoleSet& set) {
  MainForm& form = MainFormOf(set);
  for (int hole = 1; hole <= 4; ++hole) {
    if (set.HoleName(hole) == form.Combo1.Text) K = hole;
  }
  I = set.SectionTopRow(K, static_cast<long>(Val(form.Combo2.Text)));
  Single depth = 0;
  if (DepthAxis != 0) {
    const Integer section = SectionOrdinalByName(set, K, form.Combo5.Text);
    // An unconvertible horizon is empty, which draws at 0.
    depth = CompositeFromTrinity(set, K, section, CSng(Val(form.Text1.Text))).ToSingle();
    if (form.Option2(2).Value) depth = CDToEFD(set, depth).ToSingle();
    if (form.Option2(3).Value) depth = GetAgeFromCD(set, depth).ToSingle();
  }
  if (DepthAxis == 0) depth = CSng(CDbl(std::as_const(set.ModelCell)(DepthAxis, K, 2, I)) + Val(form.Text1.Text));
  // The Duo's columns stand on the master's depth.
  if (set.IsDuo) depth = DuoToMaster(depth);
  for (J = 1; J <= 5; ++J) {
    form.BoreHole(J).Cls();
    form.BoreHole(J).ScaleTop = depth - static_cast<Single>(ViewSpanOf(set)) / 2;
  }
  DrawLamina(set);
}

void GetCompositDepth(BoreHoleSet& set) {
  MainForm& form = MainFormOf(set);
  int hole = 0;
  for (int h = 1; h <= 4; ++h) {
    if (set.HoleName(h) == form.Combo1.Text) hole = h;
  }
  const Single composite = CompositeFromTrinity(set, hole, static_cast<int>(Val(form.Combo2.Text)),
                                                CSng(Val(form.Text1.Text)))
                               .ToSingle();
  // The value goes through its text, at a Single's digits.
  form.Label1(8).Caption = Str(Round(Val(Str(composite)), DepthPrecision));
  form.Text2.Text = form.Label1(8).Caption.Get();
  if (!set.IsDuo) CrossToDuo(Val(form.Text2.Text));
}

}  // namespace ostraline
