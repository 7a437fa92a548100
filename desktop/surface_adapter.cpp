// Picture boxes: the recorded operations painted by the replayer, and the
// mouse in the picture's own scale.
#include <QMouseEvent>
#include <QPainter>
#include <QWidget>

#include "desktop/adapters.h"
#include "desktop/conversions.h"
#include "desktop/picture_painter.h"

namespace ostraline {
namespace {

// A fixed single border is two pixels of sunken edge on each side.
int BorderPixels(const PictureBox& box) {
  return box.BorderStyle.Get() == 1 ? 2 : 0;
}

void PaintSunkenBorder(QPainter& painter, const QRect& outer) {
  const auto edge = [&painter](const QRect& r, const QColor& topLeft, const QColor& bottomRight) {
    painter.fillRect(QRect(r.left(), r.top(), r.width(), 1), topLeft);
    painter.fillRect(QRect(r.left(), r.top(), 1, r.height()), topLeft);
    painter.fillRect(QRect(r.left(), r.bottom(), r.width(), 1), bottomRight);
    painter.fillRect(QRect(r.right(), r.top(), 1, r.height()), bottomRight);
  };
  edge(outer, QColor(160, 160, 160), QColor(255, 255, 255));
  edge(outer.adjusted(1, 1, -1, -1), QColor(105, 105, 105), QColor(227, 227, 227));
}

class SurfaceWidget : public QWidget {
 public:
  explicit SurfaceWidget(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::ClickFocus);
  }
  void SetBox(const PictureBox* box) { box_ = box; }

 protected:
  // The picture's own handlers have taken the pointer: it must not reach the
  // form below, whose move erases the overlay and whose click cuts the window.
  void mousePressEvent(QMouseEvent* event) override { event->accept(); }
  void mouseMoveEvent(QMouseEvent* event) override { event->accept(); }
  void mouseReleaseEvent(QMouseEvent* event) override { event->accept(); }

  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    if (box_ == nullptr) {
      painter.fillRect(rect(), palette().window());
      return;
    }
    const int border = BorderPixels(*box_);
    if (border > 0) PaintSunkenBorder(painter, rect());
    painter.setClipRect(rect().adjusted(border, border, -border, -border));
    painter.translate(border, border);
    PaintSurface(painter, *box_);
  }

 private:
  const PictureBox* box_ = nullptr;
};

class PictureBoxAdapter : public ControlAdapter {
 public:
  PictureBoxAdapter(PictureBox& box, SurfaceWidget* widget)
      : ControlAdapter(box, widget), surface_(widget) {
    surface_->SetBox(&box);
    Watch(surface_);
  }
  void Detach() override {
    surface_->SetBox(nullptr);
    ControlAdapter::Detach();
  }

 protected:
  void SyncOwn(std::string_view) override { surface_->update(); }
  QPointF MouseUnits(const QPointF& position) const override {
    const PictureBox& box = As<PictureBox>();
    const int border = BorderPixels(box);
    return QPointF(box.FromTwipsX(ToTwips(position.x() - border)),
                   box.FromTwipsY(ToTwips(position.y() - border)));
  }
  bool ClickOnRelease() const override { return true; }

 private:
  SurfaceWidget* surface_;
};

}  // namespace

std::unique_ptr<ControlAdapter> MakePictureBoxAdapter(PictureBox& box, QWidget* parent) {
  return std::make_unique<PictureBoxAdapter>(box, new SurfaceWidget(parent));
}

}  // namespace ostraline
