#include "desktop/picture_painter.h"

#include <QFontMetricsF>
#include <QPainter>

#include "desktop/conversions.h"
#include "desktop/fonts.h"
#include "desktop/raster_cache.h"
#include "forms/picture_geometry.h"

namespace ostraline {
namespace {

QRectF ToQRectF(const PixelBounds& rect) {
  return QRectF(QPointF(rect.left, rect.top), QPointF(rect.right, rect.bottom));
}

QPointF ToQPointF(const PixelPoint& point) {
  return QPointF(point.x, point.y);
}

void PaintBox(QPainter& painter, const PixelGrid& grid, const DrawOp& op) {
  painter.fillRect(ToQRectF(grid.Box(op)), ToQColor(op.fillColour));
}

void PaintLine(QPainter& painter, const PixelGrid& grid, const DrawOp& op) {
  if (const std::optional<PixelBounds> pixels = grid.StraightLine(op)) {
    painter.fillRect(ToQRectF(*pixels), ToQColor(op.colour));
    return;
  }
  const auto [from, to] = grid.LineEnds(op);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing, true);
  painter.setPen(QPen(ToQColor(op.colour), op.drawWidth, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(ToQPointF(from), ToQPointF(to));
  painter.restore();
}

void PaintCircle(QPainter& painter, const PixelGrid& grid, const DrawOp& op) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing, true);
  painter.setPen(QPen(ToQColor(op.colour), op.drawWidth));
  painter.setBrush(op.filled ? QBrush(ToQColor(op.fillColour)) : QBrush(Qt::NoBrush));
  const qreal radius = TwipsToPixels(op.radius);
  painter.drawEllipse(ToQPointF(grid.CircleCentre(op)), radius, radius);
  painter.restore();
}

void PaintText(QPainter& painter, const PixelGrid& grid, const DrawOp& op) {
  const QFont font = ProgramFont(op.fontSize, *painter.device());
  const QFontMetricsF metrics(font, painter.device());
  painter.save();
  painter.setFont(font);
  painter.setPen(ToQColor(op.colour));
  painter.drawText(ToQPointF(grid.TextOrigin(op, metrics.ascent())), ToQString(op.text));
  painter.restore();
}

void PaintRaster(QPainter& painter, const PixelGrid& grid, const DrawOp& op) {
  if (!op.raster) return;
  const QImage image = DecodedPicture(op.raster->path);
  if (image.isNull()) return;
  painter.save();
  painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
  painter.drawImage(ToQRectF(grid.Box(op)), image);
  painter.restore();
}

}  // namespace

void PaintOps(QPainter& painter, const std::vector<DrawOp>& ops) {
  const PixelGrid grid(painter.device()->devicePixelRatioF());
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
  painter.fillRect(
      QRectF(0, 0, TwipsToPixels(box.InnerWidth()) + 1, TwipsToPixels(box.InnerHeight()) + 1),
      ToQColor(back));
  if (!box.WorkingCoversBase()) PaintOps(painter, box.BaseOps());
  PaintOps(painter, box.WorkingOps());
}

QImage RenderPicture(const Picture& picture, qreal devicePixelRatio) {
  QImage image(PicturePixels(picture.width, devicePixelRatio),
               PicturePixels(picture.height, devicePixelRatio), QImage::Format_RGB32);
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
