#pragma once
// The steps of DrawLamina, in the order they paint: each later one lies over
// the earlier ones.

namespace ostraline {

struct BoreHoleSet;
class MainForm;
class ModelRows;

// Grey where nothing was cored: above each core, around the composite, below
// each core, and between sections. A section gap gets its cross later, over
// the event layers.
void PaintAboveCore(MainForm& form, const ModelRows& rows);
void PaintCompositeColumn(MainForm& form, const ModelRows& rows);
void PaintBelowCore(BoreHoleSet& set, MainForm& form);
void PaintSectionGaps(MainForm& form, const ModelRows& rows);
void CrossSectionGaps(MainForm& form, const ModelRows& rows);

// Pale cyan over the parts of each bore hole that the composite is made of.
void PaintSplicedParts(BoreHoleSet& set, MainForm& form, const ModelRows& rows);

// The age-depth model on the composite column and the bore holes.
void ChooseAgeDepthColumn(const BoreHoleSet& set);
void PaintVarveStretches(BoreHoleSet& set, MainForm& form);
void PlotAgeControlPoints(BoreHoleSet& set, MainForm& form);
void PlotReferenceRows(BoreHoleSet& set, MainForm& form);

// The lines and labels of the model's rows, and the fixed horizon.
void DrawFixedHorizon(MainForm& form);
void DrawRowMarks(BoreHoleSet& set, MainForm& form, const ModelRows& rows);

}  // namespace ostraline
