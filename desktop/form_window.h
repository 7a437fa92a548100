#pragma once
// The window of one form: its canvas, one widget per control, and the menu
// bar, kept in step with the model.
#include <QMainWindow>
#include <memory>
#include <string_view>
#include <unordered_map>

#include "desktop/control_adapter.h"
#include "forms/form.h"

namespace ostraline {

class FormCanvas;

class FormWindow : public QMainWindow {
 public:
  explicit FormWindow(Form& form);
  ~FormWindow() override;

  // The form has been unloaded: the window stays until Qt deletes it, but
  // shows and forwards nothing more.
  void Detach();
  void SyncForm(std::string_view property);
  void SyncControl(const Control& control, std::string_view property);
  void Redraw(const Control& surface, bool now);
  void Focus(const Control& control);
  // Opens the menu at the pointer; the click's handler runs before it returns.
  void Popup(const Menu& menu);
  QWidget* WidgetOf(const Control& control) const;

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void moveEvent(QMoveEvent* event) override;

 private:
  ControlAdapter* Bind(Control& control);
  void BindMenu(Menu& menu, QWidget& owner);
  ControlAdapter* AdapterOf(const Control& control) const;
  // The canvas as the form's Width and Height leave it.
  QSize ClientSize() const;
  int MenuBarPixels() const;
  void ApplySize();

  Form* form_;
  FormCanvas* canvas_;
  bool hasMenuBar_ = false;
  // When the form was last shown: the newest enabled window takes the
  // activation a disabled one refuses.
  unsigned long shownOrder_ = 0;
  // Show has run Form_Activate already: the activation that follows the
  // showing is that same one.
  bool showActivationPending_ = false;
  std::unordered_map<const Control*, std::unique_ptr<ControlAdapter>> adapters_;
};

}  // namespace ostraline
