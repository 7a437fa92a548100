// "Convert and Save": the chosen scales of every row of the data file into a
// new comma-separated file.
#include "core/import_pattern.h"
#include "core/project_state.h"
#include "events/batch_conversion.h"
#include "events/batch_output_file.h"
#include "events/batch_state.h"
#include "forms/frm_conversion.h"
#include "forms/frm_main.h"
#include "forms/platform.h"
#include "runtime/failure.h"

namespace ostraline {

void FrmConversion::Command1_Click() {
  BoreHoleSet& set = SetOf(*this);
  MainForm& main = MainFormOf(set);
  bool dialogPassed = false;
  try {
    ToMask = TickedScales(*this);
    FromKind = ChosenScale(*this);
    // No lookup may write the main form's caption of the interpolation.
    set.DriveIndex = 0;

    main.CommonDialog1.CancelError = true;
    main.CommonDialog1.Filter = "DataFile(*.csv)|*.csv";
    main.CommonDialog1.OverwritePrompt = true;
    main.CommonDialog1.ShowSave();
    dialogPassed = true;
    ReplacementFile out(main.CommonDialog1.FileName);

    Screen.SetMousePointer(11);
    main.ProgressBar1.Value = 0;
    main.ProgressBar1.Visible = true;
    const ColumnTitles titles = MakeColumnTitles(set);
    if (!ConvertValuesFirstPass(set, main, titles)) {
      MsgBox(set.IsDuo ? "Ostraline could not import this file. Please check file format."
                       : "Ostraline could not import the file. Please check the file format.",
             MsgButtons::Ok, "Error", MsgIcon::Exclamation);
      ResetProgress(main);
      UnloadConversionForm(set);
      return;
    }
    WriteConvertedRows(set, main, titles, out);
    out.Commit();
    ResetProgress(main);
    UnloadConversionForm(set);
  } catch (const RuntimeFailure&) {
    // The form stays open, so that the user can close the file and press again.
    ResetProgress(main);
    if (dialogPassed) {
      MsgBox(
          "The file might be being used by another software. Please close the file and try again.",
          MsgButtons::Ok, "Error", MsgIcon::Exclamation);
    }
  }
}

}  // namespace ostraline
