// The desktop's platform services: filters, pictures from files, the
// clipboard and the screen's pointer; and the replayer of the drawn
// operations: crisp boxes and level lines, smoothed circles, text by its top
// left corner, at more than one pixel ratio.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QCursor>
#include <QFileDialog>
#include <QGuiApplication>
#include <QImage>
#include <QMessageBox>
#include <QPainter>
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

  Picture picture{.width = 600, .height = 300};
  picture.ops.push_back({.kind = DrawKind::Raster, .x2 = 600, .y2 = 300, .raster = raster});
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

constexpr long kRed = RGB(255, 0, 0);

// A white picture of 100 by 100 pixels.
Picture Blank() {
  return {.width = 1500, .height = 1500, .backColour = kWhite, .empty = false};
}

DrawOp Op(DrawKind kind, float x1, float y1, float x2, float y2, long colour) {
  DrawOp op{.kind = kind, .x1 = x1, .y1 = y1, .x2 = x2, .y2 = y2, .colour = colour};
  op.filled = kind == DrawKind::Box;
  op.fillColour = colour;
  return op;
}

// The box around the pixels for which `is` holds, and their count.
template <class Is>
std::pair<QRect, int> Pixels(const QImage& image, Is is) {
  std::pair<QRect, int> found;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (!is(image.pixelColor(x, y))) continue;
      found.first |= QRect(x, y, 1, 1);
      ++found.second;
    }
  }
  return found;
}

// The pixels that are neither of the two colours: smoothing or blur.
int Blended(const QImage& image, QColor a, QColor b) {
  return Pixels(image, [&](QColor c) { return c != a && c != b; }).second;
}

QRect Extent(const QImage& image, QColor colour) {
  return Pixels(image, [&](QColor c) { return c == colour; }).first;
}

TEST(PicturePainter, BoxesAreCrispAtEveryPixelRatio) {
  Picture picture = Blank();
  // 10 to 49.83 pixels across, 10 to 40 down.
  picture.ops.push_back(Op(DrawKind::Box, 150, 150, 747.5f, 600, kRed));
  for (const int ratio : {1, 2}) {
    const QImage image = RenderPicture(picture, ratio);
    EXPECT_EQ(image.size(), QSize(100, 100) * ratio);
    EXPECT_EQ(Blended(image, Qt::white, Qt::red), 0) << ratio;
    EXPECT_EQ(Extent(image, Qt::red), ratio == 1 ? QRect(QPoint(10, 10), QPoint(49, 40))
                                                 : QRect(QPoint(20, 20), QPoint(99, 80)));
  }
}

TEST(PicturePainter, LevelLinesAndDotsArePixelExact) {
  Picture picture = Blank();
  picture.ops.push_back(Op(DrawKind::Line, 0, 300, 1500, 300, kRed));
  picture.ops.push_back(Op(DrawKind::Line, 750, 900, 750, 900, kBlack));
  const QImage image = RenderPicture(picture, 1);
  EXPECT_EQ(Extent(image, Qt::red), QRect(0, 20, 100, 1));
  EXPECT_EQ(Extent(image, Qt::black), QRect(50, 60, 1, 1));
  EXPECT_EQ(Blended(image, Qt::white, Qt::red), 1);  // the black dot alone

  picture.ops[0].drawWidth = 3;
  EXPECT_EQ(Extent(RenderPicture(picture, 2), Qt::red), QRect(0, 38, 200, 6));
}

TEST(PicturePainter, CirclesAreSmoothAndTextHangsFromItsCorner) {
  Picture picture = Blank();
  // A black ring (the colour 0) of 20 pixels' radius, filled red.
  DrawOp circle{.kind = DrawKind::Circle, .x1 = 750, .y1 = 750, .radius = 300, .filled = true};
  circle.fillColour = kRed;
  picture.ops.push_back(circle);
  const QImage round = RenderPicture(picture, 1);
  EXPECT_EQ(round.pixelColor(50, 50), QColor(Qt::red));
  EXPECT_EQ(round.pixelColor(50, 80), QColor(Qt::white));
  EXPECT_GT(Blended(round, Qt::white, Qt::red), 20);  // the smoothed outline

  Picture text = Blank();
  text.ops.push_back({.kind = DrawKind::Text, .x1 = 300, .y1 = 450, .fontSize = 10, .text = "Hg"});
  for (const qreal ratio : {1.0, 2.0}) {
    const QRect ink =
        Pixels(RenderPicture(text, ratio), [](QColor c) { return c.lightness() < 128; }).first;
    // 10 points are 13.3 pixels: the ink starts at the corner (20, 30) and
    // stays within one line below it.
    const QRectF logical(QPointF(ink.topLeft()) / ratio, QSizeF(ink.size()) / ratio);
    EXPECT_GE(logical.left(), 20);
    EXPECT_LE(logical.left(), 22);
    EXPECT_GE(logical.top(), 30);
    EXPECT_LE(logical.top(), 34);
    EXPECT_LE(logical.bottom(), 30 + 16);
    EXPECT_GE(logical.width(), 12);
  }
}

}  // namespace
}  // namespace ostraline
