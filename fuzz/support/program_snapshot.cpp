#include "fuzz/support/program_snapshot.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "forms/canvas.h"
#include "forms/controls.h"
#include "fuzz/support/fuzz_support.h"

namespace ostraline::fuzz {
namespace {

using WriteBack = std::vector<std::function<void()>>;

template <class T>
void Keep(WriteBack& writeBack, Property<T>& property) {
  writeBack.push_back([&property, value = property.Get()] { property.SetQuietly(value); });
}

template <class T, class... More>
void Keep(WriteBack& writeBack, Property<T>& property, More&... more) {
  Keep(writeBack, property);
  Keep(writeBack, more...);
}

// The list first: clearing it empties the text.
void KeepList(WriteBack& writeBack, ComboBox& box) {
  writeBack.push_back([&box, items = box.List()] {
    if (box.List() == items) return;
    box.Clear();
    for (const std::string& item : items) box.AddItem(item);
  });
}

void KeepPictureBox(WriteBack& writeBack, PictureBox& box) {
  Keep(writeBack, box.ScaleLeft, box.ScaleTop, box.ScaleWidth, box.ScaleHeight, box.AutoRedraw);
  writeBack.push_back([&box, x = box.CurrentX, y = box.CurrentY, fill = box.FillColor,
                       style = box.FillStyle, width = box.DrawWidth] {
    box.CurrentX = x;
    box.CurrentY = y;
    box.FillColor = fill;
    box.FillStyle = style;
    box.DrawWidth = width;
  });
}

void KeepDialog(WriteBack& writeBack, CommonDialog& dialog) {
  writeBack.push_back(
      [&dialog, kept = std::make_tuple(dialog.Filter, dialog.FileName, dialog.DialogTitle,
                                       dialog.CancelError, dialog.OverwritePrompt)] {
        std::tie(dialog.Filter, dialog.FileName, dialog.DialogTitle, dialog.CancelError,
                 dialog.OverwritePrompt) = kept;
      });
}

// What a handler may read back of a control: its place, its state and the
// value of its kind. The drawings on the surfaces are the handlers' output
// and are drawn anew.
void KeepControl(WriteBack& writeBack, Control& control) {
  Keep(writeBack, control.Left, control.Top, control.Width, control.Height, control.Enabled,
       control.Visible, control.ToolTipText, control.FontSize, control.BackColor,
       control.ForeColor);
  if (auto* label = dynamic_cast<Label*>(&control)) {
    Keep(writeBack, label->Caption, label->Alignment);
  } else if (auto* text = dynamic_cast<TextBox*>(&control)) {
    Keep(writeBack, text->Text);
  } else if (auto* combo = dynamic_cast<ComboBox*>(&control)) {
    KeepList(writeBack, *combo);
    Keep(writeBack, combo->Text);
  } else if (auto* button = dynamic_cast<CommandButton*>(&control)) {
    Keep(writeBack, button->Caption);
  } else if (auto* option = dynamic_cast<OptionButton*>(&control)) {
    Keep(writeBack, option->Caption, option->Value);
  } else if (auto* check = dynamic_cast<CheckBox*>(&control)) {
    Keep(writeBack, check->Caption, check->Value);
  } else if (auto* frame = dynamic_cast<Frame*>(&control)) {
    Keep(writeBack, frame->Caption);
  } else if (auto* line = dynamic_cast<LineControl*>(&control)) {
    Keep(writeBack, line->X1, line->Y1, line->X2, line->Y2, line->BorderColor);
  } else if (auto* shape = dynamic_cast<Shape*>(&control)) {
    Keep(writeBack, shape->FillColor, shape->BorderColor);
  } else if (auto* image = dynamic_cast<ImageControl*>(&control)) {
    Keep(writeBack, image->PictureFile);
  } else if (auto* slider = dynamic_cast<Slider*>(&control)) {
    Keep(writeBack, slider->Min, slider->Max, slider->Value);
  } else if (auto* bar = dynamic_cast<ProgressBar*>(&control)) {
    Keep(writeBack, bar->Min, bar->Max, bar->Value);
  } else if (auto* timer = dynamic_cast<Timer*>(&control)) {
    Keep(writeBack, timer->Interval);
  } else if (auto* menu = dynamic_cast<Menu*>(&control)) {
    Keep(writeBack, menu->Caption, menu->Checked);
  } else if (auto* box = dynamic_cast<PictureBox*>(&control)) {
    KeepPictureBox(writeBack, *box);
  } else if (auto* dialog = dynamic_cast<CommonDialog*>(&control)) {
    KeepDialog(writeBack, *dialog);
  }
}

bool Contains(const std::vector<FormSlot*>& slots, const FormSlot* slot) {
  return std::find(slots.begin(), slots.end(), slot) != slots.end();
}

}  // namespace

ProgramSnapshot::SetCopy::SetCopy(const BoreHoleSet& set)
    : rest(set), model(set.ModelCell), ties(set.TieCell) {
  rest.ModelCell = {};
  rest.TieCell = {};
  rest.Derived = {};
}

// The numbers parsed from the tables stay as they are: each knows the
// revision it was read at, and a table copied back brings its revision back.
void ProgramSnapshot::SetCopy::RestoreInto(BoreHoleSet& set) const {
  Table<std::string, 4> liveModel = std::move(set.ModelCell);
  Table<std::string, 2> liveTies = std::move(set.TieCell);
  DerivedTables derived = std::move(set.Derived);
  set = rest;
  if (liveModel.Revision() != model.Revision()) liveModel = model;
  if (liveTies.Revision() != ties.Revision()) liveTies = ties;
  set.ModelCell = std::move(liveModel);
  set.TieCell = std::move(liveTies);
  set.Derived = std::move(derived);
}

ProgramSnapshot::FormCopy::FormCopy(FormSlot& slot)
    : form(&slot.GetForm()), controls(slot.GetForm().Controls()) {
  Form& live = slot.GetForm();
  Keep(writeBack, live.Caption, live.Left, live.Top, live.Width, live.Height, live.Visible,
       live.Enabled, live.BackColor);
  for (Control* control : controls) KeepControl(writeBack, *control);
}

void ProgramSnapshot::FormCopy::RestoreInto(FormSlot& slot) const {
  Require(slot.IsLoaded() && &slot.GetForm() == form && slot.GetForm().Controls() == controls,
          "a form of the snapshot was unloaded or changed its controls");
  for (const std::function<void()>& write : writeBack) write();
}

ProgramSnapshot::ProgramSnapshot()
    : core_(coreState),
      master_(masterSet),
      duo_(duoSet),
      duoState_(duoState),
      display_(displayState),
      events_(eventState),
      batch_(batchState),
      masterProxies_(masterProxies),
      duoProxies_(duoProxies),
      proxy_(proxyState),
      photo_(photoState) {
  for (FormSlot* slot : FormSlot::All()) {
    if (!slot->IsLoaded()) continue;
    loaded_.push_back(slot);
    forms_.emplace_back(*slot);
  }
}

void ProgramSnapshot::Restore() const {
  // Their handlers may write to any state, so they go first.
  for (FormSlot* slot : FormSlot::All()) {
    if (slot->IsLoaded() && !Contains(loaded_, slot)) slot->Unload();
  }
  FormSlot::CollectUnloaded();
  coreState = core_;
  master_.RestoreInto(masterSet);
  duo_.RestoreInto(duoSet);
  duoState = duoState_;
  displayState = display_;
  eventState = events_;
  batchState = batch_;
  masterProxies = masterProxies_;
  duoProxies = duoProxies_;
  proxyState = proxy_;
  photoState = photo_;
  for (std::size_t i = 0; i < loaded_.size(); ++i) forms_[i].RestoreInto(*loaded_[i]);
}

}  // namespace ostraline::fuzz
