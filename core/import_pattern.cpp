#include "core/import_pattern.h"

#include "forms/frm_main.h"
#include "forms/platform.h"

namespace ostraline {

FieldReader OpenDataFile(MainForm& form, bool& fileOpen) {
  form.CommonDialog1.CancelError = true;
  form.CommonDialog1.Filter = "DataFile(*.csv)|*.csv";
  form.CommonDialog1.ShowOpen();
  FieldReader file = FieldReader::Open(form.CommonDialog1.FileName);
  fileOpen = true;
  return file;
}

void ResetProgress(MainForm& form) {
  form.ProgressBar1.Value = 0;
  form.ProgressBar1.Visible = false;
  Screen.SetMousePointer(0);
}

void ShowFormatError() {
  MsgBox("File format error.", MsgButtons::Ok, "Error", MsgIcon::Exclamation);
}

}  // namespace ostraline
