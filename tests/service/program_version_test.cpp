// --version of both programs prints the version that the version form shows,
// without loading the main form.
#include <gtest/gtest.h>

#include "forms/frm_main.h"
#include "forms/frm_version.h"
#include "service/program_version.h"
#include "support/fresh_program.h"

namespace ostraline {
namespace {

class ProgramVersionTest : public FreshProgram {};

TEST_F(ProgramVersionTest, namesTheVersionOfTheVersionFormAndLeavesTheMainFormUnloaded) {
  const std::string printed = ProgramVersion();
  EXPECT_FALSE(frmMain.IsLoaded());
  frmMain->mnuVersion_Click();
  EXPECT_EQ(printed, "Ostraline " + frmVersion->Label4.Caption.Get());
  EXPECT_EQ(printed, frmMain->Caption.Get());
}

}  // namespace
}  // namespace ostraline
