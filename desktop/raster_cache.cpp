#include "desktop/raster_cache.h"

#include <QCache>
#include <QFile>
#include <QImageReader>

namespace ostraline {
namespace {

// Photos of whole sections are large: keep a bounded set, costed in KiB.
constexpr qsizetype kCacheKiB = 512 * 1024;

QCache<QString, QImage>& Cache() {
  static QCache<QString, QImage> cache(kCacheKiB);
  return cache;
}

}  // namespace

QImage DecodedPicture(const std::string& path) {
  if (path.empty()) return QImage();
  const QString name = QFile::decodeName(QByteArray::fromStdString(path));
  if (const QImage* cached = Cache().object(name)) return *cached;
  QImageReader reader(name);
  const QImage image = reader.read();
  if (!image.isNull()) {
    Cache().insert(name, new QImage(image), image.sizeInBytes() / 1024 + 1);
  }
  return image;
}

}  // namespace ostraline
