// Labels, frames, the slider, the progress bar, timers, and the controls the
// form's canvas paints.
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QProgressBar>
#include <QSlider>
#include <QStyle>
#include <QTimer>
#include <algorithm>
#include <climits>

#include "desktop/adapters.h"
#include "desktop/conversions.h"

namespace ostraline {
namespace {

// A label's mouse events are its own: the form below must not run its move,
// press and click handlers for them as well.
class LabelWidget : public QLabel {
 public:
  using QLabel::QLabel;

 protected:
  void mousePressEvent(QMouseEvent* event) override { event->accept(); }
  void mouseMoveEvent(QMouseEvent* event) override { event->accept(); }
  void mouseReleaseEvent(QMouseEvent* event) override { event->accept(); }
  void mouseDoubleClickEvent(QMouseEvent* event) override { event->accept(); }
};

class LabelAdapter : public ControlAdapter {
 public:
  LabelAdapter(Label& label, QLabel* widget) : ControlAdapter(label, widget), label_(widget) {
    label_->setTextFormat(Qt::PlainText);
    label_->setWordWrap(true);
    label_->setAutoFillBackground(true);
    Watch(label_);
  }

 protected:
  void SyncOwn(std::string_view property) override {
    const Label& label = As<Label>();
    if (property.empty() || property == "Caption") label_->setText(ToQString(label.Caption.Get()));
    if (property.empty() || property == "Alignment") {
      const int alignment = label.Alignment.Get();
      const Qt::Alignment across = alignment == 1   ? Qt::AlignRight
                                   : alignment == 2 ? Qt::AlignHCenter
                                                    : Qt::AlignLeft;
      label_->setAlignment(across | Qt::AlignTop);
    }
  }
  bool ClickOnRelease() const override { return true; }

 private:
  QLabel* label_;
};

// A frame: an etched rectangle whose top line the caption interrupts. Its
// controls are placed from its outer corner, caption included.
class FrameWidget : public QWidget {
 public:
  explicit FrameWidget(QWidget* parent) : QWidget(parent) { setAutoFillBackground(true); }
  void SetCaption(const QString& caption) {
    caption_ = caption;
    setAccessibleName(caption);
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    const QFontMetrics metrics(font());
    const int line = metrics.height() / 2;
    const QRect etch(0, line, width() - 2, height() - line - 2);
    painter.setPen(palette().color(QPalette::Dark));
    painter.drawRect(etch);
    painter.setPen(palette().color(QPalette::Light));
    painter.drawRect(etch.translated(1, 1));
    if (caption_.isEmpty()) return;
    const QRect text(6, 0, metrics.horizontalAdvance(caption_), metrics.height());
    painter.fillRect(text, palette().window());
    style()->drawItemText(&painter, text, Qt::AlignLeft | Qt::AlignTop, palette(), isEnabled(),
                          caption_, QPalette::WindowText);
  }

 private:
  QString caption_;
};

class FrameAdapter : public ControlAdapter {
 public:
  FrameAdapter(Frame& frame, FrameWidget* widget) : ControlAdapter(frame, widget), frame_(widget) {
    Watch(frame_);
  }

 protected:
  void SyncOwn(std::string_view property) override {
    if (property.empty() || property == "Caption")
      frame_->SetCaption(ToQString(As<Frame>().Caption.Get()));
  }
  bool ClickOnRelease() const override { return true; }

 private:
  FrameWidget* frame_;
};

int ClampToInt(long value) {
  return static_cast<int>(std::clamp<long>(value, INT_MIN, INT_MAX));
}

class SliderAdapter : public ControlAdapter {
 public:
  SliderAdapter(Slider& slider, QSlider* widget) : ControlAdapter(slider, widget), slider_(widget) {
    Watch(slider_);
    connect(slider_, &QSlider::valueChanged, this,
            [this](int value) { Forward([&] { As<Slider>().UserMove(value); }); });
  }

 protected:
  void SyncOwn(std::string_view property) override {
    const Slider& slider = As<Slider>();
    const bool all = property.empty();
    if (all || property == "Orientation") {
      // A vertical slider has its minimum at the top.
      const bool vertical = slider.Orientation.Get() == 1;
      slider_->setOrientation(vertical ? Qt::Vertical : Qt::Horizontal);
      slider_->setInvertedAppearance(vertical);
      slider_->setInvertedControls(vertical);
    }
    if (all || property == "Min" || property == "Max" || property == "Value") {
      slider_->setRange(ClampToInt(slider.Min.Get()), ClampToInt(slider.Max.Get()));
      slider_->setValue(ClampToInt(slider.Value.Get()));
    }
  }

 private:
  QSlider* slider_;
};

class ProgressBarAdapter : public ControlAdapter {
 public:
  ProgressBarAdapter(ProgressBar& bar, QProgressBar* widget)
      : ControlAdapter(bar, widget), bar_(widget) {
    bar_->setTextVisible(false);
    Watch(bar_);
  }

 protected:
  void SyncOwn(std::string_view property) override {
    if (!property.empty() && property != "Min" && property != "Max" && property != "Value") return;
    const ProgressBar& bar = As<ProgressBar>();
    const int low = qRound(bar.Min.Get());
    const int high = std::max(low, qRound(bar.Max.Get()));
    bar_->setRange(low, high);
    bar_->setValue(std::clamp(qRound(bar.Value.Get()), low, high));
  }

 private:
  QProgressBar* bar_;
};

class GraphicAdapter : public ControlAdapter {
 public:
  GraphicAdapter(Control& control, QWidget* canvas)
      : ControlAdapter(control, nullptr), canvas_(canvas) {}
  void Redraw(bool now) override {
    if (now) {
      canvas_->repaint();
    } else {
      canvas_->update();
    }
  }

 protected:
  void SyncOwn(std::string_view) override { canvas_->update(); }

 private:
  QWidget* canvas_;
};

class TimerAdapter : public ControlAdapter {
 public:
  explicit TimerAdapter(Timer& timer) : ControlAdapter(timer, nullptr) {
    connect(&clock_, &QTimer::timeout, this, [this] { Forward([this] { As<Timer>().Tick(); }); });
  }
  void Detach() override {
    clock_.stop();
    ControlAdapter::Detach();
  }

 protected:
  void SyncOwn(std::string_view property) override {
    if (!property.empty() && property != "Interval" && property != "Enabled") return;
    const Timer& timer = As<Timer>();
    if (timer.Enabled.Get() && timer.Interval.Get() > 0) {
      clock_.start(ClampToInt(timer.Interval.Get()));
    } else {
      clock_.stop();
    }
  }

 private:
  QTimer clock_;
};

}  // namespace

std::unique_ptr<ControlAdapter> MakeLabelAdapter(Label& label, QWidget* parent) {
  return std::make_unique<LabelAdapter>(label, new LabelWidget(parent));
}

std::unique_ptr<ControlAdapter> MakeFrameAdapter(Frame& frame, QWidget* parent) {
  return std::make_unique<FrameAdapter>(frame, new FrameWidget(parent));
}

std::unique_ptr<ControlAdapter> MakeSliderAdapter(Slider& slider, QWidget* parent) {
  return std::make_unique<SliderAdapter>(slider, new QSlider(parent));
}

std::unique_ptr<ControlAdapter> MakeProgressBarAdapter(ProgressBar& bar, QWidget* parent) {
  return std::make_unique<ProgressBarAdapter>(bar, new QProgressBar(parent));
}

std::unique_ptr<ControlAdapter> MakeGraphicAdapter(Control& control, QWidget* canvas) {
  return std::make_unique<GraphicAdapter>(control, canvas);
}

std::unique_ptr<ControlAdapter> MakeTimerAdapter(Timer& timer) {
  return std::make_unique<TimerAdapter>(timer);
}

}  // namespace ostraline
