#pragma once
// A small form with one control of each kind the shell binds, whose handlers
// write what they saw into a log that outlives the form.
#include <string>
#include <vector>

#include "forms/canvas.h"
#include "forms/form.h"

namespace ostraline {

std::vector<std::string>& ProbeLog();

class ProbeForm : public Form {
 public:
  ProbeForm();

  TextBox Box{*this, "Box"};
  ComboBox Combo{*this, "Combo"};
  CommandButton Button{*this, "Button"};
  Frame Group{*this, "Group"};
  ControlArray<OptionButton> Choice{*this, "Choice"};
  CheckBox Tick{*this, "Tick"};
  Slider Track{*this, "Track"};
  Label Note{*this, "Note"};
  ProgressBar Bar{*this, "Bar"};
  TextBox Memo{*this, "Memo"};
  // 1560 twips with a border leave an inner square of 1500 twips, 100 pixels.
  PictureBox Surface{*this, "Surface"};
  Menu mnuFile{*this, "mnuFile"};
  Menu mnuGo{*this, "mnuGo"};
  Menu mnuPop{*this, "mnuPop"};
  Menu mnuPick{*this, "mnuPick"};

  bool refuseUnload = false;

  void Form_Resize() override { ProbeLog().push_back("Resize"); }
  void Form_Unload(int& cancel) override {
    ProbeLog().push_back("Unload");
    if (refuseUnload) cancel = 1;
  }
};

inline FormRef<ProbeForm> frmProbe{"frmProbe"};

}  // namespace ostraline
