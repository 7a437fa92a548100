#pragma once
// The second of the four core photo viewers.
#include "forms/form.h"

namespace ostraline {

class Frm2Photo : public Form {
 public:
  Frm2Photo() : Form("frm2Photo", "Core photo Duo") {
    Width.SetQuietly(5400);
    Height.SetQuietly(7200);
  }
};

inline FormRef<Frm2Photo> frm2Photo{"frm2Photo"};

}  // namespace ostraline
