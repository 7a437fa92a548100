#include "forms/controls.h"

#include "forms/form.h"
#include "forms/platform.h"

namespace ostraline {
namespace {
Control* g_focus = nullptr;
}

Control* FocusedControl() {
  return g_focus;
}
void DropFocusOf(const Form& form) {
  if (g_focus != nullptr && &g_focus->Parent() == &form) g_focus = nullptr;
}

Control::Control(Form& form, ControlKind kind, std::string name, int index)
    : form_(form), kind_(kind), name_(std::move(name)), index_(index) {
  form_.Register(*this);
}

Control::~Control() {
  if (g_focus == this) g_focus = nullptr;
  form_.Unregister(*this);
}

std::string Control::FullName() const {
  return index_ < 0 ? name_ : name_ + "(" + std::to_string(index_) + ")";
}

void Control::Place(float left, float top, float width, float height) {
  Left.SetQuietly(left);
  Top.SetQuietly(top);
  Width.SetQuietly(width);
  Height.SetQuietly(height);
  Written("Width", true);
}

bool Control::HasFocus() const {
  return g_focus == this;
}

void Control::SetFocus() {
  if (!Enabled.Get() || !Visible.Get())
    Fail(FailureKind::InvalidProcedureCall, "SetFocus " + FullName());
  if (g_focus == this) return;
  Control* old = g_focus;
  g_focus = this;
  if (ScreenObserver* screen = CurrentScreenObserver()) screen->FocusChanged(this);
  if (old != nullptr && old->LostFocus) old->LostFocus();
  if (GotFocus) GotFocus();
}

void Control::PropertyWritten(std::string_view name, bool changed) {
  if (changed) {
    if (ScreenObserver* screen = CurrentScreenObserver())
      screen->ControlPropertyChanged(*this, name);
  }
  Written(name, changed);
}

void Label::Written(std::string_view name, bool changed) {
  if (changed && name == "Caption" && Change) Change();
}

void TextBox::Written(std::string_view name, bool changed) {
  if (changed && name == "Text" && Change) Change();
}

void ComboBox::Written(std::string_view name, bool changed) {
  if (changed && name == "Text" && Change) Change();
}

void ComboBox::AddItem(const std::string& item) {
  items_.push_back(item);
  if (ScreenObserver* screen = CurrentScreenObserver())
    screen->ControlPropertyChanged(*this, "List");
}

void ComboBox::Clear() {
  items_.clear();
  Text.SetQuietly(std::string());
  if (ScreenObserver* screen = CurrentScreenObserver()) {
    screen->ControlPropertyChanged(*this, "List");
    screen->ControlPropertyChanged(*this, "Text");
  }
}

void ComboBox::UserPick(long listIndex) {
  if (listIndex < 0 || listIndex >= ListCount())
    Fail(FailureKind::InvalidProcedureCall, "ListIndex");
  // A pick from the list runs Click alone; Change is for typing and for writes from code.
  const std::string& item = items_[static_cast<std::size_t>(listIndex)];
  if (Text.Get() != item) {
    Text.SetQuietly(item);
    if (ScreenObserver* screen = CurrentScreenObserver())
      screen->ControlPropertyChanged(*this, "Text");
  }
  if (Click) Click();
}

void OptionButton::Written(std::string_view name, bool changed) {
  if (name != "Value" || !changed || !Value.Get()) return;
  for (Control* other : Parent().Controls()) {
    if (other == this || other->Kind() != ControlKind::OptionButton) continue;
    if (other->Container() != Container()) continue;
    auto* option = static_cast<OptionButton*>(other);
    if (option->Value.Get()) option->Value = false;
  }
  if (Click) Click();
}

void CheckBox::Written(std::string_view name, bool changed) {
  if (changed && name == "Value" && Click) Click();
}

void Slider::UserMove(long value) {
  Value = value;
  if (Scroll) Scroll();
}

void Timer::Tick() {
  if (Enabled.Get() && Interval.Get() > 0 && TimerEvent) TimerEvent();
}

void Menu::Add(Menu& item) {
  items_.push_back(&item);
  item.parent_ = this;
}

void CommonDialog::ShowOpen() {
  const std::string chosen = CurrentPlatform().OpenFileName({Filter, DialogTitle, FileName, false});
  if (chosen.empty()) {
    if (CancelError) Fail(FailureKind::Cancelled);
    return;
  }
  FileName = chosen;
}

void CommonDialog::ShowSave() {
  const std::string chosen =
      CurrentPlatform().SaveFileName({Filter, DialogTitle, FileName, OverwritePrompt});
  if (chosen.empty()) {
    if (CancelError) Fail(FailureKind::Cancelled);
    return;
  }
  FileName = chosen;
}

}  // namespace ostraline
