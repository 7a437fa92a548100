#include "forms/frm_select.h"

namespace ostraline {

FrmSelect::FrmSelect(const char* name, const char* caption) : Form(name, caption) {
  Width.SetQuietly(6600);
  Height.SetQuietly(4530);

  Frame1.Caption.SetQuietly("Vertical scale");
  Frame1.Place(120, 120, 1935, 1215);
  constexpr const char* kScales[] = {"Composite depth", "Age (b1950)", "Age (ka)"};
  for (int i = 0; i < 3; ++i) {
    OptionButton& option = Option1.Add(i);
    option.Caption.SetQuietly(kScales[i]);
    option.SetContainer(&Frame1);
    option.Place(120, 270 + 300 * i, 1695, 255);
  }
  Label1.Caption.SetQuietly("Index");
  Label1.Place(120, 1440, 1935, 255);

  // Form_Load sets the rows below the first 225 twips apart.
  constexpr float kCellLefts[] = {2160, 3600, 5040};
  ControlArray<TextBox>* columns[] = {&Text1, &Text2, &Text3};
  for (int c = 0; c < 3; ++c) {
    for (int row = 0; row <= 8; ++row) {
      TextBox& cell = columns[c]->Add(row);
      cell.Place(kCellLefts[c], 120, 1425, 225);
      cell.MouseDown = [this](int, int, float, float) { Cell_MouseDown(); };
      ControlArray<TextBox>& column = *columns[c];
      cell.MouseMove = [this, &column, row](int, int, float, float) {
        Cell_MouseMove(column, row);
      };
    }
  }

  Command1.Caption.SetQuietly("OK");
  Command1.Place(2160, 3480, 1335, 375);
  Command2.Caption.SetQuietly("Cancel");
  Command2.Place(3720, 3480, 1335, 375);
  Command1.Click = [this] { Command1_Click(); };
  Command2.Click = [this] { Command2_Click(); };
  Frame1.MouseMove = [this](int, int, float, float) { Frame1_MouseMove(); };
}

}  // namespace ostraline
