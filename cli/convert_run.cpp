#include "cli/convert_run.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <functional>
#include <memory>
#include <string>

#include "cli/progress_display.h"
#include "core/project_state.h"
#include "duo/duo_state.h"
#include "events/batch_state.h"
#include "forms/frm2_conversion.h"
#include "forms/frm2_main.h"
#include "forms/frm_conversion.h"
#include "forms/frm_main.h"
#include "forms/scripted_platform.h"
#include "service/import_diagnosis.h"

namespace ostraline::cli {
namespace {

const char* ScaleName(int code) {
  switch (code) {
    case 1:
      return "trinity";
    case 2:
      return "composite";
    case 4:
      return "efd";
    default:
      return "age";
  }
}

// The scripted dialogs, with the two questions a conversion can meet
// answered from the command line: the version warning of the age-depth
// model, and the Duo's question for its event list.
class ConsolePlatform : public ScriptedPlatform {
 public:
  ConsolePlatform(bool ignoreVersions, bool duoEvents)
      : ignoreVersions_(ignoreVersions), duoEvents_(duoEvents) {}
  MsgAnswer MessageBox(const std::string& text, const std::string& title, MsgIcon icon,
                       MsgButtons buttons) override {
    if (buttons == MsgButtons::YesNo) {
      const bool yes = title == "Ostraline_Duo" ? duoEvents_ : ignoreVersions_;
      QueueAnswer(yes ? MsgAnswer::Yes : MsgAnswer::No);
    }
    return ScriptedPlatform::MessageBox(text, title, icon, buttons);
  }

 private:
  bool ignoreVersions_;
  bool duoEvents_;
};

// Exit status of a Duo import whose button is not open at its turn.
constexpr int kRefused = 2;
// Rows from which a conversion shows its progress on a terminal.
constexpr double kLargeFile = 50000;

class Conversion {
 public:
  Conversion(const ConvertOptions& options, std::ostream& messages)
      : options_(options),
        messages_(messages),
        platform_(options.ignoreVersionMismatch, !options.duoEvents.empty()) {
    SetPlatform(&platform_);
    platform_.onMessage = [this](const MessageRecord& message) { Tell(message); };
    // A bar only where someone watches: nothing extra in a pipe or a log.
    if (isatty(fileno(stderr)) != 0) {
      progress_ = std::make_unique<ProgressDisplay>(stderr, kLargeFile);
      SetScreenObserver(progress_.get());
    }
  }
  ~Conversion() {
    if (progress_) SetScreenObserver(nullptr);
    SetPlatform(nullptr);
  }

  int Run() {
    const std::string* inputs[] = {&options_.model,   &options_.events,    &options_.ages,
                                   &options_.varves,  &options_.duoModel,  &options_.duoEvents,
                                   &options_.duoAges, &options_.duoVarves, &options_.input};
    for (const std::string* file : inputs) {
      if (!file->empty() && !std::ifstream(*file, std::ios::binary)) {
        return Failed("cannot open " + *file);
      }
    }
    if (const int refused = CheckOutput(inputs); refused != 0) return refused;
    FrmMain& main = *frmMain;
    // Chosen before the model is read, so that its depths are made by it.
    if (options_.oneToOne) main.Option4(1).Value = true;
    if (!Import("correlation model", options_.model, ImportedFile::CorrelationModel, main.Command1,
                [&] { main.Command1_Click(); })) {
      return 1;
    }
    // The precision menus open with the model; the ages of the control
    // points take their EFD at the import of the age-depth model.
    ChooseDigits(main.mnuDepPrec, options_.depthDigits, DepthPrecision);
    ChooseDigits(main.mnuAgePrec, options_.ageDigits, AgePrecision);
    if (!options_.events.empty() &&
        !Import("list of event layers", options_.events, ImportedFile::EventList, main.Command3,
                [&] { main.Command3_Click(); })) {
      return 1;
    }
    if (!options_.ages.empty() &&
        !Import("age-depth model", options_.ages, ImportedFile::AgeModel, main.Command4,
                [&] { main.Command4_Click(); })) {
      return 1;
    }
    if (!options_.varves.empty() &&
        !Import("varve counts", options_.varves, ImportedFile::VarveCounts, main.Command5,
                [&] { main.Command5_Click(); })) {
      return 1;
    }

    if (!options_.duoModel.empty()) {
      if (const int status = OpenDuo(main); status != 0) return status;
    }

    Step("data file " + options_.input);
    platform_.QueueFile(options_.input);
    MainForm& reader = options_.duo ? static_cast<MainForm&>(*frm2Main) : main;
    reader.Command2.Click();
    FormSlot& slot = options_.duo ? static_cast<FormSlot&>(frm2Conversion) : frmConversion;
    if (errorShown_ || !slot.IsLoaded()) {
      return FailedImport("not read", ImportedFile::DataFile, options_.input);
    }
    if (!options_.quiet) {
      for (const std::string& warning : DataFileWarnings(options_.input))
        messages_ << "ostraline-convert: warning: " << warning << "\n";
    }
    FrmConversion& form = static_cast<FrmConversion&>(slot.GetForm());
    if (!ChooseScales(form)) return 1;

    Step("output " + options_.output);
    platform_.QueueFile(options_.output);
    form.Command1_Click();
    if (errorShown_ || slot.IsLoaded()) {
      Failed("not written");
      // The system's reason, as the output file met it.
      if (LastFailure().serial != failuresBefore_) Failed(LastFailure().detail);
      return 1;
    }
    return 0;
  }

 private:
  void Step(std::string what) {
    step_ = Printable(what);
    errorShown_ = false;
    failuresBefore_ = LastFailure().serial;
  }

  void Tell(const MessageRecord& message) {
    if (progress_) progress_->Clear();
    messages_ << "ostraline-convert: " << step_ << ": " << message.title << ": "
              << Printable(message.text);
    if (message.buttons == MsgButtons::YesNo) {
      messages_ << (message.answer == MsgAnswer::Yes ? " [Yes]"
                                                     : " [No: see --ignore-version-mismatch]");
    }
    messages_ << "\n";
    if (message.title == "Error") errorShown_ = true;
  }

  int Failed(const std::string& why) {
    messages_ << "ostraline-convert: " << (step_.empty() ? "" : step_ + ": ") << Printable(why)
              << "\n";
    return 1;
  }

  // An import took when its button went dark: that is how the chain moves on.
  // A message on the way (the first target below a short core, say) is told
  // but does not undo it.
  bool Import(const char* what, const std::string& file, ImportedFile kind, CommandButton& button,
              const std::function<void()>& click) {
    Step(std::string(what) + " " + file);
    platform_.QueueFile(file);
    click();
    if (!button.Enabled) return true;
    FailedImport("not imported", kind, file);
    return false;
  }

  // The step's failure, then where the file broke when a failure ended its
  // import; a refusal of the user's (a version declined) has nothing more to tell.
  int FailedImport(const char* why, ImportedFile kind, const std::string& file) {
    Failed(why);
    if (LastFailure().serial != failuresBefore_)
      messages_ << "ostraline-convert: " << DiagnoseImport(kind, file, LastFailure()) << "\n";
    return 1;
  }

  // "Open Ostraline Duo", then the Duo's own import chain. Its event list
  // comes with the question at the end of its model's import.
  int OpenDuo(FrmMain& main) {
    main.LaunchDuo();
    Frm2Main& duo = *frm2Main;
    Step("parallel correlation model " + options_.duoModel);
    platform_.QueueFile(options_.duoModel);
    if (!options_.duoEvents.empty()) platform_.QueueFile(options_.duoEvents);
    duo.Command1_Click();
    if (duo.Command1.Enabled) {
      return FailedImport("not imported", ImportedFile::CorrelationModel, options_.duoModel);
    }
    if (!options_.duoEvents.empty() && !EventListLoaded2) {
      // Imported within the model's step: its failure counts from there.
      const long failuresBefore = failuresBefore_;
      Step("parallel list of event layers " + options_.duoEvents);
      failuresBefore_ = failuresBefore;
      return FailedImport("not imported", ImportedFile::EventList, options_.duoEvents);
    }
    const struct {
      const char* what;
      const std::string& file;
      ImportedFile kind;
      CommandButton& button;
      std::function<void()> click;
    } chain[] = {
        {"parallel age-depth model", options_.duoAges, ImportedFile::AgeModel, duo.Command4,
         [&] { duo.Command4_Click(); }},
        {"parallel varve counts", options_.duoVarves, ImportedFile::VarveCounts, duo.Command5,
         [&] { duo.Command5_Click(); }}};
    for (const auto& link : chain) {
      if (link.file.empty()) continue;
      if (!link.button.Enabled) {
        Step(std::string(link.what) + " " + link.file);
        Failed("refused: its button is not open at this point of the Duo's imports");
        return kRefused;
      }
      if (!Import(link.what, link.file, link.kind, link.button, link.click)) return 1;
    }
    return 0;
  }

  // An output that is one of the inputs, under whatever name, would be lost;
  // a read-only output is replaced only when the user says so.
  template <std::size_t N>
  int CheckOutput(const std::string* const (&inputs)[N]) {
    struct stat output {};
    if (stat(options_.output.c_str(), &output) != 0) return 0;
    for (const std::string* file : inputs) {
      struct stat input {};
      if (file->empty() || stat(file->c_str(), &input) != 0) continue;
      if (input.st_dev == output.st_dev && input.st_ino == output.st_ino) {
        Failed("OUTPUT " + options_.output + " is the same file as " + *file +
               "; choose another name for the converted file");
        return kRefused;
      }
    }
    if (!options_.force && access(options_.output.c_str(), W_OK) != 0) {
      Failed("OUTPUT " + options_.output + " is read-only; --force replaces it");
      return kRefused;
    }
    return 0;
  }

  // Through the menu where it has a handler, as a user would choose.
  static void ChooseDigits(ControlArray<Menu>& menu, int digits, Integer& precision) {
    if (menu(digits).Click) {
      menu(digits).Click();
    } else {
      precision = digits;
    }
  }

  bool ChooseScales(FrmConversion& form) {
    // Only what the user could click: a dark option is not offered.
    const int from = options_.from.value_or(FromKind);
    if (!form.Option1(from).Enabled) {
      Failed(std::string("a file of ") + ScaleName(from) +
             " cannot be converted with the files imported");
      return false;
    }
    form.Option1(from).Value = true;
    if (!options_.to) return true;
    for (int code : {1, 2, 4, 8}) {
      CheckBox& box = form.Check1(code);
      const bool wanted = (*options_.to & code) != 0;
      if (box.Enabled) {
        box.Value = wanted ? 1 : 0;
      } else if (wanted && box.Value != 1) {
        Failed(std::string("--to ") + ScaleName(code) + ": not offered for a file of " +
               ScaleName(from) + " with the files imported");
        return false;
      }
    }
    return true;
  }

  const ConvertOptions& options_;
  std::ostream& messages_;
  ConsolePlatform platform_;
  std::unique_ptr<ProgressDisplay> progress_;
  std::string step_;
  bool errorShown_ = false;
  long failuresBefore_ = 0;
};

}  // namespace

int RunConversion(const ConvertOptions& options, std::ostream& messages) {
  return Conversion(options, messages).Run();
}

}  // namespace ostraline::cli
