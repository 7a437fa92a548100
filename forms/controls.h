#pragma once
// The controls of a form without a screen. Writes to Text, Caption and Value
// run the control's event inside the write, as the logic of the forms expects;
// the desktop shell mirrors every write into its widgets.
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/property.h"
#include "runtime/failure.h"

namespace ostraline {

class Form;

enum class ControlKind {
  Label,
  TextBox,
  ComboBox,
  CommandButton,
  OptionButton,
  CheckBox,
  Frame,
  Line,
  Shape,
  Image,
  Slider,
  ProgressBar,
  Timer,
  Menu,
  PictureBox,
  CommonDialog,
};

// Colours are held as one Long: red + green * 256 + blue * 65536.
constexpr long RGB(int red, int green, int blue) {
  return static_cast<long>(red) + static_cast<long>(green) * 256L +
         static_cast<long>(blue) * 65536L;
}
constexpr int RedOf(long colour) {
  return static_cast<int>(colour & 0xFF);
}
constexpr int GreenOf(long colour) {
  return static_cast<int>((colour >> 8) & 0xFF);
}
constexpr int BlueOf(long colour) {
  return static_cast<int>((colour >> 16) & 0xFF);
}
constexpr long kWhite = RGB(255, 255, 255);
constexpr long kBlack = RGB(0, 0, 0);
constexpr long kButtonFace = RGB(240, 240, 240);

using MouseHandler = std::function<void(int button, int shift, float x, float y)>;

class Control : public PropertyOwner {
 public:
  Control(Form& form, ControlKind kind, std::string name, int index = -1);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  ~Control() override;

  ControlKind Kind() const { return kind_; }
  const std::string& Name() const { return name_; }
  // -1 for a control that is not part of a control array.
  int Index() const { return index_; }
  // "Text2" or "Label1(8)".
  std::string FullName() const;
  Form& Parent() const { return form_; }
  // The frame that holds the control, or null for the form itself.
  Control* Container() const { return container_; }
  void SetContainer(Control* frame) { container_ = frame; }

  // Design-time placement in twips, without events.
  void Place(float left, float top, float width, float height);

  // Moves the focus here at once: the old control's LostFocus and this one's
  // GotFocus run inside the call. A control that cannot take it fails.
  void SetFocus();
  bool HasFocus() const;

  void PropertyWritten(std::string_view name, bool changed) override;

  Property<float> Left{this, "Left"};
  Property<float> Top{this, "Top"};
  Property<float> Width{this, "Width"};
  Property<float> Height{this, "Height"};
  Property<bool> Enabled{this, "Enabled", true};
  Property<bool> Visible{this, "Visible", true};
  Property<std::string> ToolTipText{this, "ToolTipText"};
  Property<float> FontSize{this, "FontSize", 8.0f};
  Property<long> BackColor{this, "BackColor", kButtonFace};
  Property<long> ForeColor{this, "ForeColor", kBlack};

  std::function<void()> Click;
  std::function<void()> DblClick;
  std::function<void()> GotFocus;
  std::function<void()> LostFocus;
  std::function<void(int& keyCode, int shift)> KeyDown;
  std::function<void(int& keyAscii)> KeyPress;
  MouseHandler MouseDown;
  MouseHandler MouseMove;
  MouseHandler MouseUp;

 protected:
  // What a write does beyond telling the screen.
  virtual void Written(std::string_view, bool) {}

 private:
  Form& form_;
  ControlKind kind_;
  std::string name_;
  int index_;
  Control* container_ = nullptr;
};

class Label : public Control {
 public:
  Label(Form& form, std::string name, int index = -1)
      : Control(form, ControlKind::Label, std::move(name), index) {}
  Property<std::string> Caption{this, "Caption"};
  Property<int> Alignment{this, "Alignment"};  // 0 left, 1 right, 2 centre
  std::function<void()> Change;

 protected:
  void Written(std::string_view name, bool changed) override;
};

class TextBox : public Control {
 public:
  TextBox(Form& form, std::string name, int index = -1)
      : Control(form, ControlKind::TextBox, std::move(name), index) {
    BackColor.SetQuietly(kWhite);
  }
  Property<std::string> Text{this, "Text"};
  Property<bool> MultiLine{this, "MultiLine", false};
  std::function<void()> Change;

 protected:
  void Written(std::string_view name, bool changed) override;
};

class ComboBox : public Control {
 public:
  ComboBox(Form& form, std::string name, int index = -1)
      : Control(form, ControlKind::ComboBox, std::move(name), index) {
    BackColor.SetQuietly(kWhite);
  }
  Property<std::string> Text{this, "Text"};
  // The list; writes go through AddItem and Clear so that the screen follows.
  const std::vector<std::string>& List() const { return items_; }
  long ListCount() const { return static_cast<long>(items_.size()); }
  void AddItem(const std::string& item);
  // Empties the list and the text, without a Change.
  void Clear();
  // The user picks an entry: the text follows, then Click runs.
  void UserPick(long listIndex);
  std::function<void()> Change;

 protected:
  void Written(std::string_view name, bool changed) override;

 private:
  std::vector<std::string> items_;
};

class CommandButton : public Control {
 public:
  CommandButton(Form& form, std::string name, int index = -1)
      : Control(form, ControlKind::CommandButton, std::move(name), index) {}
  Property<std::string> Caption{this, "Caption"};
};

class OptionButton : public Control {
 public:
  OptionButton(Form& form, std::string name, int index = -1)
      : Control(form, ControlKind::OptionButton, std::move(name), index) {}
  Property<std::string> Caption{this, "Caption"};
  // Writing true to a button that is not set sets it, clears the others of its
  // container, and runs its Click.
  Property<bool> Value{this, "Value", false};

 protected:
  void Written(std::string_view name, bool changed) override;
};

class CheckBox : public Control {
 public:
  CheckBox(Form& form, std::string name, int index = -1)
      : Control(form, ControlKind::CheckBox, std::move(name), index) {}
  Property<std::string> Caption{this, "Caption"};
  // 0 unticked, 1 ticked. A change runs Click.
  Property<int> Value{this, "Value", 0};

 protected:
  void Written(std::string_view name, bool changed) override;
};

class Frame : public Control {
 public:
  Frame(Form& form, std::string name, int index = -1)
      : Control(form, ControlKind::Frame, std::move(name), index) {}
  Property<std::string> Caption{this, "Caption"};
};

// A fixed line in form space.
class LineControl : public Control {
 public:
  LineControl(Form& form, std::string name, int index = -1)
      : Control(form, ControlKind::Line, std::move(name), index) {}
  Property<float> X1{this, "X1"};
  Property<float> Y1{this, "Y1"};
  Property<float> X2{this, "X2"};
  Property<float> Y2{this, "Y2"};
  Property<long> BorderColor{this, "BorderColor", kBlack};
  Property<int> BorderWidth{this, "BorderWidth", 1};
};

class Shape : public Control {
 public:
  Shape(Form& form, std::string name, int index = -1)
      : Control(form, ControlKind::Shape, std::move(name), index) {}
  Property<int> ShapeKind{this, "Shape", 0};  // 0 rectangle, 2 oval, 3 circle
  Property<long> FillColor{this, "FillColor", kBlack};
  Property<int> FillStyle{this, "FillStyle", 1};
  Property<long> BorderColor{this, "BorderColor", kBlack};
};

class ImageControl : public Control {
 public:
  ImageControl(Form& form, std::string name, int index = -1)
      : Control(form, ControlKind::Image, std::move(name), index) {}
  // A picture file shipped with the program, drawn stretched.
  Property<std::string> PictureFile{this, "Picture"};
};

class Slider : public Control {
 public:
  Slider(Form& form, std::string name, int index = -1)
      : Control(form, ControlKind::Slider, std::move(name), index) {}
  // Writing Value from code runs nothing.
  Property<long> Value{this, "Value", 0};
  Property<long> Min{this, "Min", 0};
  Property<long> Max{this, "Max", 10};
  Property<int> Orientation{this, "Orientation", 1};  // 1 vertical
  // The user moves the slider: the value follows, then Scroll runs.
  void UserMove(long value);
  std::function<void()> Scroll;
};

class ProgressBar : public Control {
 public:
  ProgressBar(Form& form, std::string name, int index = -1)
      : Control(form, ControlKind::ProgressBar, std::move(name), index) {}
  Property<float> Min{this, "Min", 0};
  Property<float> Max{this, "Max", 100};
  Property<float> Value{this, "Value", 0};
};

class Timer : public Control {
 public:
  Timer(Form& form, std::string name, int index = -1)
      : Control(form, ControlKind::Timer, std::move(name), index) {
    Visible.SetQuietly(false);
  }
  Property<long> Interval{this, "Interval", 0};
  // Runs the timer's event once, as the platform's clock does.
  void Tick();
  std::function<void()> TimerEvent;
};

class Menu : public Control {
 public:
  Menu(Form& form, std::string name, int index = -1)
      : Control(form, ControlKind::Menu, std::move(name), index) {}
  Property<std::string> Caption{this, "Caption"};
  // Writing Checked runs nothing.
  Property<bool> Checked{this, "Checked", false};
  // Entries of this menu, in order; a caption "-" is a separator.
  const std::vector<Menu*>& Items() const { return items_; }
  Menu* ParentMenu() const { return parent_; }
  void Add(Menu& item);

 private:
  std::vector<Menu*> items_;
  Menu* parent_ = nullptr;
};

// The file dialog of the form; its Show calls run the platform's dialogs.
class CommonDialog : public Control {
 public:
  CommonDialog(Form& form, std::string name, int index = -1)
      : Control(form, ControlKind::CommonDialog, std::move(name), index) {
    Visible.SetQuietly(false);
  }
  std::string Filter;
  std::string FileName;
  std::string DialogTitle;
  bool CancelError = false;
  // Ask before overwriting in the save dialog.
  bool OverwritePrompt = false;
  // Cancelling raises the Cancelled failure when CancelError is set.
  void ShowOpen();
  void ShowSave();
};

// The control that has the focus, if any.
Control* FocusedControl();
// Forgets the focus when its form goes away.
void DropFocusOf(const Form& form);

// A control array with the indices the form gives it, sparse ones too.
template <class T>
class ControlArray {
 public:
  ControlArray(Form& form, std::string name) : form_(form), name_(std::move(name)) {}
  T& Add(int index) {
    auto& slot = items_[index];
    slot = std::make_unique<T>(form_, name_, index);
    return *slot;
  }
  T& operator()(int index) const {
    auto it = items_.find(index);
    if (it == items_.end())
      Fail(FailureKind::SubscriptOutOfRange, name_ + "(" + std::to_string(index) + ")");
    return *it->second;
  }
  bool Has(int index) const { return items_.count(index) != 0; }
  const std::string& Name() const { return name_; }
  int LBound() const { return items_.empty() ? 0 : items_.begin()->first; }
  int UBound() const { return items_.empty() ? -1 : items_.rbegin()->first; }
  template <class F>
  void ForEach(F f) const {
    for (auto& [index, item] : items_) f(*item);
  }

 private:
  Form& form_;
  std::string name_;
  std::map<int, std::unique_ptr<T>> items_;
};

}  // namespace ostraline
