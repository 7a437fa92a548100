#include "desktop/demo.h"

#include <QDir>
#include <QFileInfo>
#include <deque>

#include "desktop/shell.h"
#include "forms/frm2_main.h"
#include "forms/frm_main.h"
#include "forms/frm_select.h"

namespace ostraline {
namespace {

// Answers the open dialogs with the queued files, and everything else as
// the user would.
class SampleDialogs : public Dialogs {
 public:
  explicit SampleDialogs(std::deque<std::string> files, bool yes = false)
      : files_(std::move(files)), yes_(yes) {}
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
    if (yes_ && buttons == MsgButtons::YesNo) return MsgAnswer::Yes;
    return user_.MessageBox(text, title, icon, buttons);
  }

 private:
  std::deque<std::string> files_;
  bool yes_;
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
  for (const char* stem : {"correlation_model", "event_layers", "age_depth_model", "varve_counts",
                           "xrf_scan", "pollen", "core_logging", "grain_size"}) {
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
  // The proxy records into panels 0 to 3, answered as a user would: the scan
  // is on composite depth, the pollen on ages before 1950.
  form.Command6_Click(0);
  frmSelect->Command1_Click();
  form.Command6_Click(1);
  frmSelect->Option1(1).Value = true;
  frmSelect->Command1_Click();
  form.Command6_Click(2);
  form.Command6_Click(3);
  form.mnuFlat11__Click(0);
  // Clicks at the form's right edge widen it panel by panel.
  for (int click = 0; click < 5 && form.Width < form.Picture1(4).Left + form.Picture1(4).Width;
       ++click) {
    form.Form_MouseDown(1, 0, form.Width - 30, 100);
  }
  shell.Platform().SetDialogs(nullptr);
  return true;
}

bool ImportSampleDuo(Shell& shell, const std::string& folderPath) {
  const QDir folder(QString::fromStdString(folderPath));
  std::deque<std::string> files;
  for (const char* stem : {"duo_correlation_model", "duo_event_layers"}) {
    const std::string file = FileStartingWith(folder, stem);
    if (file.empty()) return false;
    files.push_back(file);
  }
  // The Duo's question for its event list is answered Yes.
  SampleDialogs dialogs(files, true);
  shell.Platform().SetDialogs(&dialogs);
  frmMain->LaunchDuo();
  Frm2Main& duo = *frm2Main;
  duo.Command1_Click();
  // A horizon typed into the Duo's composite depth box: the master follows.
  int key = 13;
  duo.Text2_KeyDown(key, 0);
  duo.Text2.Text = "640";
  shell.Platform().SetDialogs(nullptr);
  return true;
}

}  // namespace ostraline
