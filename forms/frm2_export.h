#pragma once
// The export dialog of a proxy panel of the Duo.
#include "forms/form.h"

namespace ostraline {

class Frm2Export : public Form {
 public:
  Frm2Export() : Form("frm2Export", "Export (Duo)") {
    Width.SetQuietly(4080);
    Height.SetQuietly(2070);
  }
};

inline FormRef<Frm2Export> frm2Export{"frm2Export"};

}  // namespace ostraline
