#pragma once
// What the single position number of a proxy record of the Duo is.
#include "forms/form.h"

namespace ostraline {

class Frm2Select : public Form {
 public:
  Frm2Select() : Form("frm2Select", "Vertical axis (Duo)") {
    Width.SetQuietly(6600);
    Height.SetQuietly(4530);
  }
};

inline FormRef<Frm2Select> frm2Select{"frm2Select"};

}  // namespace ostraline
