#include "desktop/form_window.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

#include <QApplication>
#include <QCloseEvent>
#include <QCursor>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>
#include <algorithm>

#include "desktop/adapters.h"
#include "desktop/conversions.h"
#include "desktop/event_forwarding.h"
#include "desktop/form_canvas.h"
#include "desktop/menu_adapter.h"

namespace ostraline {
namespace {

// A form's Width and Height include its frame, caption and menu bar, at the
// sizes the layout in twips was made for.
constexpr int kBorderPixels = 4;
constexpr int kCaptionPixels = 23;
constexpr int kMenuBarPixels = 20;

unsigned long g_showCount = 0;
// The form window that was active last: a form becomes active again only
// when the user comes from another of the program's forms, not from another
// program or a message box.
const FormWindow* g_lastActive = nullptr;

std::unique_ptr<ControlAdapter> MakeAdapter(Control& control, QWidget* parent, QWidget* canvas) {
  switch (control.Kind()) {
    case ControlKind::Label:
      return MakeLabelAdapter(static_cast<Label&>(control), parent);
    case ControlKind::TextBox:
      return MakeTextBoxAdapter(static_cast<TextBox&>(control), parent);
    case ControlKind::ComboBox:
      return MakeComboBoxAdapter(static_cast<ComboBox&>(control), parent);
    case ControlKind::CommandButton:
      return MakeCommandButtonAdapter(static_cast<CommandButton&>(control), parent);
    case ControlKind::OptionButton:
      return MakeOptionButtonAdapter(static_cast<OptionButton&>(control), parent);
    case ControlKind::CheckBox:
      return MakeCheckBoxAdapter(static_cast<CheckBox&>(control), parent);
    case ControlKind::Frame:
      return MakeFrameAdapter(static_cast<Frame&>(control), parent);
    case ControlKind::Slider:
      return MakeSliderAdapter(static_cast<Slider&>(control), parent);
    case ControlKind::ProgressBar:
      return MakeProgressBarAdapter(static_cast<ProgressBar&>(control), parent);
    case ControlKind::PictureBox:
      return MakePictureBoxAdapter(static_cast<PictureBox&>(control), parent);
    case ControlKind::Line:
    case ControlKind::Shape:
    case ControlKind::Image:
      return MakeGraphicAdapter(control, canvas);
    case ControlKind::Timer:
      return MakeTimerAdapter(static_cast<Timer&>(control));
    case ControlKind::Menu:
    case ControlKind::CommonDialog:
      return nullptr;
  }
  return nullptr;
}

}  // namespace

FormWindow::FormWindow(Form& form) : form_(&form), canvas_(new FormCanvas(form, this)) {
  setCentralWidget(canvas_);
  menuBar()->setNativeMenuBar(false);
  for (Menu* menu : form.MenuBar()) {
    BindMenu(*menu, *menuBar());
    hasMenuBar_ = hasMenuBar_ || menu->Visible.Get();
  }
  menuBar()->setVisible(hasMenuBar_);
  for (Control* control : form.Controls()) Bind(*control);
  for (auto& entry : adapters_) entry.second->Sync({});
  // Pictures lie under the other controls: the panels' boxes and the slider
  // beside the scale strip overlap them. Among themselves they keep the
  // form's order, a later one over an earlier one, at every start: each is
  // lowered under those after it.
  const std::vector<Control*>& controls = form.Controls();
  for (auto control = controls.rbegin(); control != controls.rend(); ++control) {
    if ((*control)->Kind() != ControlKind::PictureBox) continue;
    if (ControlAdapter* adapter = AdapterOf(**control)) adapter->Widget()->lower();
  }
  SyncForm({});
}

FormWindow::~FormWindow() {
  if (g_lastActive == this) g_lastActive = nullptr;
}

ControlAdapter* FormWindow::Bind(Control& control) {
  if (ControlAdapter* bound = AdapterOf(control)) return bound;
  QWidget* parent = canvas_;
  if (Control* frame = control.Container()) {
    ControlAdapter* holder = Bind(*frame);
    if (holder != nullptr && holder->Widget() != nullptr) parent = holder->Widget();
  }
  std::unique_ptr<ControlAdapter> adapter = MakeAdapter(control, parent, canvas_);
  ControlAdapter* bound = adapter.get();
  if (adapter) adapters_.emplace(&control, std::move(adapter));
  return bound;
}

void FormWindow::BindMenu(Menu& menu, QWidget& owner) {
  auto adapter = std::make_unique<MenuAdapter>(menu, owner);
  QMenu* submenu = adapter->Submenu();
  adapters_.emplace(&menu, std::move(adapter));
  for (Menu* item : menu.Items()) BindMenu(*item, *submenu);
}

ControlAdapter* FormWindow::AdapterOf(const Control& control) const {
  const auto found = adapters_.find(&control);
  return found == adapters_.end() ? nullptr : found->second.get();
}

void FormWindow::Detach() {
  form_ = nullptr;
  canvas_->Detach();
  for (auto& entry : adapters_) entry.second->Detach();
}

QSize FormWindow::ClientSize() const {
  const int width = ToPixels(form_->Width.Get()) - 2 * kBorderPixels;
  const int height = ToPixels(form_->Height.Get()) - kCaptionPixels - 2 * kBorderPixels -
                     (hasMenuBar_ ? kMenuBarPixels : 0);
  return QSize(std::max(1, width), std::max(1, height));
}

int FormWindow::MenuBarPixels() const {
  return hasMenuBar_ ? menuBar()->sizeHint().height() : 0;
}

void FormWindow::ApplySize() {
  const QSize client = ClientSize();
  const QSize window(client.width(), client.height() + MenuBarPixels());
  if (form_->Resizable.Get()) {
    setMinimumSize(0, 0);
    setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    resize(window);
  } else {
    setFixedSize(window);
  }
}

void FormWindow::SyncForm(std::string_view property) {
  if (form_ == nullptr) return;
  const bool all = property.empty();
  if (all || property == "Caption") setWindowTitle(ToQString(form_->Caption.Get()));
  if (all || property == "Left" || property == "Top") {
    // A form placed beyond the screen's edge (a tall photo above the main
    // form, say) still shows its top left corner.
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const int x = std::clamp(ToPixels(form_->Left.Get()), screen.left(),
                             std::max(screen.left(), screen.right() - 100));
    const int y = std::clamp(ToPixels(form_->Top.Get()), screen.top(),
                             std::max(screen.top(), screen.bottom() - 100));
    move(x, y);
  }
  if (all || property == "Width" || property == "Height" || property == "Resizable") ApplySize();
  if (all || property == "Enabled") setEnabled(form_->Enabled.Get());
  if (all || property == "BackColor" || property == "Printed") canvas_->update();
  if (property == "Refresh") canvas_->repaint();
  if (all || property == "Visible") {
    if (form_->Visible.Get()) {
      shownOrder_ = ++g_showCount;
      showActivationPending_ = !isVisible();
      show();
      raise();
      activateWindow();
    } else {
      hide();
    }
  }
}

void FormWindow::SyncControl(const Control& control, std::string_view property) {
  if (ControlAdapter* adapter = AdapterOf(control)) adapter->Sync(property);
}

void FormWindow::Redraw(const Control& surface, bool now) {
  if (ControlAdapter* adapter = AdapterOf(surface)) adapter->Redraw(now);
}

void FormWindow::Focus(const Control& control) {
  if (QWidget* widget = WidgetOf(control)) widget->setFocus(Qt::OtherFocusReason);
}

void FormWindow::Popup(const Menu& menu) {
  const auto* adapter = dynamic_cast<const MenuAdapter*>(AdapterOf(menu));
  if (adapter != nullptr && adapter->Submenu() != nullptr) adapter->Submenu()->exec(QCursor::pos());
}

QWidget* FormWindow::WidgetOf(const Control& control) const {
  const ControlAdapter* adapter = AdapterOf(control);
  return adapter == nullptr ? nullptr : adapter->Widget();
}

bool FormWindow::event(QEvent* event) {
  // A disabled form cannot be activated, but a window manager does not know
  // it is disabled and may raise it over the dialog that disabled it. The
  // newest shown enabled form takes the activation instead.
  if (event->type() == QEvent::WindowActivate && !isEnabled()) {
    FormWindow* newest = nullptr;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      auto* other = dynamic_cast<FormWindow*>(widget);
      if (other == nullptr || other == this || other->form_ == nullptr || !other->isVisible() ||
          !other->isEnabled()) {
        continue;
      }
      if (newest == nullptr || other->shownOrder_ > newest->shownOrder_) newest = other;
    }
    if (newest != nullptr) {
      // After this activation has run its course.
      QTimer::singleShot(0, newest, [newest] {
        newest->raise();
        newest->activateWindow();
      });
    }
  }
  if (event->type() == QEvent::WindowActivate && isEnabled() && form_ != nullptr) {
    // The form becomes active again each time the user comes back to it from
    // another of the program's forms; it then holds the keyboard too.
    const bool fromShow = showActivationPending_;
    const bool fromOtherForm = g_lastActive != this;
    showActivationPending_ = false;
    g_lastActive = this;
    if (!fromShow && fromOtherForm) {
      ForwardEvent({*form_, "Form_Activate"}, [this] { form_->Form_Activate(); });
    }
    if ((fromShow || fromOtherForm) && form_ != nullptr) {
      ForwardEvent({*form_, "Form_GotFocus"}, [this] { form_->Form_GotFocus(); });
    }
  }
  return QMainWindow::event(event);
}

void FormWindow::closeEvent(QCloseEvent* event) {
  // The model decides: Form_Unload may cancel, and an unloaded form takes its
  // window with it.
  event->ignore();
  if (form_ == nullptr) return;
  if (FormSlot* slot = FormSlot::Find(form_->Name())) {
    ForwardEvent({*form_, "Unload"}, [slot] { slot->Unload(); });
  }
}

void FormWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  if (form_ == nullptr || !isVisible()) return;
  const QSize client(width(), height() - MenuBarPixels());
  if (client == ClientSize()) return;
  // The user resized the window: the form's size follows, then its handler runs.
  form_->Width.SetQuietly(ToTwips(client.width() + 2 * kBorderPixels));
  form_->Height.SetQuietly(ToTwips(client.height() + kCaptionPixels + 2 * kBorderPixels +
                                   (hasMenuBar_ ? kMenuBarPixels : 0)));
  ForwardEvent({*form_, "Form_Resize"}, [this] { form_->Form_Resize(); });
}

void FormWindow::moveEvent(QMoveEvent* event) {
  QMainWindow::moveEvent(event);
  if (form_ == nullptr || !isVisible()) return;
  if (pos() == QPoint(ToPixels(form_->Left.Get()), ToPixels(form_->Top.Get()))) return;
  form_->Left.SetQuietly(ToTwips(x()));
  form_->Top.SetQuietly(ToTwips(y()));
}

}  // namespace ostraline
