#pragma once
// The core photo viewer: one form, four instances (frmPhoto, frm2Photo,
// frm3Photo, frm4Photo) that differ only in the photo record k they use.
#include <string>

#include "forms/canvas.h"
#include "forms/controls.h"
#include "forms/form.h"

namespace ostraline {

class FrmPhoto : public Form {
 public:
  FrmPhoto(std::string name, int k, std::string caption);

  // Which of the four photo records this form uses, 1 to 4.
  int K() const { return k_; }

  // Hidden: the picture at its natural size, for the aspect ratio.
  PictureBox Picture1{*this, "Picture1"};
  // The visible, stretched image, and its stand-in while it is dragged.
  ImageControl Image1{*this, "Image1"};
  ImageControl Image2{*this, "Image2"};
  CommandButton Command1{*this, "Command1"};
  CommonDialog CommonDialog1{*this, "CommonDialog1"};
  // The pop-up menu; the index of a zoom entry is its factor.
  Menu mnuRB{*this, "mnuRB"};
  ControlArray<Menu> mnuZoom{*this, "mnuZoom"};

  // The inner area of the window in twips, from its top left corner: the
  // frame of the shell's windows takes 8 pixels across and 31 down.
  float ScaleLeft() const { return 0; }
  float ScaleTop() const { return 0; }
  float ScaleWidth() const { return Width.Get() - 120; }
  float ScaleHeight() const { return Height.Get() - 465; }

  void Form_Load() override;
  void Form_Resize() override;
  void Form_Unload(int& cancel) override;
  void Form_Terminate();
  void Form_MouseDown(int button, int shift, float x, float y) override;
  void Command1_Click();
  void mnuZoom_Click(int n);
  // X and Y are from the image's own corner, in twips.
  void Image1_MouseDown(int button, int shift, float x, float y);
  void Image1_MouseMove(int button, int shift, float x, float y);
  void Image1_MouseUp(int button, int shift, float x, float y);
  void Image2_MouseUp(int button, int shift, float x, float y);

  // Code that changes the window's size runs Form_Resize, as the user's
  // resizing does.
  void PropertyWritten(std::string_view name, bool changed) override;

 private:
  int k_;
  bool built_ = false;
};

// The one instance of a photo form, created at its first use.
class PhotoFormRef : public FormSlot {
 public:
  PhotoFormRef(const char* name, int k, const char* caption);
  FrmPhoto* operator->() { return static_cast<FrmPhoto*>(&GetForm()); }
  FrmPhoto& operator*() { return static_cast<FrmPhoto&>(GetForm()); }
};

inline PhotoFormRef frmPhoto{"frmPhoto", 1, "Core photo"};

}  // namespace ostraline
