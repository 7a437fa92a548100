#include "desktop/dialogs.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>

#include "desktop/conversions.h"
#include "desktop/file_filter.h"

namespace ostraline {
namespace {

QString DialogTitle(const std::string& title, const QString& fallback) {
  return title.empty() ? fallback : ToQString(title);
}

// File names go to the file system as its own encoding has them.
QString FromPath(const std::string& path) {
  return QFile::decodeName(QByteArray::fromStdString(path));
}
std::string ToPath(const QString& path) {
  return QFile::encodeName(path).toStdString();
}

QMessageBox::Icon QtIcon(MsgIcon icon) {
  switch (icon) {
    case MsgIcon::Critical:
      return QMessageBox::Critical;
    case MsgIcon::Question:
      return QMessageBox::Question;
    case MsgIcon::Exclamation:
      return QMessageBox::Warning;
    case MsgIcon::Information:
      return QMessageBox::Information;
    case MsgIcon::None:
      break;
  }
  return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons QtButtons(MsgButtons buttons) {
  switch (buttons) {
    case MsgButtons::OkCancel:
      return QMessageBox::Ok | QMessageBox::Cancel;
    case MsgButtons::YesNo:
      return QMessageBox::Yes | QMessageBox::No;
    case MsgButtons::YesNoCancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case MsgButtons::Ok:
      break;
  }
  return QMessageBox::Ok;
}

MsgAnswer Answer(int button) {
  switch (button) {
    case QMessageBox::Cancel:
      return MsgAnswer::Cancel;
    case QMessageBox::Yes:
      return MsgAnswer::Yes;
    case QMessageBox::No:
      return MsgAnswer::No;
    default:
      return MsgAnswer::Ok;
  }
}

}  // namespace

std::string QtDialogs::OpenFileName(const FileDialogRequest& request) {
  return ToPath(QFileDialog::getOpenFileName(
      QApplication::activeWindow(), DialogTitle(request.title, QObject::tr("Open")),
      FromPath(request.initialName), QtFileFilter(request.filter), nullptr,
      QFileDialog::HideNameFilterDetails));
}

std::string QtDialogs::SaveFileName(const FileDialogRequest& request) {
  QFileDialog::Options options = QFileDialog::HideNameFilterDetails;
  if (!request.overwritePrompt) options |= QFileDialog::DontConfirmOverwrite;
  return ToPath(QFileDialog::getSaveFileName(
      QApplication::activeWindow(), DialogTitle(request.title, QObject::tr("Save As")),
      FromPath(request.initialName), QtFileFilter(request.filter), nullptr, options));
}

MsgAnswer QtDialogs::MessageBox(const std::string& text, const std::string& title, MsgIcon icon,
                                MsgButtons buttons) {
  QMessageBox box(QtIcon(icon), DialogTitle(title, QApplication::applicationName()),
                  ToQString(text), QtButtons(buttons), QApplication::activeWindow());
  return Answer(box.exec());
}

}  // namespace ostraline
