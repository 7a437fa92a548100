#include "desktop/demo.h"

#include <QDir>
#include <QFileInfo>
#include <deque>
#include <functional>
#include <initializer_list>

#include "desktop/shell.h"
#include "duo/duo_state.h"
#include "forms/frm2_main.h"
#include "forms/frm_main.h"
#include "forms/frm_select.h"

namespace ostraline {
namespace {

// Answers the open dialogs with the queued files and the Duo's question for
// its event list as told; everything else goes to the user. Installed for
// its lifetime.
class QueuedDialogs : public Dialogs {
 public:
  QueuedDialogs(Shell& shell, Dialogs& user, bool duoEvents)
      : shell_(shell), user_(user), duoEvents_(duoEvents) {
    shell_.Platform().SetDialogs(this);
  }
  ~QueuedDialogs() override { shell_.Platform().SetDialogs(nullptr); }

  void Queue(const std::string& file) { files_.push_back(file); }

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
    if (buttons == MsgButtons::YesNo && title == "Ostraline_Duo") {
      return duoEvents_ ? MsgAnswer::Yes : MsgAnswer::No;
    }
    return user_.MessageBox(text, title, icon, buttons);
  }

 private:
  Shell& shell_;
  Dialogs& user_;
  bool duoEvents_;
  std::deque<std::string> files_;
};

// A file of the chain and the button whose dialog takes it.
struct ImportStep {
  const std::string& file;
  CommandButton& button;
  std::function<void()> click;
};

// Clicks the button of each named file in turn, with the file queued for its
// dialog. An import took when its button went dark: that is how the chain
// moves on. Returns the first file whose import did not take or whose button
// was not open at its turn; empty when all took.
std::string ClickImports(QueuedDialogs& dialogs, std::initializer_list<ImportStep> steps) {
  for (const ImportStep& step : steps) {
    if (step.file.empty()) continue;
    if (!step.button.Enabled) return step.file;
    dialogs.Queue(step.file);
    step.click();
    if (step.button.Enabled) return step.file;
  }
  return {};
}

std::string ImportMasterFiles(QueuedDialogs& dialogs, const ProjectFiles& files) {
  FrmMain& form = *frmMain;
  return ClickImports(dialogs, {{files.model, form.Command1, [&] { form.Command1_Click(); }},
                                {files.events, form.Command3, [&] { form.Command3_Click(); }},
                                {files.ages, form.Command4, [&] { form.Command4_Click(); }},
                                {files.varves, form.Command5, [&] { form.Command5_Click(); }}});
}

// "Open Ostraline Duo", then the Duo's own chain. Its event list is picked in
// the dialog that the question at the end of its model's import opens.
std::string ImportDuoFiles(QueuedDialogs& dialogs, const ProjectFiles& files) {
  frmMain->LaunchDuo();
  Frm2Main& duo = *frm2Main;
  const auto importModel = [&] {
    if (!files.duoEvents.empty()) dialogs.Queue(files.duoEvents);
    duo.Command1_Click();
  };
  std::string stopped = ClickImports(dialogs, {{files.duoModel, duo.Command1, importModel}});
  if (!stopped.empty()) return stopped;
  if (!files.duoEvents.empty() && !EventListLoaded2) return files.duoEvents;
  return ClickImports(dialogs, {{files.duoAges, duo.Command4, [&] { duo.Command4_Click(); }},
                                {files.duoVarves, duo.Command5, [&] { duo.Command5_Click(); }}});
}

// The one file of the folder whose name begins so, or an empty text.
std::string FileStartingWith(const QDir& folder, const char* stem) {
  const QStringList found = folder.entryList({QString(stem) + "*.csv"}, QDir::Files, QDir::Name);
  return found.isEmpty() ? std::string() : folder.filePath(found.first()).toStdString();
}

}  // namespace

std::string SampleProjectFolder(const std::string& programPath) {
  const QDir beside = QFileInfo(QString::fromStdString(programPath)).dir();
  for (const QString& candidate :
       {beside.filePath("samples"), beside.filePath("../samples"),
        beside.filePath("../share/ostraline/samples"), QString(OSTRALINE_SOURCE_SAMPLES)}) {
    if (QFileInfo(candidate).isDir()) return QDir(candidate).absolutePath().toStdString();
  }
  return {};
}

std::string ImportProjectFiles(Shell& shell, const ProjectFiles& files, Dialogs& user) {
  QueuedDialogs dialogs(shell, user, !files.duoEvents.empty());
  const std::string stopped = ImportMasterFiles(dialogs, files);
  if (!stopped.empty() || files.duoModel.empty()) return stopped;
  return ImportDuoFiles(dialogs, files);
}

bool ImportSampleProject(Shell& shell, const std::string& folderPath) {
  const QDir folder(QString::fromStdString(folderPath));
  ProjectFiles files;
  files.model = FileStartingWith(folder, "correlation_model");
  files.events = FileStartingWith(folder, "event_layers");
  files.ages = FileStartingWith(folder, "age_depth_model");
  files.varves = FileStartingWith(folder, "varve_counts");
  std::deque<std::string> proxies;
  for (const char* stem : {"xrf_scan", "pollen", "core_logging", "grain_size"}) {
    proxies.push_back(FileStartingWith(folder, stem));
  }
  for (const std::string* file : {&files.model, &files.events, &files.ages, &files.varves,
                                  &proxies[0], &proxies[1], &proxies[2], &proxies[3]}) {
    if (file->empty()) return false;
  }
  QtDialogs user;
  QueuedDialogs dialogs(shell, user, false);
  ImportMasterFiles(dialogs, files);
  for (const std::string& proxy : proxies) dialogs.Queue(proxy);
  FrmMain& form = *frmMain;
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
  return true;
}

bool ImportSampleDuo(Shell& shell, const std::string& folderPath) {
  const QDir folder(QString::fromStdString(folderPath));
  ProjectFiles files;
  files.duoModel = FileStartingWith(folder, "duo_correlation_model");
  files.duoEvents = FileStartingWith(folder, "duo_event_layers");
  if (files.duoModel.empty() || files.duoEvents.empty()) return false;
  QtDialogs user;
  QueuedDialogs dialogs(shell, user, true);
  ImportDuoFiles(dialogs, files);
  // A horizon typed into the Duo's composite depth box: the master follows.
  Frm2Main& duo = *frm2Main;
  int key = 13;
  duo.Text2_KeyDown(key, 0);
  duo.Text2.Text = "640";
  return true;
}

}  // namespace ostraline
