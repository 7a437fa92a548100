#pragma once
// The third of the four core photo viewers.
#include "forms/form.h"

namespace ostraline {

class Frm3Photo : public Form {
 public:
  Frm3Photo() : Form("frm3Photo", "Core photo") {
    Width.SetQuietly(5400);
    Height.SetQuietly(7200);
  }
};

inline FormRef<Frm3Photo> frm3Photo{"frm3Photo"};

}  // namespace ostraline
