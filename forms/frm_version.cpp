#include "forms/frm_version.h"

namespace ostraline {

FrmVersion::FrmVersion() : Form("frmVersion", "Version information") {
  Width.SetQuietly(4935);
  Height.SetQuietly(2100);

  Label3.Caption.SetQuietly("Ostraline:");
  Label3.Place(240, 240, 1935, 255);
  Label4.Place(2280, 240, 2415, 255);
  constexpr int kFiles[] = {1, 3, 4, 5};
  constexpr const char* kTitles[] = {
      "Correlation model: ", "List of event layers: ", "Age-depth model: ", "Varve counts: "};
  for (int i = 0; i < 4; ++i) {
    const float top = 600 + 270 * static_cast<float>(i);
    Label& title = Label1.Add(kFiles[i]);
    title.Caption.SetQuietly(kTitles[i]);
    title.Place(240, top, 1935, 255);
    Label2.Add(kFiles[i]).Place(2280, top, 2415, 255);
  }
}

}  // namespace ostraline
