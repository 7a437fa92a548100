#include "probe_form.h"

namespace ostraline {

std::vector<std::string>& ProbeLog() {
  static std::vector<std::string> log;
  return log;
}

ProbeForm::ProbeForm() : Form("frmProbe", "Probe") {
  Width.SetQuietly(7500);
  Height.SetQuietly(6000);
  Box.Place(120, 120, 1500, 285);
  Combo.Place(120, 480, 1500, 315);
  Button.Caption.SetQuietly("Go");
  Button.Place(120, 900, 1500, 345);
  Group.Caption.SetQuietly("Choose");
  Group.Place(120, 1350, 1800, 1000);
  for (int i = 0; i <= 1; ++i) {
    Choice.Add(i).SetContainer(&Group);
    Choice(i).Caption.SetQuietly(i == 0 ? "One" : "Two");
    Choice(i).Place(120, 300 + 300.0f * static_cast<float>(i), 1500, 255);
  }
  Tick.Caption.SetQuietly("Tick");
  Tick.Place(120, 2500, 1500, 255);
  Track.Place(2000, 120, 255, 3000);
  Track.Max.SetQuietly(100);
  Note.Caption.SetQuietly("Note");
  Note.Place(120, 2900, 1500, 255);
  Bar.Place(3000, 1800, 1500, 240);
  Memo.MultiLine.SetQuietly(true);
  Memo.Place(3000, 2100, 1500, 600);
  Surface.Place(3000, 120, 1560, 1560);
  Surface.BackColor.SetQuietly(kWhite);

  const auto log = [](const std::string& entry) {
    return [entry] { ProbeLog().push_back(entry); };
  };
  Box.Change = [this] { ProbeLog().push_back("Change " + Box.Text.Get()); };
  Box.KeyDown = [](int& keyCode, int) {
    ProbeLog().push_back("KeyDown " + std::to_string(keyCode));
  };
  Box.KeyPress = [](int& keyAscii) {
    if (keyAscii == 'x') keyAscii = 0;
    if (keyAscii == 'a') keyAscii = 'A';
  };
  Box.GotFocus = log("Box GotFocus");
  Box.LostFocus = log("Box LostFocus");
  Combo.GotFocus = log("Combo GotFocus");
  Combo.Click = [this] { ProbeLog().push_back("Combo Click " + Combo.Text.Get()); };
  Button.Click = log("Button Click");
  Choice(1).Click = log("Two Click");
  Tick.Click = log("Tick Click");
  Track.Scroll = [this] { ProbeLog().push_back("Scroll " + std::to_string(Track.Value.Get())); };
  Surface.MouseDown = [](int button, int, float x, float y) {
    ProbeLog().push_back("MouseDown " + std::to_string(button) + " " + std::to_string(x) + " " +
                         std::to_string(y));
  };

  mnuFile.Caption.SetQuietly("File");
  AddMenu(mnuFile);
  mnuGo.Caption.SetQuietly("Go");
  mnuFile.Add(mnuGo);
  mnuGo.Click = [this] {
    ProbeLog().push_back("Go Click");
    mnuGo.Checked = !mnuGo.Checked.Get();
  };
  mnuPop.Caption.SetQuietly("Pop");
  mnuPop.Visible.SetQuietly(false);
  AddMenu(mnuPop);
  mnuPick.Caption.SetQuietly("Pick");
  mnuPop.Add(mnuPick);
  mnuPick.Click = log("Pick Click");
}

}  // namespace ostraline
