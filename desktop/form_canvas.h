#pragma once
// The form's own surface under its controls: the background, what Print put
// on it, and the graphical controls (lines, shapes, images) in form space.
#include <QWidget>

namespace ostraline {

class Form;

class FormCanvas : public QWidget {
 public:
  FormCanvas(Form& form, QWidget* parent);
  // The form has gone.
  void Detach() { form_ = nullptr; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  Form* form_;
};

}  // namespace ostraline
