#pragma once
// The correlation assist: a ruler of 100 length units at the scale of the core view.
#include "forms/canvas.h"
#include "forms/controls.h"
#include "forms/form.h"

namespace ostraline {

class FrmKX11 : public Form {
 public:
  FrmKX11() : Form("frmKX11", "Correlator") {
    Width.SetQuietly(2460);
    Height.SetQuietly(4200);
    Picture1.Place(120, 120, 1095, 2880);
    Label2.Place(120, 3060, 1095, 255);
    Label2.Caption.SetQuietly("9999");
    Label3.Place(120, 3330, 1095, 255);
    Label3.Caption.SetQuietly("100 %");
  }

  // The strip, its height at true scale, and its stretch against it.
  PictureBox Picture1{*this, "Picture1"};
  Label Label2{*this, "Label2"};
  Label Label3{*this, "Label3"};
};

inline FormRef<FrmKX11> frmKX11{"frmKX11"};

}  // namespace ostraline
