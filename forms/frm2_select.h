#pragma once
// The Duo's vertical axis dialog for a record of plain positions, the same
// form as the master's.
#include "forms/frm_select.h"

namespace ostraline {

class Frm2Select : public FrmSelect {
 public:
  Frm2Select() : FrmSelect("frm2Select", "Vertical axis (Duo)") {}
};

inline FormRef<Frm2Select> frm2Select{"frm2Select"};

}  // namespace ostraline
