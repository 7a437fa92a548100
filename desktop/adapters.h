#pragma once
// One small adapter per kind of control; each makes its widget as a child of
// `parent` (the form's canvas, or the frame that holds the control).
#include <memory>

#include "desktop/control_adapter.h"
#include "forms/canvas.h"

class QWidget;

namespace ostraline {

std::unique_ptr<ControlAdapter> MakeTextBoxAdapter(TextBox& box, QWidget* parent);
std::unique_ptr<ControlAdapter> MakeComboBoxAdapter(ComboBox& combo, QWidget* parent);
std::unique_ptr<ControlAdapter> MakeCommandButtonAdapter(CommandButton& button, QWidget* parent);
std::unique_ptr<ControlAdapter> MakeOptionButtonAdapter(OptionButton& option, QWidget* parent);
std::unique_ptr<ControlAdapter> MakeCheckBoxAdapter(CheckBox& check, QWidget* parent);
std::unique_ptr<ControlAdapter> MakeLabelAdapter(Label& label, QWidget* parent);
std::unique_ptr<ControlAdapter> MakeFrameAdapter(Frame& frame, QWidget* parent);
std::unique_ptr<ControlAdapter> MakeSliderAdapter(Slider& slider, QWidget* parent);
std::unique_ptr<ControlAdapter> MakeProgressBarAdapter(ProgressBar& bar, QWidget* parent);
std::unique_ptr<ControlAdapter> MakePictureBoxAdapter(PictureBox& box, QWidget* parent);
// Lines, shapes and images are painted by the form's canvas; their adapter
// asks it to repaint.
std::unique_ptr<ControlAdapter> MakeGraphicAdapter(Control& control, QWidget* canvas);
std::unique_ptr<ControlAdapter> MakeTimerAdapter(Timer& timer);

}  // namespace ostraline
