#pragma once
// Where recorded drawing operations land on a grid of pixels: the one set of
// placement rules for every replayer, the bitmap and the vector copy alike.
// Boxes and level or plumb lines cover whole device pixels; slanted lines,
// circles and text are anchored on the pixel that holds their twips.
#include <optional>
#include <utility>

#include "forms/canvas.h"

namespace ostraline {

struct PixelPoint {
  double x = 0;
  double y = 0;
};

// [left, right) by [top, bottom), in logical pixels.
struct PixelBounds {
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;
};

// 1440 twips to the inch at 96 logical pixels to the inch.
inline constexpr float kTwipsPerPixel = 15.0f;
double TwipsToPixels(float twips);

// The whole device pixels of an image that holds a picture's width or height.
int PicturePixels(float twips, double devicePixelRatio);

// Logical pixels snapped to the device pixels of a device of this ratio.
class PixelGrid {
 public:
  explicit PixelGrid(double devicePixelRatio = 1) : ratio_(devicePixelRatio) {}

  // The edge before the device pixel that holds a coordinate.
  double Edge(double logical) const;
  // The nearest device pixel edge.
  double Nearest(double logical) const;
  // The centre of the pixel that holds a coordinate.
  double Centre(double logical) const;
  // A pen of a width in logical pixels, at least one device pixel wide.
  int PenPixels(int width) const;
  // The pixels from the one that holds `from` to the one that holds `to`,
  // widened by a pen of `pen` device pixels: [first edge, last edge).
  std::pair<double, double> Span(double from, double to, int pen) const;

  // A box, or a picture placed in one: the pixels from corner to corner.
  PixelBounds Box(const DrawOp& op) const;
  // A level or plumb line, or the dot of equal end points: the pixels its
  // pen covers. Nothing for a slanted line.
  std::optional<PixelBounds> StraightLine(const DrawOp& op) const;
  // A slanted line runs between the centres of its end pixels.
  std::pair<PixelPoint, PixelPoint> LineEnds(const DrawOp& op) const;
  PixelPoint CircleCentre(const DrawOp& op) const;
  // Print places text by its top left corner: where the baseline starts,
  // for a font whose ascent is `ascent` logical pixels.
  PixelPoint TextOrigin(const DrawOp& op, double ascent) const;

 private:
  double ratio_;
};

}  // namespace ostraline
