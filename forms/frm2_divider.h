#pragma once
// The Duo's level divider: sampling positions between two tie levels of a parallel section.
#include "forms/form.h"

namespace ostraline {

class Frm2Divider : public Form {
 public:
  Frm2Divider() : Form("frm2Divider", "Level Divider (Duo)") {
    Width.SetQuietly(5895);
    Height.SetQuietly(4230);
  }
};

inline FormRef<Frm2Divider> frm2Divider{"frm2Divider"};

}  // namespace ostraline
