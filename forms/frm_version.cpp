#include "forms/frm_version.h"

namespace ostraline {

FrmVersion::FrmVersion(const char* name, const char* caption) : Form(name, caption) {
  // Wide enough for the version and the model's file name behind it.
  Width.SetQuietly(5880);
  Height.SetQuietly(2100);

  Label3.Caption.SetQuietly("Ostraline:");
  Label3.Place(240, 240, 1935, 255);
  Label4.Place(2280, 240, 3360, 255);
  constexpr int kFiles[] = {1, 3, 4, 5};
  constexpr const char* kTitles[] = {
      "Correlation model: ", "List of event layers: ", "Age-depth model: ", "Varve counts: "};
  for (int i = 0; i < 4; ++i) {
    const float top = 600 + 270 * static_cast<float>(i);
    Label& title = Label1.Add(kFiles[i]);
    title.Caption.SetQuietly(kTitles[i]);
    title.Place(240, top, 1935, 255);
    Label2.Add(kFiles[i]).Place(2280, top, 3360, 255);
  }
  Label1.ForEach([this](Label& title) {
    const int file = title.Index();
    title.MouseMove = [this, file](int, int, float, float) { Label1_MouseMove(file); };
  });
  Label2.ForEach([this](Label& version) {
    const int file = version.Index();
    version.MouseMove = [this, file](int, int, float, float) { Label2_MouseMove(file); };
  });
}

}  // namespace ostraline
