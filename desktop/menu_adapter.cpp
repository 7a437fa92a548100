#include "desktop/menu_adapter.h"

#include <QAction>
#include <QMenu>
#include <QSignalBlocker>

#include "desktop/conversions.h"

namespace ostraline {

MenuAdapter::MenuAdapter(Menu& menu, QWidget& owner) : ControlAdapter(menu, nullptr) {
  if (menu.Items().empty()) {
    action_ = new QAction(&owner);
    action_->setObjectName(ToQString(menu.FullName()));
    connect(action_, &QAction::triggered, this, [this] {
      Forward([this] {
        if (As<Menu>().Click) As<Menu>().Click();
      });
      // Qt ticks a checkable entry by itself; the handler decides instead.
      Sync("Checked");
    });
  } else {
    submenu_ = new QMenu(&owner);
    action_ = submenu_->menuAction();
    // Opening a menu title is its Click, where handlers set the ticks of its
    // entries; a pop-up menu opened by PopupMenu is no title.
    connect(submenu_, &QMenu::aboutToShow, this, [this] {
      Forward([this] {
        const Menu& title = As<Menu>();
        if ((title.ParentMenu() != nullptr || title.Visible.Get()) && title.Click) title.Click();
      });
    });
  }
  owner.addAction(action_);
}

void MenuAdapter::SyncOwn(std::string_view property) {
  const Menu& menu = As<Menu>();
  const bool all = property.empty();
  const QSignalBlocker blocker(action_);
  if (all || property == "Caption") {
    // A separator is a line and nothing else: some styles print a separator's text beside it.
    const bool separator = submenu_ == nullptr && menu.Caption.Get() == "-";
    action_->setSeparator(separator);
    action_->setText(separator ? QString() : ToQString(menu.Caption.Get()));
  }
  if (all || property == "Enabled") action_->setEnabled(menu.Enabled.Get());
  if (all || property == "Visible") action_->setVisible(menu.Visible.Get());
  if (all || property == "Checked") {
    // Only a ticked entry is checkable, so unticked entries keep no room for a tick.
    action_->setCheckable(menu.Checked.Get());
    action_->setChecked(menu.Checked.Get());
  }
}

}  // namespace ostraline
