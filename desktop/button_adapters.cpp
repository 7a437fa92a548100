// Command buttons, option buttons and check boxes: a click goes to the model,
// and the widget then shows what the model made of it.
#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

#include "desktop/adapters.h"
#include "desktop/conversions.h"

namespace ostraline {
namespace {

bool IsCaption(std::string_view property) {
  return property.empty() || property == "Caption";
}
bool IsValue(std::string_view property) {
  return property.empty() || property == "Value";
}

class CommandButtonAdapter : public ControlAdapter {
 public:
  CommandButtonAdapter(CommandButton& button, QPushButton* widget)
      : ControlAdapter(button, widget), button_(widget) {
    button_->setAutoDefault(false);
    Watch(button_);
    connect(button_, &QPushButton::clicked, this, [this] {
      Forward([this] {
        if (As<CommandButton>().Click) As<CommandButton>().Click();
      });
    });
  }

 protected:
  void SyncOwn(std::string_view property) override {
    if (IsCaption(property)) button_->setText(ToQString(As<CommandButton>().Caption.Get()));
  }

 private:
  QPushButton* button_;
};

// The model keeps its groups itself, so Qt's own exclusivity is off.
class OptionButtonAdapter : public ControlAdapter {
 public:
  OptionButtonAdapter(OptionButton& option, QRadioButton* widget)
      : ControlAdapter(option, widget), radio_(widget) {
    radio_->setAutoExclusive(false);
    radio_->setAutoFillBackground(true);
    Watch(radio_);
    connect(radio_, &QRadioButton::clicked, this, [this] {
      Forward([this] {
        OptionButton& option = As<OptionButton>();
        if (!option.Value.Get()) option.Value = true;
      });
      // A click on the button that is set leaves it set.
      Sync("Value");
    });
  }

 protected:
  void SyncOwn(std::string_view property) override {
    const OptionButton& option = As<OptionButton>();
    if (IsCaption(property)) radio_->setText(ToQString(option.Caption.Get()));
    if (IsValue(property)) radio_->setChecked(option.Value.Get());
  }

 private:
  QRadioButton* radio_;
};

class CheckBoxAdapter : public ControlAdapter {
 public:
  CheckBoxAdapter(CheckBox& check, QCheckBox* widget)
      : ControlAdapter(check, widget), check_(widget) {
    check_->setAutoFillBackground(true);
    Watch(check_);
    connect(check_, &QCheckBox::clicked, this, [this] {
      Forward([this] {
        CheckBox& check = As<CheckBox>();
        check.Value = check.Value.Get() == 1 ? 0 : 1;
      });
      Sync("Value");
    });
  }

 protected:
  void SyncOwn(std::string_view property) override {
    const CheckBox& check = As<CheckBox>();
    if (IsCaption(property)) check_->setText(ToQString(check.Caption.Get()));
    if (IsValue(property)) {
      // 2 is the greyed state.
      const int value = check.Value.Get();
      check_->setCheckState(value == 1   ? Qt::Checked
                            : value == 2 ? Qt::PartiallyChecked
                                         : Qt::Unchecked);
    }
  }

 private:
  QCheckBox* check_;
};

}  // namespace

std::unique_ptr<ControlAdapter> MakeCommandButtonAdapter(CommandButton& button, QWidget* parent) {
  return std::make_unique<CommandButtonAdapter>(button, new QPushButton(parent));
}

std::unique_ptr<ControlAdapter> MakeOptionButtonAdapter(OptionButton& option, QWidget* parent) {
  return std::make_unique<OptionButtonAdapter>(option, new QRadioButton(parent));
}

std::unique_ptr<ControlAdapter> MakeCheckBoxAdapter(CheckBox& check, QWidget* parent) {
  return std::make_unique<CheckBoxAdapter>(check, new QCheckBox(parent));
}

}  // namespace ostraline
