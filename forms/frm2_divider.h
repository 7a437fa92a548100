#pragma once
// The Duo's level divider: sampling positions between two tie levels of a
// parallel section, the same form as the master's.
#include "forms/frm_divider.h"

namespace ostraline {

class Frm2Divider : public FrmDivider {
 public:
  Frm2Divider() : FrmDivider("frm2Divider", "Level Divider (Duo)") {}
};

inline FormRef<Frm2Divider> frm2Divider{"frm2Divider"};

}  // namespace ostraline
