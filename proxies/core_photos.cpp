#include "proxies/core_photos.h"

#include <string>

#include "core/project_state.h"
#include "display/target_line.h"
#include "forms/frm2_main.h"
#include "forms/frm2_photo.h"
#include "forms/frm3_photo.h"
#include "forms/frm4_photo.h"
#include "forms/frm_main.h"
#include "forms/picture_geometry.h"
#include "forms/platform.h"

namespace ostraline {
namespace {

constexpr const char* kPhotoFilter = "Jpeg(*.jpg)|*.jpg|Bitmap(*.bmp)|*.bmp|All(*.*)|*.*";
// The window's frame in the placement beside a neighbour, and the gap to it.
constexpr float kFrameAcross = 405;
constexpr float kFrameDown = 120;
constexpr float kGap = 60;

// The name with its extension: what follows the last folder separator.
std::string TitleOf(const std::string& path) {
  const std::size_t cut = path.find_last_of("\\/");
  return cut == std::string::npos ? path : path.substr(cut + 1);
}

// Show on a form that is already shown brings it to the front.
void BringToFront(Form& form) {
  if (form.Visible.Get()) form.Hide();
  form.Show();
}

void RefreshMainForms() {
  frmMain->Refresh();
  if (DuoOpen) frm2Main->Refresh();
}

// The four windows are shared: both main forms bring them to the front.
void EnablePhotoMenus() {
  frmMain->mnuPhoto.Enabled = true;
  if (frm2Main.IsLoaded()) frm2Main->mnuPhoto.Enabled = true;
}

// Picture1 takes the picture at its natural size; both images show it.
void LoadPicture(FrmPhoto& form, const std::string& path) {
  const std::shared_ptr<const RasterImage> raster = CurrentPlatform().LoadPicture(path);
  if (!raster) Fail(FailureKind::InvalidProcedureCall, "Invalid picture: " + path);
  Picture picture;
  picture.width = static_cast<float>(raster->widthPixels) * kTwipsPerPixel;
  picture.height = static_cast<float>(raster->heightPixels) * kTwipsPerPixel;
  picture.empty = false;
  DrawOp op;
  op.kind = DrawKind::Raster;
  op.x2 = picture.width;
  op.y2 = picture.height;
  op.raster = raster;
  picture.ops.push_back(op);
  form.Picture1.SetPicture(std::move(picture));
  form.Picture1.Width = static_cast<float>(raster->widthPixels) * kTwipsPerPixel;
  form.Picture1.Height = static_cast<float>(raster->heightPixels) * kTwipsPerPixel;
  form.Image1.PictureFile = path;
  form.Image2.PictureFile = form.Image1.PictureFile.Get();
}

// frm2Photo's button reads the third record: a slip of the viewer's kept on
// purpose, so that its button sits as it always did.
void PlaceCommand1(FrmPhoto& form) {
  const int k = form.K();
  const bool portrait = PhotoPortrait(k == 2 ? 3 : k);
  const float a = portrait ? 0.05f : 0.02f;
  const float b = portrait ? 0.02f : 0.05f;
  CommandButton& button = form.Command1;
  button.Top = form.ScaleTop() + form.ScaleHeight() - button.Height.Get() - a * form.ScaleHeight();
  button.Left = form.ScaleLeft() + form.ScaleWidth() - button.Width.Get() - b * form.ScaleWidth();
}

// The neighbour a new photo window is placed beside.
Form& NeighbourOf(int k, Form& owner) {
  if (k > 1) return *PhotoForm(k - 1);
  for (int j = 2; j <= 4; ++j) {
    if (PhotoOpen(j)) return *PhotoForm(j);
  }
  return owner;
}

void PlaceBeside(FrmPhoto& form, const Form& o) {
  const float w = form.Picture1.Width.Get();
  const float h = form.Picture1.Height.Get();
  const float oLeft = o.Left.Get();
  const float oTop = o.Top.Get();
  const float oWidth = o.Width.Get();
  const float oHeight = o.Height.Get();
  if (PhotoPortrait(form.K())) {
    form.Left = oLeft;
    form.Width = oWidth;
    form.Height = (form.Width.Get() - kFrameAcross) * h / w + kFrameDown;
    if (oTop + oHeight + form.Height.Get() + kGap < Screen.Height()) {
      form.Top = oTop + oHeight;
    } else {
      form.Top = oTop - kGap - form.Height.Get();
    }
  } else {
    form.Top = oTop;
    form.Height = oHeight;
    form.Width = (form.Height.Get() - kFrameAcross) * w / h + kFrameDown;
    if (oLeft + oWidth + form.Width.Get() + kGap < Screen.Width()) {
      form.Left = oLeft + oWidth;
    } else {
      form.Left = oLeft - kGap - form.Width.Get();
    }
  }
}

void SetCommand7Enabled(bool enabled) {
  if (frmMain.IsLoaded()) frmMain->Command7.Enabled = enabled;
  if (frm2Main.IsLoaded()) frm2Main->Command7.Enabled = enabled;
}

}  // namespace

PhotoFormRef& PhotoForm(int k) {
  switch (k) {
    case 1:
      return frmPhoto;
    case 2:
      return frm2Photo;
    case 3:
      return frm3Photo;
    case 4:
      return frm4Photo;
    default:
      Fail(FailureKind::SubscriptOutOfRange, "photo form " + std::to_string(k));
  }
}

void OpenPhotoBeside(Form& owner, CommonDialog& dialog) {
  // Cancelling the dialog or a file that is no picture ends here, silently;
  // what was changed before stays.
  try {
    dialog.CancelError = true;
    dialog.Filter = kPhotoFilter;
    dialog.ShowOpen();
    const std::string path = dialog.FileName;
    RefreshMainForms();
    for (int j = 1; j <= 4; ++j) {
      if (PhotoOpen(j)) BringToFront(*PhotoForm(j));
    }
    int k = 1;
    while (k <= 4 && PhotoOpen(k)) ++k;
    if (k > 4) return;
    FrmPhoto& form = *PhotoForm(k);
    LoadPicture(form, path);
    form.Caption = TitleOf(path);
    PhotoPortrait(k) = form.Picture1.Height.Get() >= form.Picture1.Width.Get();
    PlaceCommand1(form);
    PlaceBeside(form, NeighbourOf(k, owner));
    form.Show();
    // The first showing sizes the image to the window.
    form.Form_Resize();
    PhotoOpen(k) = true;
    EnablePhotoMenus();
    if (PhotoOpen(1) && PhotoOpen(2) && PhotoOpen(3) && PhotoOpen(4)) SetCommand7Enabled(false);
  } catch (const RuntimeFailure&) {
  }
}

void FrmMain::Command7_Click() {
  OpenPhotoBeside(*this, CommonDialog1);
}

void FrmMain::mnuPhoto_Click() {
  for (int k = 1; k <= 4; ++k) {
    if (PhotoOpen(k)) BringToFront(*PhotoForm(k));
  }
}

void FrmPhoto::Command1_Click() {
  try {
    CommonDialog1.CancelError = true;
    CommonDialog1.Filter = kPhotoFilter;
    CommonDialog1.ShowOpen();
    const std::string path = CommonDialog1.FileName;
    RefreshMainForms();
    LoadPicture(*this, path);
    Caption = "Core photo (" + path + ")";
    Show();
    PhotoPortrait(K()) = Picture1.Height.Get() >= Picture1.Width.Get();
    PlaceCommand1(*this);
    PhotoOpen(K()) = true;
    EnablePhotoMenus();
  } catch (const RuntimeFailure&) {
  }
}

void FrmPhoto::Form_Load() {
  Image1.Top = ScaleTop();
  Image1.Left = ScaleLeft();
  Image1.Height = ScaleHeight();
  Image1.Width = Picture1.Width.Get() * ScaleHeight() / Picture1.Height.Get();
  PhotoZoom(K()) = 1;
  Screen.SetMousePointer(0);
}

void FrmPhoto::Form_Resize() {
  const float zoom = PhotoZoom(K());
  const float w = Picture1.Width.Get();
  const float h = Picture1.Height.Get();
  if (PhotoPortrait(K())) {
    if (zoom == 1) Image1.Left = ScaleLeft();
    Image1.Width = zoom * ScaleWidth();
    Image1.Height = zoom * ScaleWidth() * h / w;
  } else {
    if (zoom == 1) Image1.Top = ScaleTop();
    Image1.Height = zoom * ScaleHeight();
    Image1.Width = zoom * ScaleHeight() * w / h;
  }
  PlaceCommand1(*this);
}

void FrmPhoto::mnuZoom_Click(int n) {
  const int k = K();
  const float z = PhotoZoom(k);
  mnuZoom.ForEach([](Menu& entry) { entry.Checked = false; });
  Image1.Visible = false;
  const float clickX = static_cast<float>(PhotoClickX(k));
  const float clickY = static_cast<float>(PhotoClickY(k));
  Image1.Left = clickX - (clickX - Image1.Left.Get()) * n / z;
  Image1.Top = clickY - (clickY - Image1.Top.Get()) * n / z;
  Image1.Width = n * Image1.Width.Get() / z;
  Image1.Height = n * Image1.Height.Get() / z;
  Image2.Left = Image1.Left.Get();
  Image2.Top = Image1.Top.Get();
  Image2.Width = Image1.Width.Get();
  Image2.Height = Image1.Height.Get();
  // Back at 100 % the picture lines up with the window along its short side.
  if (n == 1) {
    if (PhotoPortrait(k)) {
      Image1.Left = 0;
    } else {
      Image1.Top = 0;
    }
  }
  Image1.Visible = true;
  PhotoZoom(k) = n;
  mnuZoom(n).Checked = true;
}

void FrmPhoto::Form_MouseDown(int button, int, float x, float y) {
  if (button != 2) return;
  PopupMenu(mnuRB);
  PhotoClickX(K()) = CLng(x);
  PhotoClickY(K()) = CLng(y);
}

void FrmPhoto::Image1_MouseDown(int button, int, float x, float y) {
  const int k = K();
  if (button != 1) {
    PhotoClickX(k) = CLng(Image1.Left.Get() + x);
    PhotoClickY(k) = CLng(Image1.Top.Get() + y);
    PopupMenu(mnuRB);
    return;
  }
  PhotoDragging(k) = true;
  PhotoDragX(k) = x - Image1.Left.Get();
  PhotoDragY(k) = y - Image1.Top.Get();
  Image2.Top = Image1.Top.Get();
  Image2.Left = Image1.Left.Get();
  Image2.Width = Image1.Width.Get();
  Image2.Height = Image1.Height.Get();
  Image2.Visible = true;
  Image1.Visible = false;
}

// While dragging, X and Y stay measured from Image1's corner, which does not
// move until the button is let go: Image2 follows the pointer.
void FrmPhoto::Image1_MouseMove(int, int, float x, float y) {
  const int k = K();
  if (frmMain.IsLoaded()) ClearTargetLines();
  if (!PhotoDragging(k)) return;
  const int zoom = PhotoZoom(k);
  if (PhotoPortrait(k)) {
    Image2.Top = y - PhotoDragY(k);
    if (zoom > 1) Image2.Left = x - PhotoDragX(k);
  } else {
    Image2.Left = x - PhotoDragX(k);
    if (zoom >= 2) Image2.Top = y - PhotoDragY(k);
  }
}

void FrmPhoto::Image1_MouseUp(int, int, float, float) {
  Image1.Left = Image2.Left.Get();
  Image1.Top = Image2.Top.Get();
  Image1.Visible = true;
  Image2.Visible = false;
  PhotoDragging(K()) = false;
}

void FrmPhoto::Image2_MouseUp(int button, int shift, float x, float y) {
  Image1_MouseUp(button, shift, x, y);
}

void FrmPhoto::Form_Unload(int&) {
  Form_Terminate();
}

void FrmPhoto::Form_Terminate() {
  SetCommand7Enabled(true);
  PhotoOpen(K()) = false;
  for (int j = 1; j <= 4; ++j) {
    if (j != K() && PhotoOpen(j) && PhotoForm(j).IsLoaded()) BringToFront(*PhotoForm(j));
  }
}

}  // namespace ostraline
