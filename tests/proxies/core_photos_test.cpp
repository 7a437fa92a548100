#include <cstdint>
#include <string>

#include "forms/frm2_photo.h"
#include "forms/frm3_photo.h"
#include "forms/frm4_photo.h"
#include "forms/frm_main.h"
#include "proxies/core_photos.h"
#include "support/fresh_program.h"

namespace ostraline {
namespace {

// A bitmap's headers, which is what the scripted platform reads of it.
std::string BitmapHeader(std::int32_t width, std::int32_t height) {
  std::string bytes(54, '\0');
  bytes[0] = 'B';
  bytes[1] = 'M';
  for (int i = 0; i < 4; ++i) {
    bytes[18 + i] = static_cast<char>((width >> (8 * i)) & 0xFF);
    bytes[22 + i] = static_cast<char>((height >> (8 * i)) & 0xFF);
  }
  return bytes;
}

class CorePhotos : public FreshProgram {
 protected:
  void SetUp() override {
    FreshProgram::SetUp();
    photoState = PhotoState{};
    FrmMain& main = *frmMain;
    main.Left = 0;
    main.Top = 0;
    main.Width = 3000;
    main.Height = 3000;
    // As opening a project leaves it.
    main.Command7.Enabled = true;
  }
  void TearDown() override {
    FreshProgram::TearDown();
    photoState = PhotoState{};
  }
  // Presses "Photo" with a picture of this many pixels chosen.
  void OpenPhoto(int width, int height) {
    const std::string name =
        "photo_" + std::to_string(width) + "x" + std::to_string(height) + ".bmp";
    platform.QueueFile(WriteTempFile(name, BitmapHeader(width, height)));
    frmMain->Command7_Click();
  }
  // Command1 stands in the corner as for a portrait picture.
  static bool ButtonPlacedAsPortrait(FrmPhoto& form) {
    const CommandButton& b = form.Command1;
    return b.Left.Get() == form.ScaleWidth() - b.Width.Get() - 0.02f * form.ScaleWidth() &&
           b.Top.Get() == form.ScaleHeight() - b.Height.Get() - 0.05f * form.ScaleHeight();
  }
};

TEST_F(CorePhotos, SquareIsPortraitAndStripSitsBelowMainFormWhenItFitsElseAbove) {
  OpenPhoto(300, 300);
  ASSERT_TRUE(PhotoOpen(1));
  EXPECT_TRUE(PhotoPortrait(1));
  EXPECT_EQ(frmPhoto->Caption.Get(), "photo_300x300.bmp");
  EXPECT_TRUE(frmMain->mnuPhoto.Enabled.Get());
  frmPhoto.Unload();

  // A strip three times as high as wide: under the main form on the screen.
  OpenPhoto(100, 300);
  FrmPhoto& below = *frmPhoto;
  EXPECT_EQ(below.Left.Get(), 0);
  EXPECT_EQ(below.Width.Get(), 3000);
  EXPECT_EQ(below.Top.Get(), 3000);
  // The image fills the window's width at 100 %.
  EXPECT_EQ(below.Image1.Width.Get(), below.ScaleWidth());
  EXPECT_EQ(below.Image1.Height.Get(), 3 * below.ScaleWidth());
  frmPhoto.Unload();

  // Lower on the screen it no longer fits under the form: over it, 60 apart.
  frmMain->Top = 6000;
  OpenPhoto(100, 300);
  FrmPhoto& above = *frmPhoto;
  ASSERT_GE(6000 + 3000 + above.Height.Get() + 60, Screen.Height());
  EXPECT_EQ(above.Top.Get() + above.Height.Get(), 6000 - 60);
}

TEST_F(CorePhotos, SecondFormPlacesItsButtonByTheThirdRecord) {
  OpenPhoto(400, 200);
  OpenPhoto(400, 200);
  OpenPhoto(200, 400);
  ASSERT_TRUE(PhotoOpen(3));
  frm2Photo.Unload();

  OpenPhoto(400, 200);
  ASSERT_TRUE(PhotoOpen(2));
  EXPECT_FALSE(PhotoPortrait(2));
  EXPECT_TRUE(ButtonPlacedAsPortrait(*frm2Photo));
  // The window itself is placed as the landscape picture it holds: right of frmPhoto.
  EXPECT_EQ(frm2Photo->Top.Get(), frmPhoto->Top.Get());
  EXPECT_EQ(frm2Photo->Left.Get(), frmPhoto->Left.Get() + frmPhoto->Width.Get());
  // The fourth form reads its own record.
  OpenPhoto(400, 200);
  EXPECT_FALSE(ButtonPlacedAsPortrait(*frm4Photo));
}

TEST_F(CorePhotos, FourPhotosDisablePhotoButtonAndClosingOneFillsTheGap) {
  for (int i = 0; i < 3; ++i) OpenPhoto(200, 400);
  EXPECT_TRUE(frmMain->Command7.Enabled.Get());
  OpenPhoto(200, 400);
  EXPECT_FALSE(frmMain->Command7.Enabled.Get());

  frm3Photo.Unload();
  EXPECT_TRUE(frmMain->Command7.Enabled.Get());
  EXPECT_FALSE(PhotoOpen(3));
  EXPECT_TRUE(PhotoOpen(4));

  // A file that is no picture and a cancelled dialog end silently, with no change.
  platform.QueueFile(WriteTempFile("notes.jpg", "not a picture"));
  frmMain->Command7_Click();
  platform.QueueCancel();
  frmMain->Command7_Click();
  EXPECT_FALSE(PhotoOpen(3));
  EXPECT_TRUE(platform.messages.empty());

  OpenPhoto(400, 200);
  EXPECT_TRUE(PhotoOpen(3));
  EXPECT_FALSE(frmMain->Command7.Enabled.Get());
  EXPECT_EQ(platform.dialogs.back().filter, "Jpeg(*.jpg)|*.jpg|Bitmap(*.bmp)|*.bmp|All(*.*)|*.*");
}

TEST_F(CorePhotos, ZoomKeepsClickedPointAndBackAt100FillsTheShortSide) {
  OpenPhoto(200, 600);
  FrmPhoto& form = *frmPhoto;
  ImageControl& image = form.Image1;
  const float width1 = image.Width.Get();
  const float height1 = image.Height.Get();

  // Slide along the long side, as at 100 % a portrait picture only goes.
  image.MouseDown(1, 0, 500, 700);
  ASSERT_FALSE(image.Visible.Get());
  image.MouseMove(1, 0, 800, 100);
  form.Image2.MouseUp(1, 0, 800, 100);
  EXPECT_EQ(image.Left.Get(), 0);
  EXPECT_EQ(image.Top.Get(), -600);
  EXPECT_TRUE(image.Visible.Get());
  EXPECT_FALSE(form.Image2.Visible.Get());
  const float top1 = image.Top.Get();

  // The point under the click, at (1000, 2000) in the form, stays put.
  const float clickX = 1000;
  const float clickY = 2000;
  image.MouseDown(2, 0, clickX - image.Left.Get(), clickY - image.Top.Get());
  const float u = (clickX - image.Left.Get()) / image.Width.Get();
  const float v = (clickY - image.Top.Get()) / image.Height.Get();
  form.mnuZoom(8).Click();
  EXPECT_EQ(PhotoZoom(1), 8);
  EXPECT_EQ(image.Width.Get(), 8 * width1);
  EXPECT_EQ(image.Height.Get(), 8 * height1);
  EXPECT_FLOAT_EQ((clickX - image.Left.Get()) / image.Width.Get(), u);
  EXPECT_FLOAT_EQ((clickY - image.Top.Get()) / image.Height.Get(), v);
  EXPECT_TRUE(form.mnuZoom(8).Checked.Get());

  image.MouseDown(2, 0, clickX - image.Left.Get(), clickY - image.Top.Get());
  form.mnuZoom(1).Click();
  EXPECT_EQ(image.Width.Get(), width1);
  EXPECT_EQ(image.Left.Get(), 0);
  EXPECT_FLOAT_EQ(image.Top.Get(), top1);
  EXPECT_TRUE(form.mnuZoom(1).Checked.Get());
  EXPECT_FALSE(form.mnuZoom(8).Checked.Get());
}

}  // namespace
}  // namespace ostraline
