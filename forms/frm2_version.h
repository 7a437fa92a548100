#pragma once
// Which version of each file of the parallel set is in use.
#include "forms/form.h"

namespace ostraline {

class Frm2Version : public Form {
 public:
  Frm2Version() : Form("frm2Version", "Version information (Duo)") {
    Width.SetQuietly(4935);
    Height.SetQuietly(2100);
  }
};

inline FormRef<Frm2Version> frm2Version{"frm2Version"};

}  // namespace ostraline
