#include "display/scale_strip.h"
#include "display/form_view.h"

#include "core/project_state.h"
#include "display/age_ticks.h"
#include "display/core_columns_paint.h"
#include "display/display_state.h"
#include "events/age_lookup.h"
#include "events/event_free_depth.h"
#include "events/event_state.h"
#include "forms/frm_main.h"
#include "forms/platform.h"
#include "runtime/number_text.h"

namespace ostraline {
namespace {

constexpr int kBusyPointer = 11;
constexpr long kVarveBand = RGB(255, 150, 150);

float ScaleBottom(const PictureBox& strip) {
  return strip.ScaleTop + strip.ScaleHeight;
}

void Tick(PictureBox& strip, float fromX, float y) {
  strip.Line(fromX, y, kStripAxis, y, kBlack);
}

// A tick with its number to the left, a little above it.
template <class Number>
void LabelledTick(PictureBox& strip, float fromX, float y, float textX, Number number) {
  Tick(strip, fromX, y);
  strip.CurrentX = textX;
  strip.CurrentY = AsSingle(y - ViewSpanOf(strip) * 0.01);
  strip.Print(number);
}

void DrawDepthTicks(PictureBox& strip, int from, int to, float fromX, float textX) {
  for (int depth = from; depth <= to; depth += 100) {
    LabelledTick(strip, fromX, static_cast<float>(depth), textX, depth);
  }
}

// The depths are printed straight on the strip's scale, so they read in the
// selected scale's units, and they end at 10000.
void DrawDepthScale(PictureBox& strip) {
  strip.Line(kStripAxis, 0, kStripAxis, ScaleBottom(strip), kBlack);
  if (LabelFontSize > 1) {
    LabelledTick(strip, 7, 0, 4.8f, 0);
    DrawDepthTicks(strip, 100, 900, 7, 2.8f);
    DrawDepthTicks(strip, 1000, 10000, 7, 1.8f);
    if (ViewSpanOf(strip) < 2000) {
      LabelledTick(strip, 8, 50, 3.8f, 50);
      DrawDepthTicks(strip, 150, 950, 8, 2.8f);
      DrawDepthTicks(strip, 1050, 9950, 8, 1.8f);
    }
  }
  for (int depth = 10; depth <= 9990; depth += 10) Tick(strip, 8.5f, static_cast<float>(depth));
}

struct LabelledAges {
  long from;
  long to;
  float textX;
  double divisor;
  // The loop is left out when both ends of the view lie beyond these.
  double skipTop;
  double skipEnd;
};

constexpr LabelledAges kLabelledAges[] = {
    {1000, 9000, 2.8f, 1, 9100, 9100},
    {10000, 99000, 1.8f, 1, 9900, 99100},
    {100000, 999000, 3.8f, 1000, 99900, 999100},
};

void DrawLabelledAges(BoreHoleSet& set, PictureBox& strip, double ageTop, double ageEnd) {
  for (const LabelledAges& ages : kLabelledAges) {
    if (ageTop >= ages.skipTop && ageEnd >= ages.skipEnd) continue;
    for (I = ages.from; I <= ages.to; I += 1000) {
      if (!(ageTop < I && I <= ageEnd)) continue;
      const float y = AgePosition(set, I);
      if (ages.divisor == 1) {
        LabelledTick(strip, 8, y, ages.textX, static_cast<int>(I));
      } else {
        LabelledTick(strip, 8, y, ages.textX, I / ages.divisor);
      }
    }
  }
}

void DrawAgeScale(BoreHoleSet& set, PictureBox& strip, double ageTop, double ageEnd) {
  const float zero = AgePosition(set, 0);
  strip.Line(kStripAxis, zero, kStripAxis, ScaleBottom(strip), kBlack);
  if (LabelFontSize < 2) return;
  if (ageTop < 100) LabelledTick(strip, 8, zero, 6.2f, 0);
  DrawLabelledAges(set, strip, ageTop, ageEnd);
  DrawAgeTicks(set, strip, Round(ageTop / 1000, 0) * 1000 - 500, Round(ageEnd / 1000, 0) * 1000,
               1000, 8.1f);
  DrawAgeTicks(set, strip, Round(ageTop / 100, 0) * 100, Round(ageEnd / 100, 0) * 100, 100, 8.55f);
}

// The fixed horizon's mark: a green line and dot at the middle of the strip.
void MarkFixedHorizon(PictureBox& strip) {
  const float middle = strip.ScaleTop + strip.ScaleHeight / 2;
  strip.Line(7.5f, middle, 9.5f, middle, kHorizonGreen);
  strip.FillStyle = 0;
  strip.FillColor = kHorizonGreen;
  strip.Circle(7.25f, middle, 0.25f, kHorizonGreen);
}

}  // namespace

void DrawBH5(BoreHoleSet& set) {
  MainForm& form = MainFormOf(set);
  PictureBox& strip = form.BoreHole(5);
  const PictureBox& composite = form.BoreHole(0);
  // Every tick of the age scale is a lookup in the age-depth model.
  if (form.mnuAge.Checked) Screen.SetMousePointer(kBusyPointer);
  strip.ScaleHeight = AsSingle(Round(ViewSpanOf(set) * 1.007, 0) + 0.14);
  strip.ScaleTop = composite.ScaleTop - (strip.ScaleHeight - composite.ScaleHeight) / 2;
  strip.FontSize = static_cast<float>(LabelFontSize);
  strip.LineBF(strip.ScaleLeft, strip.ScaleTop, strip.ScaleLeft + strip.ScaleWidth,
               ScaleBottom(strip), strip.BackColor);
  const bool ageScale = !form.mnuDepth.Checked;
  double ageTop = 0;
  double ageEnd = 0;
  if (ageScale) {
    ageTop = GetAgeFromCD(set, composite.ScaleTop).ToDouble();
    ageEnd = GetAgeFromCD(set, composite.ScaleTop + composite.ScaleHeight).ToDouble();
  }
  if (set.VarveCountsLoaded)
    strip.LineBF(8.2f, set.VarveTopCD, kStripAxis, set.VarveBottomCD, kVarveBand);
  if (form.mnuHorizontalBH.Checked) MarkFixedHorizon(strip);
  if (ageScale) {
    DrawAgeScale(set, strip, ageTop, ageEnd);
  } else {
    DrawDepthScale(strip);
  }
  Screen.SetMousePointer(0);
}

}  // namespace ostraline
