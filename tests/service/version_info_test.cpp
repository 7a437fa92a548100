#include <gtest/gtest.h>

#include <string>

#include "core/project_state.h"
#include "forms/frm_main.h"
#include "forms/frm_version.h"
#include "service/program_version.h"
#include "support/age_files.h"

namespace ostraline {
namespace {

class VersionInfo : public AgeProgram {
 protected:
  // The four version labels, in the order of the form.
  static std::string Versions() {
    FrmVersion& form = *frmVersion;
    return form.Label2(1).Caption.Get() + "|" + form.Label2(3).Caption.Get() + "|" +
           form.Label2(4).Caption.Get() + "|" + form.Label2(5).Caption.Get();
  }
};

TEST_F(VersionInfo, eachLabelShowsItsOwnFileOrNotAvailable) {
  // --version of both programs prints what the version form shows, without
  // loading the main form.
  const std::string printed = ProgramVersion();
  EXPECT_FALSE(frmMain.IsLoaded());
  frmMain->mnuVersion_Click();
  EXPECT_EQ(printed, "Ostraline " + frmVersion->Label4.Caption.Get());
  EXPECT_EQ(printed, frmMain->Caption.Get());
  EXPECT_TRUE(frmVersion->Visible);
  EXPECT_EQ(Versions(), "n/a|n/a|n/a|n/a");
  EXPECT_EQ(frmVersion->Label4.Caption.Get(), "7.7.4");
  frmVersion->Height = 4000;
  frmVersion->Form_Resize();
  EXPECT_EQ(frmVersion->Height.Get(), 2100);

  // Each import writes its own label while the form stands open.
  ImportModelAndEvents(kFusedLayer);
  ASSERT_FALSE(ModelVersion.empty());
  ASSERT_FALSE(EventListVersion.empty());
  EXPECT_EQ(Versions(), ModelVersion + "|" + EventListVersion + "|n/a|n/a");

  // Varve counts ahead of the age model: the age label stays unavailable.
  ImportVarves({{"95", "10"}, {"120", "30"}});
  ASSERT_FALSE(VarveVersion.empty());
  EXPECT_EQ(Versions(), ModelVersion + "|" + EventListVersion + "|n/a|" + VarveVersion);
  ImportAges(kThreeControlPoints);
  ASSERT_TRUE(platform.messages.empty()) << OnlyMessage();
  ASSERT_FALSE(AgeModelVersion.empty());
  ASSERT_NE(AgeModelVersion, VarveVersion);

  // Loaded anew, the form shows all four and the model's file in the caption.
  frmVersion.Unload();
  frmMain->mnuVersion_Click();
  EXPECT_EQ(Versions(),
            ModelVersion + "|" + EventListVersion + "|" + AgeModelVersion + "|" + VarveVersion);
  EXPECT_EQ(frmVersion->Label4.Caption.Get(), "7.7.4   [model_20110305]");
}

TEST_F(VersionInfo, closingGivesTheFocusToTheFirstImportButtonInUse) {
  frmMain->mnuVersion_Click();
  frmVersion.Unload();
  EXPECT_EQ(FocusedControl(), &frmMain->Command1);

  ImportModel(TwoSectionModel());
  frmMain->mnuVersion_Click();
  frmVersion.Unload();
  EXPECT_EQ(FocusedControl(), &frmMain->Command3);
}

}  // namespace
}  // namespace ostraline
