#include "desktop/picture_painter.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "desktop/conversions.h"
#include "desktop/fonts.h"
#include "desktop/raster_cache.h"

namespace ostraline {
namespace {

qreal Logical(float twips) {
  return twips / kTwipsPerPixel;
}

// Logical coordinates snapped to the device pixels of the painter's device.
class PixelGrid {
 public:
  explicit PixelGrid(const QPainter& painter) : ratio_(painter.device()->devicePixelRatioF()) {}

  // The edge before the device pixel that holds a coordinate.
  qreal Edge(qreal logical) const { return std::floor(logical * ratio_) / ratio_; }
  // The nearest device pixel edge.
  qreal Nearest(qreal logical) const { return std::round(logical * ratio_) / ratio_; }
  // The centre of the pixel that holds a coordinate.
  qreal Centre(qreal logical) const { return (std::floor(logical * ratio_) + 0.5) / ratio_; }
  // A pen of a width in logical pixels, at least one device pixel wide.
  int PenPixels(int width) const { return std::max(1, qRound(width * ratio_)); }

  // The pixels from the one that holds `from` to the one that holds `to`,
  // widened by a pen of `pen` device pixels: [first edge, last edge).
  std::pair<qreal, qreal> Span(qreal from, qreal to, int pen) const {
    const qreal first = std::floor(std::min(from, to) * ratio_) - (pen - 1) / 2;
    const qreal last = std::floor(std::max(from, to) * ratio_) + pen / 2 + 1;
    return {first / ratio_, last / ratio_};
  }

 private:
  qreal ratio_;
};

void FillSpans(QPainter& painter, std::pair<qreal, qreal> xs, std::pair<qreal, qreal> ys,
               const QColor& colour) {
  painter.fillRect(QRectF(QPointF(xs.first, ys.first), QPointF(xs.second, ys.second)), colour);
}

void PaintBox(QPainter& painter, const PixelGrid& grid, const DrawOp& op) {
  FillSpans(painter, grid.Span(Logical(op.x1), Logical(op.x2), 1),
            grid.Span(Logical(op.y1), Logical(op.y2), 1), ToQColor(op.fillColour));
}

void PaintLine(QPainter& painter, const PixelGrid& grid, const DrawOp& op) {
  const qreal x1 = Logical(op.x1);
  const qreal y1 = Logical(op.y1);
  const qreal x2 = Logical(op.x2);
  const qreal y2 = Logical(op.y2);
  const int pen = grid.PenPixels(op.drawWidth);
  if (grid.Edge(x1) == grid.Edge(x2) || grid.Edge(y1) == grid.Edge(y2)) {
    // Level and plumb lines, and the dot of equal end points, are exact pixels.
    FillSpans(painter, grid.Span(x1, x2, pen), grid.Span(y1, y2, pen), ToQColor(op.colour));
    return;
  }
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing, true);
  painter.setPen(QPen(ToQColor(op.colour), op.drawWidth, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(QPointF(grid.Centre(x1), grid.Centre(y1)),
                   QPointF(grid.Centre(x2), grid.Centre(y2)));
  painter.restore();
}

void PaintCircle(QPainter& painter, const PixelGrid& grid, const DrawOp& op) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing, true);
  painter.setPen(QPen(ToQColor(op.colour), op.drawWidth));
  painter.setBrush(op.filled ? QBrush(ToQColor(op.fillColour)) : QBrush(Qt::NoBrush));
  const qreal radius = Logical(op.radius);
  painter.drawEllipse(QPointF(grid.Centre(Logical(op.x1)), grid.Centre(Logical(op.y1))), radius,
                      radius);
  painter.restore();
}

void PaintText(QPainter& painter, const PixelGrid& grid, const DrawOp& op) {
  const QFont font = ProgramFont(op.fontSize, *painter.device());
  const QFontMetricsF metrics(font, painter.device());
  painter.save();
  painter.setFont(font);
  painter.setPen(ToQColor(op.colour));
  // Print places the text by its top left corner.
  const qreal baseline = grid.Nearest(grid.Edge(Logical(op.y1)) + metrics.ascent());
  painter.drawText(QPointF(grid.Edge(Logical(op.x1)), baseline), ToQString(op.text));
  painter.restore();
}

void PaintRaster(QPainter& painter, const PixelGrid& grid, const DrawOp& op) {
  if (!op.raster) return;
  const QImage image = DecodedPicture(op.raster->path);
  if (image.isNull()) return;
  const auto xs = grid.Span(Logical(op.x1), Logical(op.x2), 1);
  const auto ys = grid.Span(Logical(op.y1), Logical(op.y2), 1);
  painter.save();
  painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
  painter.drawImage(QRectF(QPointF(xs.first, ys.first), QPointF(xs.second, ys.second)), image);
  painter.restore();
}

}  // namespace

void PaintOps(QPainter& painter, const std::vector<DrawOp>& ops) {
  const PixelGrid grid(painter);
  painter.setRenderHint(QPainter::Antialiasing, false);
  for (const DrawOp& op : ops) {
    switch (op.kind) {
      case DrawKind::Box:
        PaintBox(painter, grid, op);
        break;
      case DrawKind::Line:
        PaintLine(painter, grid, op);
        break;
      case DrawKind::Circle:
        PaintCircle(painter, grid, op);
        break;
      case DrawKind::Text:
        PaintText(painter, grid, op);
        break;
      case DrawKind::Raster:
        PaintRaster(painter, grid, op);
        break;
    }
  }
}

void PaintSurface(QPainter& painter, const PictureBox& box) {
  const Picture& picture = box.GetPicture();
  const long back = picture.empty ? box.BackColor.Get() : picture.backColour;
  // A pixel more each way: a widget's inner area is rounded on its own.
  painter.fillRect(QRectF(0, 0, Logical(box.InnerWidth()) + 1, Logical(box.InnerHeight()) + 1),
                   ToQColor(back));
  if (!box.WorkingCoversBase()) PaintOps(painter, box.BaseOps());
  PaintOps(painter, box.WorkingOps());
}

QImage RenderPicture(const Picture& picture, qreal devicePixelRatio) {
  const int width =
      std::max(1, static_cast<int>(std::ceil(Logical(picture.width) * devicePixelRatio)));
  const int height =
      std::max(1, static_cast<int>(std::ceil(Logical(picture.height) * devicePixelRatio)));
  QImage image(width, height, QImage::Format_RGB32);
  image.setDevicePixelRatio(devicePixelRatio);
  // 96 dots to the inch, so that points mean what they mean on the screen.
  image.setDotsPerMeterX(3780);
  image.setDotsPerMeterY(3780);
  image.fill(ToQColor(picture.backColour));
  QPainter painter(&image);
  PaintOps(painter, picture.ops);
  return image;
}

}  // namespace ostraline
