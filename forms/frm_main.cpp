#include "forms/frm_main.h"

#include "forms/hole_names.h"

namespace ostraline {

FrmMain::FrmMain() : MainForm("frmMain", "Ostraline 7.7.4", kMasterHoleNames) {
  WireHandlers();
}

}  // namespace ostraline
