#pragma once
// A menu entry of the model: an action in its owner (the menu bar or the menu
// above it), with a menu of its own when it has entries.
#include "desktop/control_adapter.h"

class QAction;
class QMenu;

namespace ostraline {

class MenuAdapter : public ControlAdapter {
 public:
  MenuAdapter(Menu& menu, QWidget& owner);
  // The menu of its entries; null for a plain entry.
  QMenu* Submenu() const { return submenu_; }

 protected:
  void SyncOwn(std::string_view property) override;

 private:
  QAction* action_;
  QMenu* submenu_ = nullptr;
};

}  // namespace ostraline
