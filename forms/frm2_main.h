#pragma once
// The Duo: the second main form, for the parallel set of bore holes. It has
// the master's controls, a reminder that throbs until the Duo's event list
// is imported, and the Duo's own handlers.
#include "forms/frm_main.h"

namespace ostraline {

class Frm2Main : public FrmMain {
 public:
  Frm2Main();

  // The reminder beside the event list's button, and its heartbeat.
  Shape Shape1{*this, "Shape1"};
  Timer Timer1{*this, "Timer1"};
  // The reminder's colour state: its red, and the phase of its beat.
  long ReminderRed = 255;
  long ReminderPhase = 0;

  void Form_Load() override;
  void Form_Unload(int& cancel) override;
  void Form_Terminate();

  // The parallel correlation model, its event list, ages and varves.
  void Command1_Click();
  void Command3_Click();
  void ClickCommand3(bool silent);
  void Timer1_Timer();
  void Command4_Click();
  void Command5_Click();

 private:
  void WireHandlers();
};

inline FormRef<Frm2Main> frm2Main{"frm2Main"};

}  // namespace ostraline
