// The desktop's platform services: filters, pictures from files, the
// clipboard and the screen's pointer.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QCursor>
#include <QFileDialog>
#include <QGuiApplication>
#include <QImage>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>

#include "desktop/dialogs.h"
#include "desktop/file_filter.h"
#include "desktop/picture_painter.h"
#include "desktop/qt_platform.h"
#include "forms/canvas.h"

namespace ostraline {
namespace {

TEST(QtPlatformTest, FiltersPairDescriptionsWithPatterns) {
  EXPECT_EQ(QtFileFilter("DataFile(*.csv)|*.csv|All(*.*)|*.*"),
            QStringLiteral("DataFile(*.csv) (*.csv);;All(*.*) (*)"));
  EXPECT_EQ(QtFileFilter("Pictures|*.jpg; *.bmp"), QStringLiteral("Pictures (*.jpg *.bmp)"));
  EXPECT_EQ(QtFileFilter(""), QString());
  EXPECT_EQ(QtFileFilter("Text|"), QStringLiteral("Text (*)"));
}

TEST(QtPlatformTest, DialogsAreQtsOwn) {
  QtDialogs dialogs;
  QTimer::singleShot(0, [] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->icon(), QMessageBox::Warning);
    EXPECT_EQ(box->windowTitle(), QStringLiteral("Error"));
    EXPECT_EQ(box->text(), QStringLiteral("File format error."));
    box->button(QMessageBox::No)->click();
  });
  EXPECT_EQ(
      dialogs.MessageBox("File format error.", "Error", MsgIcon::Exclamation, MsgButtons::YesNo),
      MsgAnswer::No);

  QTimer::singleShot(0, [] {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->nameFilters(), QStringList{QStringLiteral("DataFile(*.csv) (*.csv)")});
    dialog->reject();
  });
  // Cancelling gives no name.
  EXPECT_EQ(dialogs.OpenFileName({"DataFile(*.csv)|*.csv", "", "", false}), "");
}

TEST(QtPlatformTest, LoadedPicturesPaintAsRasterOperations) {
  QTemporaryDir folder;
  ASSERT_TRUE(folder.isValid());
  QImage photo(4, 2, QImage::Format_RGB32);
  photo.fill(QColor(0, 128, 255));
  const QString path = folder.filePath(QStringLiteral("core.bmp"));
  ASSERT_TRUE(photo.save(path, "BMP"));

  QtPlatform platform;
  EXPECT_EQ(platform.LoadPicture(folder.filePath(QStringLiteral("missing.jpg")).toStdString()),
            nullptr);
  const std::shared_ptr<const RasterImage> raster = platform.LoadPicture(path.toStdString());
  ASSERT_NE(raster, nullptr);
  EXPECT_EQ(raster->widthPixels, 4);
  EXPECT_EQ(raster->heightPixels, 2);

  Picture picture;
  picture.width = 600;
  picture.height = 300;
  DrawOp op;
  op.kind = DrawKind::Raster;
  op.x2 = 600;
  op.y2 = 300;
  op.raster = raster;
  picture.ops.push_back(op);
  // The clipboard takes the same rendering as the screen.
  platform.ClipboardClear();
  platform.ClipboardSetPicture(picture);
  const QImage copied = QGuiApplication::clipboard()->image();
  EXPECT_EQ(copied.size(), QSize(40, 20));
  EXPECT_EQ(copied.pixelColor(20, 10), QColor(0, 128, 255));
}

TEST(QtPlatformTest, PointerOverridesTheCursorUntilSetBack) {
  QtPlatform platform;
  platform.SetMousePointer(11);
  ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
  EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
  platform.SetMousePointer(2);
  EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::CrossCursor);
  EXPECT_EQ(platform.MousePointer(), 2);
  platform.SetMousePointer(0);
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

}  // namespace
}  // namespace ostraline
