#include <gtest/gtest.h>

#include <string>

#include "core/project_state.h"
#include "forms/frm_main.h"
#include "forms/frm_version.h"
#include "support/fresh_program.h"

namespace ostraline {
namespace {

class VersionForm : public FreshProgram {};

TEST_F(VersionForm, showsEachFileOrNotAvailableAndKeepsItsHeight) {
  ModelVersion = "05 Mar. 2011";
  AgeModelVersion = "17 Jan. 2012";
  frmMain->Caption = "Ostraline 7.7.4   [model_20110305]";
  FrmVersion& form = *frmVersion;
  EXPECT_EQ(form.Label2(1).Caption.Get(), "05 Mar. 2011");
  EXPECT_EQ(form.Label2(3).Caption.Get(), "n/a");
  EXPECT_EQ(form.Label2(4).Caption.Get(), "17 Jan. 2012");
  EXPECT_EQ(form.Label2(5).Caption.Get(), "n/a");
  EXPECT_EQ(form.Label4.Caption.Get(), "7.7.4   [model_20110305]");

  form.Height = 4000;
  form.Form_Resize();
  EXPECT_EQ(form.Height.Get(), 2100);
}

}  // namespace
}  // namespace ostraline
