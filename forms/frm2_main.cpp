#include "forms/frm2_main.h"

#include "forms/hole_names.h"

namespace ostraline {

Frm2Main::Frm2Main() : FrmMain("frm2Main", "OstralineDuo", kDuoHoleNames, true) {
  Option4(0).Caption.SetQuietly("Fit to the master core");
  Option4(1).Caption.SetQuietly("Duo's own depth");
  Label1(0).Caption.SetQuietly("Master");
  // The reminder sits at the right end of the event list's button, hidden
  // until asked for.
  Shape1.SetContainer(&Frame4);
  Shape1.Place(Command3.Left + Command3.Width - 300, Command3.Top + 52, 240, 240);
  Shape1.ShapeKind.SetQuietly(3);
  Shape1.FillStyle.SetQuietly(0);
  Shape1.FillColor.SetQuietly(RGB(255, 205, 205));
  Shape1.Visible.SetQuietly(false);
  Timer1.Enabled.SetQuietly(false);
  WireHandlers();
}

void Frm2Main::WireHandlers() {
  Command1.Click = [this] { Command1_Click(); };
  Command3.Click = [this] { Command3_Click(); };
  Command4.Click = [this] { Command4_Click(); };
  Command5.Click = [this] { Command5_Click(); };
  Timer1.TimerEvent = [this] { Timer1_Timer(); };
}

}  // namespace ostraline
