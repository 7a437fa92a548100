// The varve record: composite depths of markers with a running count of
// annual laminae, the last file of the import chain.
#include "events/varve_counts.h"

#include <algorithm>

#include "core/import_pattern.h"
#include "core/project_state.h"
#include "display/core_columns.h"
#include "duo/duo_state.h"
#include "events/copy_to_duo.h"
#include "events/event_free_depth.h"
#include "events/event_state.h"
#include "forms/frm_main.h"
#include "forms/frm_version.h"
#include "forms/platform.h"
#include "runtime/field_reader.h"
#include "runtime/file_names.h"

namespace ostraline {
namespace {

// Row 0 stays zero, so the first marker's count is measured from 0.
void ReadVarveRows(BoreHoleSet& set, MainForm& form, FieldReader& file) {
  set.VarveCounts.Dim({{0, 1}, {0, 0}});
  Long rows = 0;
  while (!file.Eof()) {
    form.ProgressBar1.Value = static_cast<float>(std::min<long>(rows, 2000));
    ++rows;
    set.VarveCounts.ReDimPreserve(rows);
    set.VarveCounts(0, rows) = file.ReadSingle();
    set.VarveCounts(1, rows) = file.ReadSingle();
  }
  set.VarveCountRows = rows;
}

// A record of a header only has no first marker: reading it fails the import.
void SetVarveLimits(BoreHoleSet& set) {
  set.VarveTopCD = set.VarveCounts(0, 1);
  set.VarveBottomCD = set.VarveCounts(0, set.VarveCountRows);
  set.VarveTopEFD = CDToEFD(set, set.VarveTopCD).ToSingle();
  set.VarveBottomEFD = CDToEFD(set, set.VarveBottomCD).ToSingle();
  set.VarveCountsLoaded = true;
}

}  // namespace

VarveSums VarveSumsAt(BoreHoleSet& set, Single depth, Single lowerDepth, Single upperDepth) {
  VarveSums sums;
  for (long i = 1;; ++i) {
    const Single interval = set.VarveCounts(1, i) - set.VarveCounts(1, i - 1);
    const Single marker = set.VarveCounts(0, i);
    if (lowerDepth < marker && marker < depth) {
      sums.below += interval;
    } else if (depth < marker && marker < upperDepth) {
      sums.above += interval;
    }
    if (upperDepth < marker) break;
  }
  return sums;
}

Single VarveOffset(BoreHoleSet& set, Single lowerDepth, Single upperDepth, Single before,
                   Single after) {
  long i = 1;
  while (!(lowerDepth <= set.VarveCounts(0, i))) ++i;
  const long anchor = i - 1;
  i = anchor + 1;
  while (!(upperDepth <= set.VarveCounts(0, i))) ++i;
  const long end = i - 1;
  Single target = 0;
  if (static_cast<Single>(before + after) != 0) {
    target = (set.VarveCounts(1, end) - set.VarveCounts(1, anchor)) * before / (before + after);
  }
  Single count = 0;
  for (i = anchor + 1;; ++i) {
    count += set.VarveCounts(1, i) - set.VarveCounts(1, i - 1);
    if (count >= target) break;
  }
  return set.VarveCounts(0, i - 1) - set.VarveCounts(0, anchor);
}

bool ImportVarveCounts(BoreHoleSet& set, MainForm& form, FrmVersion& versions) {
  bool fileOpen = false;
  try {
    FieldReader file = OpenDataFile(form, fileOpen);
    Screen.SetMousePointer(11);
    form.ProgressBar1.Max = 2000;
    form.ProgressBar1.Value = 0;
    form.ProgressBar1.Visible = true;
    file.ReadText();
    file.ReadText();
    set.VarveVersion = VersionDate(form.CommonDialog1.FileName);
    versions.Label2(5).Caption = set.VarveVersion;
    ReadVarveRows(set, form, file);
    SetVarveLimits(set);
    return true;
  } catch (const RuntimeFailure&) {
    ResetProgress(form);
    if (fileOpen) ShowFormatError();
    return false;
  }
}

void FrmMain::Command5_Click() {
  if (!ImportVarveCounts(masterSet, *this, *frmVersion)) return;
  try {
    DrawLamina();
    DisplayAge();
    // The Duo's copy of the ages is made anew with the varves.
    AgeModelLoaded2 = false;
    CopyAgeModelToDuo();
    Command5.Enabled = false;
    if (Text2.Enabled) Text2.SetFocus();
    ResetProgress(*this);
  } catch (const RuntimeFailure&) {
    ResetProgress(*this);
    ShowFormatError();
  }
}

}  // namespace ostraline
