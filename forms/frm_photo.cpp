#include "forms/frm_photo.h"

namespace ostraline {

FrmPhoto::FrmPhoto(std::string name, int k, std::string caption)
    : Form(std::move(name), std::move(caption)), k_(k) {
  Width.SetQuietly(5400);
  Height.SetQuietly(7200);

  // Takes the picture's own size when one is loaded.
  Picture1.Place(0, 0, 1215, 1215);
  Picture1.Visible.SetQuietly(false);
  Picture1.BorderStyle.SetQuietly(0);
  Image1.Place(0, 0, 1215, 1215);
  Image2.Place(0, 0, 1215, 1215);
  Image2.Visible.SetQuietly(false);
  Command1.Caption.SetQuietly("Next");
  Command1.Place(4200, 6240, 855, 345);

  mnuRB.Caption.SetQuietly("mnuRB");
  mnuRB.Visible.SetQuietly(false);
  AddMenu(mnuRB);
  for (int n : {1, 2, 4, 8, 16}) {
    Menu& entry = mnuZoom.Add(n);
    entry.Caption.SetQuietly(std::to_string(n * 100) + " %");
    mnuRB.Add(entry);
    entry.Click = [this, n] { mnuZoom_Click(n); };
  }
  mnuZoom(1).Checked.SetQuietly(true);

  Command1.Click = [this] { Command1_Click(); };
  Image1.MouseDown = [this](int b, int s, float x, float y) { Image1_MouseDown(b, s, x, y); };
  Image1.MouseMove = [this](int b, int s, float x, float y) { Image1_MouseMove(b, s, x, y); };
  Image1.MouseUp = [this](int b, int s, float x, float y) { Image1_MouseUp(b, s, x, y); };
  Image2.MouseUp = [this](int b, int s, float x, float y) { Image2_MouseUp(b, s, x, y); };
  built_ = true;
}

void FrmPhoto::PropertyWritten(std::string_view name, bool changed) {
  Form::PropertyWritten(name, changed);
  if (built_ && changed && (name == "Width" || name == "Height")) Form_Resize();
}

PhotoFormRef::PhotoFormRef(const char* name, int k, const char* caption)
    : FormSlot(name, [name, k, caption] { return std::make_unique<FrmPhoto>(name, k, caption); }) {}

}  // namespace ostraline
