#pragma once
// The screen the control model reports to: one window per loaded form.
#include <unordered_map>

#include "forms/form.h"

class QWidget;

namespace ostraline {

class FormWindow;

class ShellScreen : public ScreenObserver {
 public:
  ShellScreen() = default;
  ShellScreen(const ShellScreen&) = delete;
  ShellScreen& operator=(const ShellScreen&) = delete;
  ~ShellScreen() override;

  // The window of a loaded form, and the widget of one of its controls.
  QWidget* WindowOf(const Form& form) const;
  QWidget* WidgetOf(const Control& control) const;

  void FormLoaded(Form& form) override;
  void FormUnloaded(Form& form) override;
  void FormPropertyChanged(Form& form, std::string_view property) override;
  void ControlPropertyChanged(Control& control, std::string_view property) override;
  void SurfaceChanged(Control& surface, bool refreshNow) override;
  void FocusChanged(Control* control) override;
  void PopupMenu(Form& form, Menu& menu) override;

 private:
  FormWindow* Find(const Form& form) const;

  std::unordered_map<const Form*, FormWindow*> windows_;
};

}  // namespace ostraline
