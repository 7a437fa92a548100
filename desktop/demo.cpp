#include "desktop/demo.h"

#include <QDir>
#include <QFileInfo>
#include <deque>

#include "desktop/shell.h"
#include "forms/frm_main.h"

namespace ostraline {
namespace {

// Answers the open dialogs with the queued files, and everything else as
// the user would.
class SampleDialogs : public Dialogs {
 public:
  explicit SampleDialogs(std::deque<std::string> files) : files_(std::move(files)) {}
  std::string OpenFileName(const FileDialogRequest& request) override {
    if (files_.empty()) return user_.OpenFileName(request);
    std::string name = files_.front();
    files_.pop_front();
    return name;
  }
  std::string SaveFileName(const FileDialogRequest& request) override {
    return user_.SaveFileName(request);
  }
  MsgAnswer MessageBox(const std::string& text, const std::string& title, MsgIcon icon,
                       MsgButtons buttons) override {
    return user_.MessageBox(text, title, icon, buttons);
  }

 private:
  std::deque<std::string> files_;
  QtDialogs user_;
};

// The one file of the folder whose name begins so, or an empty text.
std::string FileStartingWith(const QDir& folder, const char* stem) {
  const QStringList found = folder.entryList({QString(stem) + "*.csv"}, QDir::Files, QDir::Name);
  return found.isEmpty() ? std::string() : folder.filePath(found.first()).toStdString();
}

}  // namespace

std::string SampleProjectFolder(const std::string& programPath) {
  const QDir beside = QFileInfo(QString::fromStdString(programPath)).dir();
  for (const QString& candidate : {beside.filePath("samples"), beside.filePath("../samples"),
                                   QString(OSTRALINE_SOURCE_SAMPLES)}) {
    if (QFileInfo(candidate).isDir()) return QDir(candidate).absolutePath().toStdString();
  }
  return {};
}

bool ImportSampleProject(Shell& shell, const std::string& folderPath) {
  const QDir folder(QString::fromStdString(folderPath));
  std::deque<std::string> files;
  for (const char* stem :
       {"correlation_model", "event_layers", "age_depth_model", "varve_counts"}) {
    const std::string file = FileStartingWith(folder, stem);
    if (file.empty()) return false;
    files.push_back(file);
  }
  SampleDialogs dialogs(files);
  shell.Platform().SetDialogs(&dialogs);
  FrmMain& form = *frmMain;
  form.Command1_Click();
  form.Command3_Click();
  form.Command4_Click();
  form.Command5_Click();
  shell.Platform().SetDialogs(nullptr);
  return true;
}

}  // namespace ostraline
