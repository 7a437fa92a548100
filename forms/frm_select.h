#pragma once
// What the single position number of a proxy record is: asked at the end of its import.
#include "forms/form.h"

namespace ostraline {

class FrmSelect : public Form {
 public:
  FrmSelect() : Form("frmSelect", "Vertical axis") {
    Width.SetQuietly(6600);
    Height.SetQuietly(4530);
  }
};

inline FormRef<FrmSelect> frmSelect{"frmSelect"};

}  // namespace ostraline
