#include "display/core_columns.h"
#include "display/form_view.h"

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
void ScalePanels(BoreHoleSet& set, MainForm& form) {
  ProxyRecords& records = ProxiesOf(set);
  for (int i = 0; i <= 4; ++i) {
    PictureBox& panel = form.Picture1(i);
    panel.ScaleTop = form.BoreHole(0).ScaleTop.Get();
    panel.ScaleHeight = form.BoreHole(0).ScaleHeight.Get();
    if (records.ProxyLoaded(i)) {
      DrawProxy(set, records, i);
      continue;
    }
    const float left = panel.ScaleLeft;
    const float top = panel.ScaleTop;
    panel.LineBF(left, top, left + panel.ScaleWidth, top + panel.ScaleHeight, panel.BackColor);
  }
}

// The master's view remembers its texts for the level divider.
void SaveTexts(const MainForm& form) {
  if (form.IsDuo()) return;
  SavedDepthText = form.Text2.Text.Get();
  SavedEFDText = form.Text3.Text.Get();
  SavedAgeText = form.Text4.Text.Get();
}

}  // namespace

void DrawLamina(BoreHoleSet& set) {
  MainForm& form = MainFormOf(set);
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
  ChooseAgeDepthColumn(set);
  PaintVarveStretches(set, form);
  for (int i = 0; i <= 4; ++i) form.BoreHole(i).FillStyle = 0;
  PlotAgeControlPoints(set, form);
  PlotReferenceRows(set, form);
  DrawFixedHorizon(form);
  DrawRowMarks(set, form, rows);
  // The Duo's composite column carries no labels of its own.
  if (set.IsDuo) {
    PictureBox& composite = form.BoreHole(0);
    composite.CurrentX = 0.2f;
    composite.CurrentY = composite.ScaleTop;
    composite.Print("Unlabeled");
  }
  CommitColumns(form);
  ScalePanels(set, form);
  SaveTexts(form);
}

}  // namespace ostraline
