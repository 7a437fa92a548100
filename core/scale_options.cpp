// The vertical scale for drawing and the extrapolation method.
#include "core/correlation_model.h"
#include "core/depth_conversions.h"
#include "core/hole_lookup.h"
#include "core/project_state.h"
#include "core/trinity_view.h"
#include "display/core_columns.h"
#include "duo/duo_state.h"
#include "events/event_free_depth.h"
#include "events/event_state.h"
#include "forms/frm2_main.h"
#include "forms/frm_main.h"
#include "forms/platform.h"
#include "runtime/number_text.h"

namespace ostraline {
namespace {

// A control point given by bore hole, section and PSP takes its place anew.
// The bore hole is named by its letter, in either case.
template <class AgeTable>
void PlaceAgeRowsAnew(AgeTable& table, long rows) {
  auto text = [&](int column, long row) { return Variant(table(column, row)).ToText(); };
  for (long row = 1; row <= rows; ++row) {
    int hole = 0;
    for (int h = 1; h <= 4; ++h) {
      if (text(2, row) == HoleName(h) || UCase(text(2, row)) == UCase(HoleName(h))) hole = h;
    }
    if (hole == 0 || text(2, row) == "---" || text(3, row) == "---" || text(4, row) == "---")
      continue;
    const Variant composite = CompositeFromTrinity(hole, SectionOrdinalByName(hole, text(3, row)),
                                                   CSng(Val(text(4, row))));
    if (composite.ToDouble() != 9999) table(5, row) = Str(composite.ToSingle());
    table(11, row) = CDToEFD(CSng(Val(text(5, row)))).ToText();
  }
}

}  // namespace

// The choice of input is read where it matters; choosing does nothing more.
void FrmMain::Option1_Click(int) {}

// One axis for both forms: the master's. A click on the Duo's passes to the
// master's, which mirrors itself on the Duo's and redraws both.
void FrmMain::Option2_Click(int index) {
  if (IsDuo()) {
    if (!frmMain->Option2(index).Value) frmMain->Option2(index).Value = true;
    return;
  }
  DepthAxis = index;
  if (frm2Main.IsLoaded() && !frm2Main->Option2(index).Value) frm2Main->Option2(index).Value = true;
  if (LastRow > 1) {
    SearchCoreTop(masterSet);
    GetCompositDepth(masterSet);
  }
  if (DuoOpen && LastRow2 > 1) {
    SearchCoreTop(duoSet);
    GetCompositDepth(duoSet);
  }
}

void FrmMain::Option4_Click(int index) {
  // On the Duo the two buttons choose the scale its columns stand on.
  if (IsDuo()) {
    DuoScale = 2 - index;
    if (LastRow2 > 0) DrawLamina(duoSet);
    return;
  }
  if (Command1.Enabled) {
    ProgressBar1.Visible = false;
    return;
  }
  ProgressBar1.Value = 0;
  ProgressBar1.Max = static_cast<float>(LastRow) * 4;
  ProgressBar1.Visible = true;
  // Unlike the import, tie rows too take the computed value here.
  for (int hole = 1; hole <= 4; ++hole) {
    Integer section = 0;
    for (long row = 1; row <= LastRow; ++row) {
      ProgressBar1.Value = ProgressBar1.Value + 1;
      if (IsSectionTop(ModelCell(0, hole, 0, row))) ++section;
      const std::string psp = ModelCell(0, hole, 1, row);
      if (Val(psp) == 9999) {
        ModelCell(1, hole, 2, row) = "9999";
      } else {
        ModelCell(1, hole, 2, row) = CompositeFromTrinity(hole, section, CSng(Val(psp))).ToText();
        ModelCell(1, hole, 1, row) = psp;
      }
    }
  }
  if (AgeModelLoaded) {
    PlaceAgeRowsAnew(AgeModel, AgeModelCount);
    PlaceAgeRowsAnew(AgeReferenceRows, AgeReferenceCount);
  }
  if (LastRow > 1) {
    SearchCoreTop(masterSet);
    GetCompositDepth(masterSet);
  }
  DrawLamina();
  ProgressBar1.Value = 0;
  ProgressBar1.Visible = false;
}

}  // namespace ostraline
