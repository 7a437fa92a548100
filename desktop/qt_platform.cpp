#include "desktop/qt_platform.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QCursor>
#include <QGuiApplication>
#include <QMimeData>
#include <QScreen>

#include "desktop/conversions.h"
#include "desktop/picture_painter.h"
#include "desktop/raster_cache.h"
#include "forms/canvas.h"
#include "forms/picture_svg.h"

namespace ostraline {
namespace {

Qt::CursorShape CursorOf(int pointer) {
  switch (pointer) {
    case 2:
      return Qt::CrossCursor;
    case 3:
      return Qt::IBeamCursor;
    case 11:
      return Qt::WaitCursor;
    case 13:
      return Qt::BusyCursor;
    default:
      return Qt::ArrowCursor;
  }
}

QSize ScreenPixels() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  return screen != nullptr ? screen->geometry().size() : QSize(1920, 1080);
}

}  // namespace

std::string QtPlatform::OpenFileName(const FileDialogRequest& request) {
  return dialogs_->OpenFileName(request);
}

std::string QtPlatform::SaveFileName(const FileDialogRequest& request) {
  return dialogs_->SaveFileName(request);
}

MsgAnswer QtPlatform::MessageBox(const std::string& text, const std::string& title, MsgIcon icon,
                                 MsgButtons buttons) {
  return dialogs_->MessageBox(text, title, icon, buttons);
}

void QtPlatform::ClipboardClear() {
  QGuiApplication::clipboard()->clear();
}

// The bitmap for programs that paste pixels, and the same operations as
// vectors for drawing and office programs, which keep lines and text sharp.
void QtPlatform::ClipboardSetPicture(const Picture& picture) {
  auto* data = new QMimeData;
  data->setImageData(RenderPicture(picture));
  data->setData(QStringLiteral("image/svg+xml"), QByteArray::fromStdString(PictureSvg(picture)));
  QGuiApplication::clipboard()->setMimeData(data);
}

std::shared_ptr<const RasterImage> QtPlatform::LoadPicture(const std::string& path) {
  const QImage image = DecodedPicture(path);
  if (image.isNull()) return nullptr;
  auto raster = std::make_shared<RasterImage>();
  raster->path = path;
  raster->widthPixels = image.width();
  raster->heightPixels = image.height();
  return raster;
}

void QtPlatform::SetMousePointer(int pointer) {
  pointer_ = pointer;
  // The screen's pointer overrides every window's own until it is set back to 0.
  if (pointer == 0) {
    while (QGuiApplication::overrideCursor() != nullptr) QGuiApplication::restoreOverrideCursor();
  } else if (QGuiApplication::overrideCursor() != nullptr) {
    QGuiApplication::changeOverrideCursor(QCursor(CursorOf(pointer)));
  } else {
    QGuiApplication::setOverrideCursor(QCursor(CursorOf(pointer)));
  }
}

float QtPlatform::ScreenWidth() const {
  return ToTwips(ScreenPixels().width());
}

float QtPlatform::ScreenHeight() const {
  return ToTwips(ScreenPixels().height());
}

void QtPlatform::Quit() {
  // The handler that asked runs to its end first.
  QMetaObject::invokeMethod(QCoreApplication::instance(), &QCoreApplication::quit,
                            Qt::QueuedConnection);
}

}  // namespace ostraline
