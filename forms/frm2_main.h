#pragma once
// The Duo: the second main form, for the parallel set of bore holes.
#include "forms/form.h"

namespace ostraline {

class Frm2Main : public Form {
 public:
  Frm2Main() : Form("frm2Main", "OstralineDuo") {
    Width.SetQuietly(9840);
    Height.SetQuietly(11055);
  }
};

inline FormRef<Frm2Main> frm2Main{"frm2Main"};

}  // namespace ostraline
