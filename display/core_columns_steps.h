#pragma once
// The steps of DrawLamina, in the order they paint: each later one lies over
// the earlier ones.

namespace ostraline {

struct BoreHoleSet;
class FrmMain;
class ModelRows;

// Grey where nothing was cored: above each core, around the composite, below
// each core, and between sections. A section gap gets its cross later, over
// the event layers.
void PaintAboveCore(FrmMain& form, const ModelRows& rows);
void PaintCompositeColumn(FrmMain& form, const ModelRows& rows);
void PaintBelowCore(BoreHoleSet& set, FrmMain& form);
void PaintSectionGaps(FrmMain& form, const ModelRows& rows);
void CrossSectionGaps(FrmMain& form, const ModelRows& rows);

// Pale cyan over the parts of each bore hole that the composite is made of.
void PaintSplicedParts(BoreHoleSet& set, FrmMain& form, const ModelRows& rows);

// The age-depth model on the composite column and the bore holes.
void ChooseAgeDepthColumn();
void PaintVarveStretches(BoreHoleSet& set, FrmMain& form);
void PlotAgeControlPoints(BoreHoleSet& set, FrmMain& form);
void PlotReferenceRows(BoreHoleSet& set, FrmMain& form);

// The lines and labels of the model's rows, and the fixed horizon.
void DrawFixedHorizon(FrmMain& form);
void DrawRowMarks(BoreHoleSet& set, FrmMain& form, const ModelRows& rows);

}  // namespace ostraline
