#pragma once
// A screen observer for the tests that notes the forms the toolkit takes
// down and the pop-up menus it opens, and ignores everything else.
#include <string>
#include <string_view>
#include <vector>

#include "forms/form.h"

namespace ostraline {

class ScreenRecorder : public ScreenObserver {
 public:
  void FormLoaded(Form&) override {}
  void FormUnloaded(Form& form) override { unloaded.push_back(form.Name()); }
  void FormPropertyChanged(Form&, std::string_view) override {}
  void ControlPropertyChanged(Control&, std::string_view) override {}
  void SurfaceChanged(Control&, bool) override {}
  void FocusChanged(Control*) override {}
  void PopupMenu(Form&, Menu& menu) override { opened.push_back(menu.FullName()); }

  std::vector<std::string> unloaded;
  std::vector<std::string> opened;
};

}  // namespace ostraline
