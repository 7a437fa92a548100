// The project named on the command line, imported at start through the
// ordinary imports, and the sample project found beside an installed program.
#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>
#include <string>

#include "core/project_state.h"
#include "desktop/demo.h"
#include "duo/duo_state.h"
#include "forms/frm2_main.h"
#include "forms/frm_main.h"
#include "shell_fixture.h"

namespace ostraline {
namespace {

std::string Sample(const char* name) {
  return std::string(OSTRALINE_SAMPLES) + "/" + name;
}

ProjectFiles SampleChain() {
  ProjectFiles files;
  files.model = Sample("correlation_model_20250314.csv");
  files.events = Sample("event_layers_20250320.csv");
  files.ages = Sample("age_depth_model_20250402.csv");
  files.varves = Sample("varve_counts_20250325.csv");
  return files;
}

class StartImports : public ShellTest {
 protected:
  void SetUp() override {
    ShellTest::SetUp();
    frmMain->Show();
  }
  // Message boxes that reached the user, as "title: text".
  std::string ShownMessages() const {
    std::string shown;
    for (const MessageRecord& message : dialogs.script.messages) {
      shown += message.title + ": " + message.text + "\n";
    }
    return shown;
  }
};

TEST_F(StartImports, eachFileGoesThroughItsOwnButtonInTheChainsOrder) {
  ProjectFiles files = SampleChain();
  files.duoModel = Sample("duo_correlation_model_20250610.csv");
  files.duoEvents = Sample("duo_event_layers_20250612.csv");
  EXPECT_EQ(ImportProjectFiles(*shell, files, dialogs), "");
  EXPECT_EQ(ShownMessages(), "");
  // The version dates of the files' names, as EXPECTED.md works them out.
  EXPECT_EQ(ModelVersion, "14 Mar. 2025");
  EXPECT_EQ(EventListVersion, "20 Mar. 2025");
  EXPECT_EQ(AgeModelVersion, "02 Apr. 2025");
  EXPECT_EQ(VarveVersion, "25 Mar. 2025");
  EXPECT_TRUE(DuoOpen);
  EXPECT_EQ(ModelVersion2, "10 Jun. 2025");
  EXPECT_TRUE(EventListLoaded2);
  // The import buttons went dark as after the user's clicks.
  EXPECT_FALSE(frmMain->Command1.Enabled);
  EXPECT_FALSE(frm2Main->Command1.Enabled);
}

TEST_F(StartImports, anImportThatFailsShowsItsMessageAndEndsTheChain) {
  ProjectFiles files = SampleChain();
  // An event list in the place of the age-depth model.
  files.ages = files.events;
  EXPECT_EQ(ImportProjectFiles(*shell, files, dialogs), files.ages);
  // The age-depth model's reader tells the user why, once.
  ASSERT_EQ(dialogs.script.messages.size(), 1u) << ShownMessages();
  EXPECT_EQ(dialogs.script.messages[0].title, "Error");
  EXPECT_EQ(EventListVersion, "20 Mar. 2025");
  EXPECT_FALSE(masterSet.AgeModelLoaded);
  EXPECT_TRUE(frmMain->Command4.Enabled);
  // The varve counts after it were not offered to their button.
  EXPECT_EQ(VarveVersion, "");
}

TEST_F(StartImports, theDuosQuestionIsAnsweredNoWithoutItsEventList) {
  ProjectFiles files = SampleChain();
  files.duoModel = Sample("duo_correlation_model_20250610.csv");
  EXPECT_EQ(ImportProjectFiles(*shell, files, dialogs), "");
  EXPECT_TRUE(DuoOpen);
  EXPECT_EQ(ModelVersion2, "10 Jun. 2025");
  EXPECT_FALSE(EventListLoaded2);
  EXPECT_EQ(ShownMessages(), "");
  // The Duo's reminder of its missing event list blinks.
  EXPECT_TRUE(frm2Main->Shape1.Visible);
}

TEST(SampleProjectFolder, isFoundBesideTheProgramInItsInstallationOrInTheSourceTree) {
  QTemporaryDir root;
  ASSERT_TRUE(root.isValid());
  const QDir prefix(root.path());
  const std::string program = prefix.filePath("bin/ostraline").toStdString();
  // Beside a bare bin, the source tree's; then each folder made comes before the last.
  for (const QString folder : {"bin", "share/ostraline/samples", "bin/samples"}) {
    ASSERT_TRUE(prefix.mkpath(folder));
    const QString found = folder == "bin" ? OSTRALINE_SAMPLES : prefix.filePath(folder);
    EXPECT_EQ(SampleProjectFolder(program), QDir(found).absolutePath().toStdString());
  }
}

}  // namespace
}  // namespace ostraline
