// The age-depth model on the core view: varve-counted stretches, the age
// control points by class, and the reference rows, each at its depth on the
// selected scale.
#include <string>

#include "core/project_state.h"
#include "display/core_columns_paint.h"
#include "display/core_columns_steps.h"
#include "display/display_state.h"
#include "display/form_view.h"
#include "duo/depth_map.h"
#include "events/event_state.h"
#include "forms/frm_main.h"
#include "runtime/number_text.h"
#include "runtime/variant.h"

namespace ostraline {
namespace {

constexpr long kVarvePink = RGB(255, 180, 180);

long ClassColour(const std::string& ageClass) {
  if (ageClass == "C1") return RGB(100, 100, 255);
  if (ageClass == "C2") return RGB(255, 100, 100);
  if (ageClass == "C3") return RGB(100, 255, 100);
  if (ageClass == "C4" || ageClass == "C5") return RGB(128, 128, 128);
  return kDarkGrey;
}

// The number of the bore hole of that name, or 0.
int HoleNamed(BoreHoleSet& set, const std::string& name) {
  for (int hole = 1; hole <= 4; ++hole) {
    if (set.HoleName(hole) == name) return hole;
  }
  return 0;
}

Single AgeDepth(BoreHoleSet& set, long row) {
  if (OnMasterScale(set)) return DuoToMaster(CellNumber(set.AgeModel(5, row)));
  return CellNumber(set.AgeModel(AgeDepthColumn, row));
}

Single ReferenceDepth(BoreHoleSet& set, long row) {
  const Variant& cell = set.AgeReferenceRows(5, row);
  const Single depth = cell.IsNumber() ? AsSingle(cell.ToDouble()) : CellNumber(cell.ToText());
  return OnMasterScale(set) ? DuoToMaster(depth) : depth;
}

// Plots the rows of a depth-ordered table that can show in the view: from
// the last row above the view's top (or the first row) down to the first row
// at or below its bottom. The walk uses the shared counter J.
template <class DepthOf, class Plot>
void WalkViewWindow(long count, const PictureBox& view, DepthOf depthOf, Plot plot) {
  const float top = view.ScaleTop;
  const float bottom = view.ScaleTop + view.ScaleHeight;
  long first = 1;
  for (J = 1; J <= count; ++J) {
    if (depthOf(J) < top) first = J;
  }
  for (J = first; J <= count; ++J) {
    const Single depth = depthOf(J);
    plot(J, depth);
    if (depth >= bottom) break;
  }
}

void PlaceLabel(PictureBox& composite, Single depth) {
  composite.CurrentX = 1.1f;
  composite.CurrentY = depth - composite.ScaleHeight * composite.FontSize / 700.0f;
}

}  // namespace

void ChooseAgeDepthColumn(const BoreHoleSet& set) {
  const Integer scale = ColumnScaleOf(set);
  if (scale == 1) AgeDepthColumn = 5;
  if (scale == 2) AgeDepthColumn = 11;
  if (scale == 3) AgeDepthColumn = 7;
}

void PaintVarveStretches(BoreHoleSet& set, MainForm& form) {
  if (!set.AgeModelLoaded) return;
  PictureBox& composite = form.BoreHole(0);
  const float top = composite.ScaleTop;
  const float bottom = composite.ScaleTop + composite.ScaleHeight;
  long first = -9999;
  long last = -9999;
  for (J = 2; J <= set.AgeModelCount; ++J) {
    const bool counted = set.AgeModel(0, J) == "V";
    const bool countedBefore = set.AgeModel(0, J - 1) == "V";
    if (counted && !countedBefore) first = J;
    if (countedBefore && !counted) last = J - 1;
    if (counted && J == set.AgeModelCount) last = J;
    if (first == -9999 || last == -9999) continue;
    if (AgeDepth(set, last) > top && bottom > AgeDepth(set, first)) {
      composite.LineBF(0, AgeDepth(set, first), 0.8f, AgeDepth(set, last), kVarvePink);
    }
    first = -9999;
    last = -9999;
  }
}

void PlotAgeControlPoints(BoreHoleSet& set, MainForm& form) {
  if (!set.AgeModelLoaded) return;
  PictureBox& composite = form.BoreHole(0);
  const bool labels = !form.mnuSize(1).Checked && form.mnuShowLabCodes.Checked;
  // A row that names no bore hole and no "---" keeps the hole of the row before.
  int own = 0;
  WalkViewWindow(
      set.AgeModelCount, composite, [&](long row) { return AgeDepth(set, row); },
      [&](long row, Single depth) {
        const std::string& ageClass = set.AgeModel(0, row);
        if (ageClass == "V") return;
        const std::string& hole = set.AgeModel(2, row);
        if (hole == "---") own = 0;
        if (const int named = HoleNamed(set, hole); named != 0) own = named;
        const long colour = ClassColour(ageClass);
        composite.FillColor = colour;
        composite.Circle(0.6f, depth, 0.3f, colour);
        if (own != 0) {
          form.BoreHole(own).FillColor = colour;
          form.BoreHole(own).Circle(0.6f, depth, 0.35f, colour);
        }
        if (labels) {
          PlaceLabel(composite, depth);
          composite.Print(set.AgeModel(1, row));
        }
      });
}

// Reference rows take no part in any age; they are shown for comparison.
void PlotReferenceRows(BoreHoleSet& set, MainForm& form) {
  if (!set.AgeModelLoaded || set.AgeReferenceCount < 1) return;
  PictureBox& composite = form.BoreHole(0);
  const bool labels = !form.mnuSize(1).Checked;
  WalkViewWindow(
      set.AgeReferenceCount, composite, [&](long row) { return ReferenceDepth(set, row); },
      [&](long row, Single depth) {
        if (set.AgeReferenceRows(0, row).ToText() == "R") {
          composite.FillColor = kDarkGrey;
          composite.Circle(0.6f, depth, 0.2f, kDarkGrey);
          if (const int hole = HoleNamed(set, set.AgeReferenceRows(2, row).ToText()); hole != 0) {
            form.BoreHole(hole).FillColor = kDarkGrey;
            form.BoreHole(hole).Circle(0.6f, depth, 0.25f, kDarkGrey);
          }
        }
        if (labels) {
          PlaceLabel(composite, depth);
          const Variant& label = set.AgeReferenceRows(1, row);
          composite.Print(label.IsNumber() ? PrintedNumber(label.ToText()) : label.ToText());
        }
      });
}

}  // namespace ostraline
