#include "forms/frm_main.h"

#include "forms/hole_names.h"

namespace ostraline {

FrmMain::FrmMain(const char* name, const char* caption, const std::array<const char*, 4>& holeNames,
                 bool isDuo)
    : MainForm(name, caption, holeNames, isDuo) {
  WireHandlers();
}

}  // namespace ostraline
