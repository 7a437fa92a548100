#include "desktop/shell_screen.h"

#include "desktop/form_window.h"

namespace ostraline {

ShellScreen::~ShellScreen() {
  for (auto& entry : windows_) {
    entry.second->Detach();
    delete entry.second;
  }
}

FormWindow* ShellScreen::Find(const Form& form) const {
  const auto found = windows_.find(&form);
  return found == windows_.end() ? nullptr : found->second;
}

QWidget* ShellScreen::WindowOf(const Form& form) const {
  return Find(form);
}

QWidget* ShellScreen::WidgetOf(const Control& control) const {
  const FormWindow* window = Find(control.Parent());
  return window == nullptr ? nullptr : window->WidgetOf(control);
}

void ShellScreen::FormLoaded(Form& form) {
  windows_[&form] = new FormWindow(form);
}

void ShellScreen::FormUnloaded(Form& form) {
  FormWindow* window = Find(form);
  if (window == nullptr) return;
  windows_.erase(&form);
  // The unload may come from inside one of the window's own events.
  window->Detach();
  window->hide();
  window->deleteLater();
}

void ShellScreen::FormPropertyChanged(Form& form, std::string_view property) {
  if (FormWindow* window = Find(form)) window->SyncForm(property);
}

void ShellScreen::ControlPropertyChanged(Control& control, std::string_view property) {
  if (FormWindow* window = Find(control.Parent())) window->SyncControl(control, property);
}

void ShellScreen::SurfaceChanged(Control& surface, bool refreshNow) {
  if (FormWindow* window = Find(surface.Parent())) window->Redraw(surface, refreshNow);
}

void ShellScreen::FocusChanged(Control* control) {
  if (control == nullptr) return;
  if (FormWindow* window = Find(control->Parent())) window->Focus(*control);
}

void ShellScreen::PopupMenu(Form& form, Menu& menu) {
  if (FormWindow* window = Find(form)) window->Popup(menu);
}

}  // namespace ostraline
