#pragma once
// Pictures decoded from files, kept by path: the platform decodes a file when
// it is loaded, and painting a Raster operation finds the pixels here.
#include <QImage>
#include <string>

namespace ostraline {

// The decoded picture, read from the file at the first request; a null image
// when the file cannot be read as a picture.
QImage DecodedPicture(const std::string& path);

}  // namespace ostraline
