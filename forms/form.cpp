#include "forms/form.h"

#include <algorithm>

namespace ostraline {

namespace {
ScreenObserver* g_screen = nullptr;

std::vector<FormSlot*>& Slots() {
  static std::vector<FormSlot*> slots;
  return slots;
}

std::vector<std::unique_ptr<Form>>& Graveyard() {
  static std::vector<std::unique_ptr<Form>> graveyard;
  return graveyard;
}

// Forms in the middle of their Form_Unload: a second Unload of them is ignored.
std::vector<const FormSlot*>& Unloading() {
  static std::vector<const FormSlot*> unloading;
  return unloading;
}
}  // namespace

ScreenObserver* CurrentScreenObserver() {
  return g_screen;
}
void SetScreenObserver(ScreenObserver* observer) {
  g_screen = observer;
}

Form::Form(std::string name, std::string caption) : name_(std::move(name)) {
  Caption.SetQuietly(caption);
}

Form::~Form() = default;

Control* Form::FindControl(const std::string& name, int index) const {
  for (Control* c : controls_) {
    if (c->Name() == name && c->Index() == index) return c;
  }
  return nullptr;
}

void Form::Unregister(Control& control) {
  controls_.erase(std::remove(controls_.begin(), controls_.end(), &control), controls_.end());
}

void Form::PropertyWritten(std::string_view name, bool changed) {
  if (changed && g_screen != nullptr) g_screen->FormPropertyChanged(*this, name);
}

void Form::Show() {
  if (Visible.Get()) return;
  Visible = true;
  Form_Activate();
}

void Form::Hide() {
  Visible = false;
}

void Form::Refresh() {
  if (g_screen != nullptr) g_screen->FormPropertyChanged(*this, "Refresh");
}

void Form::PopupMenu(Menu& menu) {
  if (g_screen != nullptr) g_screen->PopupMenu(*this, menu);
}

void Form::Print(const std::string& text) {
  printed_.push_back(text);
  if (g_screen != nullptr) g_screen->FormPropertyChanged(*this, "Printed");
}

void Form::Cls() {
  printed_.clear();
  if (g_screen != nullptr) g_screen->FormPropertyChanged(*this, "Printed");
}

FormSlot::FormSlot(std::string name, std::function<std::unique_ptr<Form>()> factory)
    : name_(std::move(name)), factory_(std::move(factory)) {
  Slots().push_back(this);
}

Form& FormSlot::GetForm() {
  if (!form_) {
    form_ = factory_();
    if (g_screen != nullptr) g_screen->FormLoaded(*form_);
    form_->Form_Load();
  }
  return *form_;
}

void FormSlot::Unload() {
  if (!form_) return;
  auto& unloading = Unloading();
  if (std::find(unloading.begin(), unloading.end(), this) != unloading.end()) return;
  unloading.push_back(this);
  int cancel = 0;
  try {
    form_->Form_Unload(cancel);
  } catch (...) {
    unloading.erase(std::find(unloading.begin(), unloading.end(), this));
    throw;
  }
  unloading.erase(std::find(unloading.begin(), unloading.end(), this));
  if (cancel != 0 || !form_) return;
  if (g_screen != nullptr) g_screen->FormUnloaded(*form_);
  DropFocusOf(*form_);
  Graveyard().push_back(std::move(form_));
}

FormSlot* FormSlot::Find(const std::string& name) {
  for (FormSlot* slot : Slots()) {
    if (slot->name_ == name) return slot;
  }
  return nullptr;
}

const std::vector<FormSlot*>& FormSlot::All() {
  return Slots();
}

void FormSlot::CollectUnloaded() {
  Graveyard().clear();
}

void FormSlot::ResetAll() {
  for (FormSlot* slot : Slots()) {
    if (slot->form_) {
      if (g_screen != nullptr) g_screen->FormUnloaded(*slot->form_);
      DropFocusOf(*slot->form_);
      slot->form_.reset();
    }
  }
  Unloading().clear();
  CollectUnloaded();
}

void Unload(const std::string& formName) {
  if (FormSlot* slot = FormSlot::Find(formName)) slot->Unload();
}

}  // namespace ostraline
