#pragma once
// The correlation assist: a ruler of 100 length units at the scale of the core view.
#include <functional>
#include <string_view>

#include "forms/canvas.h"
#include "forms/controls.h"
#include "forms/form.h"

namespace ostraline {

// The strip tells its form when its size changes, from code or from the form.
class RulerPicture : public PictureBox {
 public:
  using PictureBox::PictureBox;
  std::function<void()> Resize;

 protected:
  void Written(std::string_view name, bool changed) override {
    PictureBox::Written(name, changed);
    if (changed && (name == "Width" || name == "Height") && Resize) Resize();
  }
};

class FrmKX11 : public Form {
 public:
  FrmKX11();

  // The height the form keeps above and below the strip.
  static constexpr float kFrame = 1190;
  static constexpr float kMinimumHeight = 1600;
  static constexpr float kFixedWidth = 1320;

  // Mark positions, 0 at the strip's bottom to 100 at its top.
  ControlArray<TextBox> Text1{*this, "Text1"};
  // The depth down to which the strip is greyed from its top.
  TextBox Text2{*this, "Text2"};
  RulerPicture Picture1{*this, "Picture1"};
  Label Label1{*this, "Label1"};
  // The strip's height at true scale, its stretch against it, the mark with the focus.
  Label Label2{*this, "Label2"};
  Label Label3{*this, "Label3"};
  Label Label4{*this, "Label4"};
  CommandButton Command1{*this, "Command1"};

  void Form_Load() override;
  void Form_Resize() override;
  void Picture1_Resize();
  void DrawKX11();
  void Text1_Change(int index);
  void Text1_GotFocus(int index);
  void Text2_Change();
  void Command1_Click();
  // The view's depth range or scale changed: the strip takes the new true scale.
  void FollowColumnScale();
};

inline FormRef<FrmKX11> frmKX11{"frmKX11"};

}  // namespace ostraline
