#include "display/frm_divider.h"

namespace ostraline {

FrmDivider::FrmDivider() : Form("frmDivider", "Level Divider") {
  for (int i = 0; i <= 1; ++i) {
    Combo1.Add(i);
    Label2.Add(i);
    Text1.Add(i);
  }
}

}  // namespace ostraline
