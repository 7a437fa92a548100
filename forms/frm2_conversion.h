#pragma once
// The Duo's batch conversion: a data file converted between the parallel set's scales.
#include "forms/form.h"

namespace ostraline {

class Frm2Conversion : public Form {
 public:
  Frm2Conversion() : Form("frm2Conversion", "Convert from data file (Duo)") {
    Width.SetQuietly(5040);
    Height.SetQuietly(4200);
  }
};

inline FormRef<Frm2Conversion> frm2Conversion{"frm2Conversion"};

}  // namespace ostraline
