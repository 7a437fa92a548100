#include "forms/frm_export.h"

namespace ostraline {

FrmExport::FrmExport(const char* name, const char* caption) : Form(name, caption) {
  Width.SetQuietly(4080);
  Height.SetQuietly(2070);

  Frame1.Caption.SetQuietly("Select field");
  Frame1.Place(120, 60, 2295, 1230);
  constexpr const char* kFields[] = {"Data", "Sample name", "Composite depth", "Event free depth"};
  for (int i = 0; i < 4; ++i) {
    CheckBox& field = Check1.Add(i);
    field.Caption.SetQuietly(kFields[i]);
    field.SetContainer(&Frame1);
    field.Place(120, 240 + 225 * i, 2055, 225);
  }
  Label1.Place(2535, 120, 1305, 255);
  Command1.Caption.SetQuietly("Export");
  Command1.Place(2535, 915, 1305, 375);
  // Nothing is exported yet, so nothing moves the bar.
  ProgressBar1.Place(120, 1380, 3720, 180);
  ProgressBar1.Visible.SetQuietly(false);

  Command1.Click = [this] { Command1_Click(); };
}

}  // namespace ostraline
