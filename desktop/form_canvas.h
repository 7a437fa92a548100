#pragma once
// The form's own surface under its controls: the background, what Print put
// on it, and the graphical controls (lines, shapes, images) in form space.
#include <QWidget>

namespace ostraline {

class Control;
class Form;

class FormCanvas : public QWidget {
 public:
  FormCanvas(Form& form, QWidget* parent);
  // The form has gone.
  void Detach() {
    form_ = nullptr;
    captured_ = nullptr;
  }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  Form* form_;
  // The image that took the last press, until the button is let go.
  Control* captured_ = nullptr;
};

}  // namespace ostraline
