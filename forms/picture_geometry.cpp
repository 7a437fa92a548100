#include "forms/picture_geometry.h"

#include <algorithm>
#include <cmath>

namespace ostraline {

double TwipsToPixels(float twips) {
  // In single precision, as the operations are recorded, so that a pixel
  // edge computes the same wherever it is asked for.
  return twips / kTwipsPerPixel;
}

int PicturePixels(float twips, double devicePixelRatio) {
  return std::max(1, static_cast<int>(std::ceil(TwipsToPixels(twips) * devicePixelRatio)));
}

double PixelGrid::Edge(double logical) const {
  return std::floor(logical * ratio_) / ratio_;
}

double PixelGrid::Nearest(double logical) const {
  return std::round(logical * ratio_) / ratio_;
}

double PixelGrid::Centre(double logical) const {
  return (std::floor(logical * ratio_) + 0.5) / ratio_;
}

int PixelGrid::PenPixels(int width) const {
  return std::max(1, static_cast<int>(std::lround(width * ratio_)));
}

std::pair<double, double> PixelGrid::Span(double from, double to, int pen) const {
  const double first = std::floor(std::min(from, to) * ratio_) - (pen - 1) / 2;
  const double last = std::floor(std::max(from, to) * ratio_) + pen / 2 + 1;
  return {first / ratio_, last / ratio_};
}

namespace {

PixelBounds Covered(std::pair<double, double> xs, std::pair<double, double> ys) {
  return {xs.first, ys.first, xs.second, ys.second};
}

}  // namespace

PixelBounds PixelGrid::Box(const DrawOp& op) const {
  return Covered(Span(TwipsToPixels(op.x1), TwipsToPixels(op.x2), 1),
                 Span(TwipsToPixels(op.y1), TwipsToPixels(op.y2), 1));
}

std::optional<PixelBounds> PixelGrid::StraightLine(const DrawOp& op) const {
  const double x1 = TwipsToPixels(op.x1);
  const double y1 = TwipsToPixels(op.y1);
  const double x2 = TwipsToPixels(op.x2);
  const double y2 = TwipsToPixels(op.y2);
  if (Edge(x1) != Edge(x2) && Edge(y1) != Edge(y2)) return std::nullopt;
  const int pen = PenPixels(op.drawWidth);
  return Covered(Span(x1, x2, pen), Span(y1, y2, pen));
}

std::pair<PixelPoint, PixelPoint> PixelGrid::LineEnds(const DrawOp& op) const {
  return {{Centre(TwipsToPixels(op.x1)), Centre(TwipsToPixels(op.y1))},
          {Centre(TwipsToPixels(op.x2)), Centre(TwipsToPixels(op.y2))}};
}

PixelPoint PixelGrid::CircleCentre(const DrawOp& op) const {
  return {Centre(TwipsToPixels(op.x1)), Centre(TwipsToPixels(op.y1))};
}

PixelPoint PixelGrid::TextOrigin(const DrawOp& op, double ascent) const {
  return {Edge(TwipsToPixels(op.x1)), Nearest(Edge(TwipsToPixels(op.y1)) + ascent)};
}

}  // namespace ostraline
