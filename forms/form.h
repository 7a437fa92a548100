#pragma once
// Forms: a struct of controls with handlers as member functions. A form is
// created at its first use, which runs Form_Load; Unload runs Form_Unload and
// returns it to its design state, so that the next use loads it anew.
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "forms/canvas.h"
#include "forms/controls.h"

namespace ostraline {

class Form;

// What the desktop shell is told, so that its windows follow the model.
class ScreenObserver {
 public:
  virtual ~ScreenObserver() = default;
  virtual void FormLoaded(Form& form) = 0;
  virtual void FormUnloaded(Form& form) = 0;
  virtual void FormPropertyChanged(Form& form, std::string_view property) = 0;
  virtual void ControlPropertyChanged(Control& control, std::string_view property) = 0;
  virtual void SurfaceChanged(Control& surface, bool refreshNow) = 0;
  virtual void FocusChanged(Control* control) = 0;
  virtual void PopupMenu(Form& form, Menu& menu) = 0;
};

ScreenObserver* CurrentScreenObserver();
void SetScreenObserver(ScreenObserver* observer);

class Form : public PropertyOwner {
 public:
  Form(std::string name, std::string caption);
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;
  ~Form() override;

  const std::string& Name() const { return name_; }
  const std::vector<Control*>& Controls() const { return controls_; }
  // The menu bar: top-level menus in order; pop-up menus are top-level menus
  // that are not visible.
  const std::vector<Menu*>& MenuBar() const { return menuBar_; }
  void AddMenu(Menu& menu) { menuBar_.push_back(&menu); }
  Control* FindControl(const std::string& name, int index = -1) const;

  Property<std::string> Caption{this, "Caption"};
  Property<float> Left{this, "Left"};
  Property<float> Top{this, "Top"};
  Property<float> Width{this, "Width"};
  Property<float> Height{this, "Height"};
  Property<bool> Visible{this, "Visible", false};
  Property<bool> Enabled{this, "Enabled", true};
  Property<long> BackColor{this, "BackColor", kButtonFace};
  Property<bool> Resizable{this, "Resizable", true};

  void Show();
  void Hide();
  void Refresh();
  void PopupMenu(Menu& menu);
  // The form's own printing surface: Print and Cls on the form.
  void Print(const std::string& text);
  void Cls();
  const std::vector<std::string>& PrintedLines() const { return printed_; }

  virtual void Form_Load() {}
  virtual void Form_Unload(int& /*cancel*/) {}
  virtual void Form_Activate() {}
  virtual void Form_Resize() {}
  virtual void Form_Click() {}
  virtual void Form_GotFocus() {}
  virtual void Form_MouseMove(int /*button*/, int /*shift*/, float /*x*/, float /*y*/) {}
  virtual void Form_MouseDown(int /*button*/, int /*shift*/, float /*x*/, float /*y*/) {}

  void PropertyWritten(std::string_view name, bool changed) override;
  void Register(Control& control) { controls_.push_back(&control); }
  void Unregister(Control& control);

 private:
  std::string name_;
  std::vector<Control*> controls_;
  std::vector<Menu*> menuBar_;
  std::vector<std::string> printed_;
};

// The one instance of a form, created at its first use.
class FormSlot {
 public:
  FormSlot(std::string name, std::function<std::unique_ptr<Form>()> factory);
  FormSlot(const FormSlot&) = delete;
  FormSlot& operator=(const FormSlot&) = delete;

  const std::string& Name() const { return name_; }
  bool IsLoaded() const { return form_ != nullptr; }
  Form& GetForm();
  // Runs Form_Unload and drops the instance; nothing when not loaded.
  void Unload();

  static FormSlot* Find(const std::string& name);
  static const std::vector<FormSlot*>& All();
  // Unloaded instances are freed here, outside any of their handlers.
  static void CollectUnloaded();
  // A fresh program: every form dropped without its Form_Unload.
  static void ResetAll();

 private:
  std::string name_;
  std::function<std::unique_ptr<Form>()> factory_;
  std::unique_ptr<Form> form_;
};

template <class F>
class FormRef : public FormSlot {
 public:
  explicit FormRef(const char* name) : FormSlot(name, [] { return std::make_unique<F>(); }) {}
  F* operator->() { return static_cast<F*>(&GetForm()); }
  F& operator*() { return static_cast<F&>(GetForm()); }
};

// Unloads a form by name, as CloseAllForms lists them.
void Unload(const std::string& formName);

}  // namespace ostraline
