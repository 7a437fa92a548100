#pragma once
// The Duo's batch conversion: a data file converted between the parallel
// set's scales, with the master's composite depth beside the Duo's.
#include "forms/frm_conversion.h"

namespace ostraline {

class Frm2Conversion : public FrmConversion {
 public:
  Frm2Conversion() : FrmConversion("frm2Conversion", "Convert from data file (Duo)") {}
  bool ForDuo() const override { return true; }
};

inline FormRef<Frm2Conversion> frm2Conversion{"frm2Conversion"};

}  // namespace ostraline
