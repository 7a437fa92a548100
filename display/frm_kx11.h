#pragma once
// The correlation assist: a ruler of 100 length units at the scale of the core view.
#include "display/form.h"

namespace ostraline {

class FrmKX11 : public Form {
 public:
  FrmKX11() : Form("frmKX11", "Correlator") {
    Width.SetQuietly(2460);
    Height.SetQuietly(4200);
  }
};

inline FormRef<FrmKX11> frmKX11{"frmKX11"};

}  // namespace ostraline
