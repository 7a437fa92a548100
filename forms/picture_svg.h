#pragma once
// A picture as a standalone SVG document: the vector copy that goes to the
// clipboard beside the bitmap, so that lines and text stay sharp when pasted
// into a drawing or office program. It replays the same operations on the
// same pixel grid as the bitmap, one SVG unit to a logical pixel.
#include <string>

#include "forms/canvas.h"

namespace ostraline {

// Pictures placed inside the picture (core photos) are left out: their
// pixels are decoded by the desktop alone.
std::string PictureSvg(const Picture& picture);

}  // namespace ostraline
