#pragma once
// One control of the model and its widget. The model's writes are copied into
// the widget under a signal blocker, so that nothing echoes back; the user's
// events on the widget go to the model, which runs the handlers.
#include <QObject>
#include <QPointF>
#include <functional>
#include <string_view>

#include "forms/controls.h"

class QKeyEvent;
class QMouseEvent;
class QWidget;

namespace ostraline {

class ControlAdapter : public QObject {
 public:
  // The widget may be null for controls that have none of their own.
  ControlAdapter(Control& control, QWidget* widget);

  Control* Model() const { return model_; }
  QWidget* Widget() const { return widget_; }

  // Copies a property of the model into the widget; an empty name copies all.
  void Sync(std::string_view property);
  // The control's drawing changed.
  virtual void Redraw(bool now);
  // The form has gone: the widget waits for Qt to delete it and talks to no
  // model any more.
  virtual void Detach() { model_ = nullptr; }

 protected:
  // The kind's own properties; an empty name means all of them.
  virtual void SyncOwn(std::string_view property) = 0;
  // Mouse X and Y as the control's handlers take them: twips by default.
  virtual QPointF MouseUnits(const QPointF& position) const;
  // Whether a click on the bare control is its Click event (labels, pictures).
  virtual bool ClickOnRelease() const { return false; }

  template <class T>
  T& As() const {
    return static_cast<T&>(*model_);
  }
  // Runs a user event on the model unless the form has gone.
  void Forward(const std::function<void()>& event);
  // Sends a widget's mouse events to the model, and its key and focus events
  // when it is the key source (the control's own widget, unless changed).
  void Watch(QWidget* widget);
  void SetKeySource(QObject* source) { keySource_ = source; }

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void SyncCommon(std::string_view property);
  void ApplyColours();
  void ForwardMouse(const MouseHandler& handler, const QMouseEvent& event, int buttons);
  bool ForwardKey(QObject* watched, const QKeyEvent& event);

  Control* model_;
  QWidget* widget_;
  QObject* keySource_;
  // A replaced character is typed through the filter without asking again.
  bool retyping_ = false;
};

}  // namespace ostraline
