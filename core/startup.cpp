#include "core/project_state.h"
#include "display/frm_main.h"
void ostraline::FrmMain::Form_Load() {}
void ostraline::FrmMain::Form_Activate() {}
void ostraline::FrmMain::Form_Click() {}
void ostraline::FrmMain::Form_GotFocus() {}
void ostraline::FrmMain::Form_Unload(int&) {}
void ostraline::FrmMain::Text1_MouseMove() {}
void ostraline::FrmMain::Text2_MouseMove() {}
void ostraline::FrmMain::Text3_MouseMove() {}
void ostraline::FrmMain::Text4_MouseMove() {}
void ostraline::FrmMain::Check1_MouseMove(int) {}
void ostraline::FrmMain::Command1_Click() {}
