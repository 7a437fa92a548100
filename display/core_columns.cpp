#include "display/core_columns.h"

#include "display/core_columns_rows.h"
#include "display/core_columns_steps.h"
#include "display/display_state.h"
#include "display/event_view.h"
#include "display/scale_strip.h"
#include "events/event_state.h"
#include "forms/frm_main.h"
#include "proxies/proxy_panel.h"
#include "proxies/proxy_records.h"

namespace ostraline {
namespace {

void ClearColumns(MainForm& form) {
  for (int i = 0; i <= 5; ++i) {
    PictureBox& column = form.BoreHole(i);
    column.Cls();
    column.FontSize = static_cast<float>(LabelFontSize);
    const float left = column.ScaleLeft;
    const float top = column.ScaleTop;
    column.LineBF(left, top, left + column.ScaleWidth, top + column.ScaleHeight, column.BackColor);
  }
}

void CommitColumns(MainForm& form) {
  for (int i = 0; i <= 5; ++i) form.BoreHole(i).CommitImage();
}

// The panels follow the columns' depth window: a loaded panel draws its
// record, any other shows its background.
void ScalePanels(MainForm& form) {
  for (int i = 0; i <= 4; ++i) {
    PictureBox& panel = form.Picture1(i);
    panel.ScaleTop = form.BoreHole(0).ScaleTop.Get();
    panel.ScaleHeight = form.BoreHole(0).ScaleHeight.Get();
    if (ProxyLoaded(i)) {
      DrawProxy(i);
      continue;
    }
    const float left = panel.ScaleLeft;
    const float top = panel.ScaleTop;
    panel.LineBF(left, top, left + panel.ScaleWidth, top + panel.ScaleHeight, panel.BackColor);
  }
}

void SaveTexts(const MainForm& form) {
  SavedDepthText = form.Text2.Text.Get();
  SavedEFDText = form.Text3.Text.Get();
  SavedAgeText = form.Text4.Text.Get();
}

}  // namespace

void DrawLamina(BoreHoleSet& set) {
  MainForm& form = *frmMain;
  const ModelRows rows(set);
  ClearColumns(form);
  PaintAboveCore(form, rows);
  PaintCompositeColumn(form, rows);
  DrawBH5(set);
  PaintSplicedParts(set, form, rows);
  PaintBelowCore(set, form);
  PaintSectionGaps(form, rows);
  if (set.MergedEventCount > 0) DrawEvents(set);
  CrossSectionGaps(form, rows);
  ChooseAgeDepthColumn();
  PaintVarveStretches(set, form);
  for (int i = 0; i <= 4; ++i) form.BoreHole(i).FillStyle = 0;
  PlotAgeControlPoints(set, form);
  PlotReferenceRows(set, form);
  DrawFixedHorizon(form);
  DrawRowMarks(set, form, rows);
  CommitColumns(form);
  ScalePanels(form);
  SaveTexts(form);
}

}  // namespace ostraline
