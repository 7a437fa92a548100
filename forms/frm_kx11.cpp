#include "forms/frm_kx11.h"

namespace ostraline {

FrmKX11::FrmKX11() : Form("frmKX11", "Correlator") {
  Width.SetQuietly(kFixedWidth);
  Height.SetQuietly(1755 + kFrame);

  // Above the strip: its true-scale height and its stretch, which the form's
  // height leaves in place.
  Label1.Caption.SetQuietly("C. length:");
  Label1.Place(60, 15, 1140, 195);
  Label2.Caption.SetQuietly("9999");
  Label2.Place(60, 210, 780, 195);
  Label4.Place(840, 210, 360, 195);
  Label3.Caption.SetQuietly("100 %");
  Label3.Place(60, 405, 1140, 195);

  // The strip reaches down to the form's bottom edge, so it grows with the form.
  Picture1.Place(60, 600, 420, 1755);
  Picture1.BackColor.SetQuietly(kWhite);

  Command1.Caption.SetQuietly("Clear");
  Command1.Place(540, 600, 600, 285);
  Text2.Place(540, 900, 600, 255);
  for (int i = 1; i <= 20; ++i) {
    TextBox& mark = Text1.Add(i);
    mark.Place(540, 1200 + 240 * static_cast<float>(i - 1), 600, 240);
    mark.Change = [this, i] { Text1_Change(i); };
    mark.GotFocus = [this, i] { Text1_GotFocus(i); };
  }

  Text2.Change = [this] { Text2_Change(); };
  Command1.Click = [this] { Command1_Click(); };
  Picture1.Resize = [this] { Picture1_Resize(); };
}

}  // namespace ostraline
