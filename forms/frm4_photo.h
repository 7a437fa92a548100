#pragma once
// The fourth of the four core photo viewers.
#include "forms/form.h"

namespace ostraline {

class Frm4Photo : public Form {
 public:
  Frm4Photo() : Form("frm4Photo", "Core photo") {
    Width.SetQuietly(5400);
    Height.SetQuietly(7200);
  }
};

inline FormRef<Frm4Photo> frm4Photo{"frm4Photo"};

}  // namespace ostraline
