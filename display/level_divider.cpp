// The level divider: a sampling numbering of its own between two tie levels
// of a section, interpolated linearly to the target's PSP and back.
#include <algorithm>
#include <string>

#include "core/project_state.h"
#include "display/display_state.h"
#include "display/mouse_on_columns.h"
#include "duo/duo_state.h"
#include "forms/frm_divider.h"
#include "forms/frm_main.h"
#include "forms/platform.h"
#include "runtime/number_text.h"

namespace ostraline {
namespace {

constexpr long kMagenta = RGB(255, 0, 255);
constexpr long kGreen = RGB(0, 170, 0);
constexpr long kCoreGrey = RGB(200, 200, 200);

// A row at position 1, 2 or 3 from the top: its label and its box.
constexpr float kLabelTops[] = {880, 1960, 3040};
constexpr float kBoxTops[] = {840, 1920, 3000};

bool EndsIn(const std::string& text, const char* a, const char* b) {
  const std::string tail = Right(text, 3);
  return tail == a || tail == b;
}

// The three rows from top to bottom in the order of their values, the
// target's line green.
void Arrange(FrmDivider& form, double target, double above, double below) {
  int targetAt = 1;
  int aboveAt = 0;
  int belowAt = 2;
  if (target < above) {
    targetAt = 0;
    aboveAt = 1;
  } else if (target > below) {
    targetAt = 2;
    belowAt = 1;
  }
  const auto place = [](Control& label, Control& box, int at) {
    label.Top = kLabelTops[at];
    box.Top = kBoxTops[at];
  };
  place(form.Label2(0), form.Combo1(0), aboveAt);
  form.Text1(0).Top = kBoxTops[aboveAt];
  place(form.Label2(1), form.Combo1(1), belowAt);
  form.Text1(1).Top = kBoxTops[belowAt];
  place(form.Label3, form.Text2, targetAt);
  form.Label1.Top = kLabelTops[targetAt];
  LineControl* lines[] = {&form.Line1, &form.Line2, &form.Line3};
  for (int at = 0; at < 3; ++at) lines[at]->BorderColor = at == targetAt ? kGreen : kMagenta;
}

// The section between the two levels on the core beside the rows: the
// levels in magenta, the target in green, on a scale of PSP.
void DrawLevels(FrmDivider& form) {
  PictureBox& picture = form.Picture1;
  const Single above = form.LevelAbovePSP;
  const Single below = form.LevelBelowPSP;
  const Single target = form.TargetLevelPSP;
  const float top = std::min({above, below, target});
  const float span = std::max({above, below, target}) - top;
  const float margin = std::max(span * 0.15f, 1.0f);
  picture.Cls();
  picture.ScaleLeft = 0;
  picture.ScaleWidth = 10;
  picture.ScaleTop = top - margin;
  picture.ScaleHeight = span + 2 * margin;
  picture.LineBF(2, top - margin, 8, top + span + margin, kCoreGrey);
  for (const Single level : {above, below}) picture.Line(0, level, 10, level, kMagenta);
  picture.Line(0, target, 10, target, kGreen);
}

// The sampling positions of the two levels, when both are given and differ.
bool SamplingPositions(const FrmDivider& form, double& s0, double& s1) {
  const std::string& first = form.Text1(0).Text.Get();
  const std::string& second = form.Text1(1).Text.Get();
  if (first == second || first.empty() || second.empty()) return false;
  s0 = Val(first);
  s1 = Val(second);
  return true;
}

// "Fix sampling": the target's PSP from the typed sampling position, which
// moves the main form's target.
void MoveTargetToSampling(FrmDivider& form, double s0, double s1) {
  const Single a = form.LevelAbovePSP;
  const Single t = form.TargetLevelPSP;
  const Single b = form.LevelBelowPSP;
  const double ratio =
      a <= t && t <= b ? ::ostraline::Divide(static_cast<Single>(b - a), s1 - s0) : 1.0;
  const double target = Round((Val(form.Text2.Text.Get()) - s0) * ratio + a, DepthPrecision);
  form.Label3.Caption = "Target depth = " + Str(target) + " cm";
  MainFormOf(SetOfTwin(form)).Text1.Text = Str(target);
}

}  // namespace

void FrmDivider::Divide() {
  MainForm& main = MainFormOf(SetOfTwin(*this));
  if (main.Label2.Top < main.Line2(0).Y1) {
    Option1.Value = true;
  } else {
    Option2.Value = true;
  }
  LevelAbovePSP = TieAbovePSP;
  TargetLevelPSP = ClickedPSP;
  LevelBelowPSP = TieBelowPSP;
  LevelAboveLabel = TieAboveLabel;
  LevelBelowLabel = TieBelowLabel;

  const Single a = LevelAbovePSP;
  const Single t = TargetLevelPSP;
  const Single b = LevelBelowPSP;
  Label3.Caption = "Target depth = " + Str(t) + " cm";
  Combo1(0).Text = LevelAboveLabel;
  Label2(0).Caption = "= " + Str(a) + " cm";
  Combo1(1).Text = LevelBelowLabel;
  Label2(1).Caption = "= " + Str(b) + " cm";
  // By default the two numberings agree.
  Text1(0).Text = Str(a);
  Text1(1).Text = Str(b);
  const std::string rounded = Str(Round(t, DepthPrecision));
  Label1.Caption = rounded;
  Text2.Text = rounded;
  if (a == b) {
    Label1.Caption = "";
    Text2.Text = main.Text1.Text.Get();
    return;
  }
  Arrange(*this, t, a, b);
  for (TextBox* box : {&Text1(0), &Text1(1), &Text2}) box->Height = 285;
  Option1.Top = Text2.Top + 340;
  Option2.Top = Text2.Top + 340;
  DrawLevels(*this);
}

void FrmDivider::Combo1_Click(int index) {
  Combo1_GotFocus();
  // The upper level can't be a section's end, the lower can't be its start.
  if (EndsIn(Combo1(0).Text, "tom", "Bot")) {
    Combo1(0).Text = "";
    Combo1(1).Text = "";
    return;
  }
  if (EndsIn(Combo1(1).Text, "top", "Top")) {
    Combo1(1).Text = "";
    return;
  }
  SetOfTwin(*this).DrivenBy = 8;
  // In "Fix target depth" the box is hidden and can take no focus.
  if (Text2.Visible) Text2.SetFocus();
  // Only the first 30 rows of the section are searched.
  const std::string picked = Combo1(index).Text;
  for (int row = 1; row <= 30; ++row) {
    if (SectionTieList(row, 0).ToText() != picked) continue;
    Label2(index).Caption = "= " + SectionTieList(row, 1).ToText() + " cm";
    const Single psp = CSng(SectionTieList(row, 1).TextValue());
    if (index == 0) {
      TieAbovePSP = psp;
      TieAboveLabel = SectionTieList(row, 0).ToText();
    } else {
      TieBelowPSP = psp;
      TieBelowLabel = SectionTieList(row, 0).ToText();
    }
  }
  Divide();
  if (Combo1(0).Text.Get() == Combo1(1).Text.Get()) {
    Label1.Visible = false;
    Label2(index).Visible = false;
  } else {
    Label2(index).Visible = true;
    Label2(0).Visible = true;
    Label2(1).Visible = true;
  }
  SetOfTwin(*this).DrivenBy = 0;
}

void FrmDivider::Combo1_GotFocus() {
  KeptCombo1Text[0] = Combo1(0).Text;
  KeptCombo1Text[1] = Combo1(1).Text;
}

void FrmDivider::Form_MouseMove(int /*button*/, int /*shift*/, float /*x*/, float /*y*/) {
  Screen.SetMousePointer(0);
  Combo1_GotFocus();
}

namespace {

// A change of the divider's fields drives the main form (DrivenBy 8) while
// it runs on the two sampling positions. Equal sampling positions, or equal
// levels, divide by zero: the fields stay.
template <class Body>
void WithSamplingPositions(FrmDivider& form, Body body) {
  BoreHoleSet& set = SetOfTwin(form);
  set.DrivenBy = 8;
  try {
    double s0 = 0;
    double s1 = 0;
    if (SamplingPositions(form, s0, s1)) body(s0, s1);
  } catch (const RuntimeFailure&) {
  }
  set.DrivenBy = 0;
}

}  // namespace

void FrmDivider::Text1_Change() {
  WithSamplingPositions(*this, [this](double s0, double s1) {
    if (!Option1.Value) {
      MoveTargetToSampling(*this, s0, s1);
      return;
    }
    const Single a = LevelAbovePSP;
    const Single t = TargetLevelPSP;
    const Single b = LevelBelowPSP;
    // Beyond the two levels the sampling offset runs on in centimetres.
    const double ratio =
        a <= t && t <= b ? ::ostraline::Divide(s1 - s0, static_cast<Single>(b - a)) : 1.0;
    const Single offset = t - a;
    Label1.Caption = Str(Round(s0 + offset * ratio, DepthPrecision));
  });
}

void FrmDivider::Text2_Change() {
  WithSamplingPositions(*this, [this](double s0, double s1) {
    MoveTargetToSampling(*this, s0, s1);
    Arrange(*this, Val(Text2.Text.Get()), s0, s1);
  });
}

void FrmDivider::Option1_Click() {
  Text2.Visible = false;
  Label1.Visible = true;
  if (!Text2.Text.Get().empty()) Label1.Caption = Text2.Text.Get();
}

void FrmDivider::Option2_Click() {
  Text2.Visible = true;
  Text2.SetFocus();
  Text2.Text = Label1.Caption.Get();
}

void FrmDivider::Form_Activate() {
  Divide();
  DividerOpen = true;
}

void FrmDivider::Form_Unload(int& /*cancel*/) {
  MainFormOf(SetOfTwin(*this)).Enabled = true;
  DividerOpen = false;
  // The form goes with its unloading: its end comes at once.
  Form_Terminate();
}

void FrmDivider::Form_Terminate() {
  MainFormOf(SetOfTwin(*this)).Enabled = true;
  DividerOpen = false;
  TieAbovePSP = 0;
  ClickedPSP = 0;
  TieBelowPSP = 0;
  TieAboveLabel = "0";
  TieBelowLabel = "0";
}

void FrmMain::mnuDivider_Click() {
  Text1.Visible = Option1(0).Value.Get();
  // Beside the main form, over its right part if the screen has no room.
  FrmDivider& divider = DividerOf(SetOf(*this));
  divider.Left = std::max(0.0f, std::min(Left + Width, Screen.Width() - divider.Width));
  divider.Top = Top + 1200;
  divider.Show();
  DividerOpen = true;
}

// The divider of a bore hole at the target, as a right click there would
// find its two levels.
void FrmMain::mnuBH_Click(int index) {
  SuppressPopup = true;
  SuspendTrinity = true;
  MouseDownProcedure(SetOf(*this), index, 2, 0, 0, CSng(Val(Text2.Text.Get())));
  if (TieAbovePSP != TieBelowPSP) mnuDivider_Click();
}

}  // namespace ostraline
