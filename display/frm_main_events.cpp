#include "display/frm_main.h"

namespace ostraline {

// Each control's events go to the handler of the subsystem that owns it.
void FrmMain::WireHandlers() {
  Command1.Click = [this] { Command1_Click(); };
  Text1.MouseMove = [this](int, int, float, float) { Text1_MouseMove(); };
  Text2.MouseMove = [this](int, int, float, float) { Text2_MouseMove(); };
  Text3.MouseMove = [this](int, int, float, float) { Text3_MouseMove(); };
  Text4.MouseMove = [this](int, int, float, float) { Text4_MouseMove(); };
  Check1.ForEach([this](CheckBox& box) {
    const int index = box.Index();
    box.MouseMove = [this, index](int, int, float, float) { Check1_MouseMove(index); };
  });
}

}  // namespace ostraline
