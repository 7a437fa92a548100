// Text boxes and combo boxes: the user's typing writes the model's Text,
// which runs Change; the model's writes show without echo.
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>

#include "desktop/adapters.h"
#include "desktop/conversions.h"

namespace ostraline {
namespace {

class LineEditAdapter : public ControlAdapter {
 public:
  LineEditAdapter(TextBox& box, QLineEdit* edit) : ControlAdapter(box, edit), edit_(edit) {
    Watch(edit);
    connect(edit, &QLineEdit::textEdited, this, [this](const QString& text) {
      Forward([&] { As<TextBox>().Text = FromQString(text); });
    });
  }

 protected:
  void SyncOwn(std::string_view property) override {
    if (!property.empty() && property != "Text") return;
    const QString text = ToQString(As<TextBox>().Text.Get());
    // Rewriting an equal text would move the caret under the user's hands.
    if (edit_->text() == text) return;
    // A text written from code shows from its start, also in a narrow box.
    edit_->setText(text);
    edit_->setCursorPosition(0);
  }

 private:
  QLineEdit* edit_;
};

// A multi-line box keeps the program's line breaks, "\r\n".
class PlainTextAdapter : public ControlAdapter {
 public:
  PlainTextAdapter(TextBox& box, QPlainTextEdit* edit) : ControlAdapter(box, edit), edit_(edit) {
    Watch(edit);
    Watch(edit->viewport());
    connect(edit, &QPlainTextEdit::textChanged, this, [this] {
      QString text = edit_->toPlainText();
      text.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
      Forward([&] { As<TextBox>().Text = FromQString(text); });
    });
  }

 protected:
  void SyncOwn(std::string_view property) override {
    if (!property.empty() && property != "Text") return;
    QString text = ToQString(As<TextBox>().Text.Get());
    text.remove(QLatin1Char('\r'));
    if (edit_->toPlainText() != text) edit_->setPlainText(text);
  }

 private:
  QPlainTextEdit* edit_;
};

class ComboBoxAdapter : public ControlAdapter {
 public:
  ComboBoxAdapter(ComboBox& combo, QComboBox* widget)
      : ControlAdapter(combo, widget), combo_(widget) {
    // Any text may stand in the box; only the list's entries are picks.
    combo_->setEditable(true);
    combo_->setInsertPolicy(QComboBox::NoInsert);
    Watch(combo_);
    connect(combo_->lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) {
      Forward([&] { As<ComboBox>().Text = FromQString(text); });
    });
    connect(combo_, &QComboBox::activated, this,
            [this](int index) { Forward([&] { As<ComboBox>().UserPick(index); }); });
  }

 protected:
  void SyncOwn(std::string_view property) override {
    if (!property.empty() && property != "List" && property != "Text") return;
    const QSignalBlocker editBlocker(combo_->lineEdit());
    const ComboBox& model = As<ComboBox>();
    if (property.empty() || property == "List") {
      combo_->clear();
      for (const std::string& item : model.List()) combo_->addItem(ToQString(item));
    }
    // Filling the list puts its first entry into the box: the model's text wins.
    const QString text = ToQString(model.Text.Get());
    if (combo_->currentText() == text) return;
    combo_->setEditText(text);
    combo_->lineEdit()->setCursorPosition(0);
  }

 private:
  QComboBox* combo_;
};

}  // namespace

std::unique_ptr<ControlAdapter> MakeTextBoxAdapter(TextBox& box, QWidget* parent) {
  if (box.MultiLine.Get())
    return std::make_unique<PlainTextAdapter>(box, new QPlainTextEdit(parent));
  return std::make_unique<LineEditAdapter>(box, new QLineEdit(parent));
}

std::unique_ptr<ControlAdapter> MakeComboBoxAdapter(ComboBox& combo, QWidget* parent) {
  return std::make_unique<ComboBoxAdapter>(combo, new QComboBox(parent));
}

}  // namespace ostraline
