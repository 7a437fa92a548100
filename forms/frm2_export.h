#pragma once
// The Duo's export dialog of a panel, the same form as the master's.
#include "forms/frm_export.h"

namespace ostraline {

class Frm2Export : public FrmExport {
 public:
  Frm2Export() : FrmExport("frm2Export", "Export (Duo)") {}
};

inline FormRef<Frm2Export> frm2Export{"frm2Export"};

}  // namespace ostraline
