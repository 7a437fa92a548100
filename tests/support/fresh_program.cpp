#include "support/fresh_program.h"

#include "core/fresh_program.h"
#include "forms/form.h"
#include "forms/frm_main.h"

namespace ostraline {

void ResetProgram() {
  ResetProgramState();
}

void FreshProgram::SetUp() {
  SetPlatform(&platform);
  ResetProgram();
}

void FreshProgram::TearDown() {
  // A test's own screen observer is gone by now; the forms must not call it.
  SetScreenObserver(nullptr);
  ResetProgram();
  SetPlatform(nullptr);
}

void FreshProgram::ImportModel(const std::vector<ModelRow>& rows, const std::string& name) {
  platform.QueueFile(WriteTempFile(name, ModelText(rows)));
  frmMain->Command1_Click();
}

void FreshProgram::ImportEventList(const std::string& text, const std::string& name) {
  platform.QueueFile(WriteTempFile(name, text));
  frmMain->Command3_Click();
}

void FreshProgram::TypeCompositeDepth(const std::string& depth) {
  frmMain->Text2.SetFocus();
  int enter = 13;
  frmMain->Text2.KeyDown(enter, 0);
  frmMain->Text2.Text = depth;
}

std::string FreshProgram::OnlyMessage() const {
  if (platform.messages.size() != 1) return std::to_string(platform.messages.size()) + " messages";
  return platform.messages[0].title + ": " + platform.messages[0].text;
}

bool FreshProgram::FailedWithFormatError() const {
  return OnlyMessage() == "Error: File format error." &&
         platform.messages[0].icon == MsgIcon::Exclamation;
}

}  // namespace ostraline
