#pragma once
// The one QPainter replayer of recorded drawing operations: the window, the
// clipboard's bitmap and screenshots all paint through it, on the pixel grid
// that the clipboard's vector copy shares. Operations are in twips from the
// surface's top left corner; the painter's origin must be that corner, on a
// whole logical pixel.
#include <QImage>
#include <vector>

#include "forms/canvas.h"

class QPainter;

namespace ostraline {

// Paints the operations in order, later ones over earlier ones. Boxes and
// level or plumb lines land on whole device pixels; circles, slanted lines
// and text are smoothed.
void PaintOps(QPainter& painter, const std::vector<DrawOp>& ops);

// What a picture box shows: its background, the committed picture unless the
// working layer covers it, and the working layer.
void PaintSurface(QPainter& painter, const PictureBox& box);

// A picture as an image of its own size, for the clipboard.
QImage RenderPicture(const Picture& picture, qreal devicePixelRatio = 1);

}  // namespace ostraline
