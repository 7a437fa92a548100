// The age-depth model's import: the control points of age, checked against
// the correlation model in use and placed on the composite and EFD scales.
#include <array>
#include <functional>
#include <string>

#include "core/depth_conversions.h"
#include "core/hole_lookup.h"
#include "core/import_pattern.h"
#include "core/project_state.h"
#include "display/core_columns.h"
#include "duo/depth_map.h"
#include "duo/duo_state.h"
#include "events/age_lookup.h"
#include "events/age_model.h"
#include "events/copy_to_duo.h"
#include "events/event_free_depth.h"
#include "events/event_state.h"
#include "forms/frm2_main.h"
#include "forms/frm_main.h"
#include "forms/frm_version.h"
#include "forms/platform.h"
#include "runtime/field_reader.h"
#include "runtime/file_names.h"
#include "runtime/number_text.h"

namespace ostraline {
namespace {

// One record by its columns: the ninth field, the class, goes to column 0.
using AgeRecord = std::array<std::string, 12>;

// Where the import stands, for the message of its failure path.
struct ImportProgress {
  bool fileOpen = false;
  std::string holeAtHand;
};

AgeRecord ReadAgeRecord(FieldReader& file, ImportProgress& progress) {
  AgeRecord record;
  for (int field = 1; field <= 11; ++field) {
    const int column = field <= 8 ? field : field == 9 ? 0 : field - 1;
    record[column] = file.ReadText();
    if (field == 2) progress.holeAtHand = record[column];
  }
  return record;
}

// The tail of the depth's header cell names the version of the correlation
// model the file was made for; a tail without a year is "not specified". A
// tail that is no number at all fails here.
std::string VersionOfHeader(const std::string& cell) {
  std::string s;
  if (Right(cell, 1) == ")") {
    s = Trim(Right(Left(cell, Len(cell) - 1), 12));
    if (Left(s, 1) == "(") s = Trim(Mid(s, 2));
  } else {
    s = Trim(Right(cell, 12));
  }
  const std::string year = Right(s, 4);
  if (CDbl(year) != Val(year)) s = "not specified";
  return s;
}

// Declining takes the event layers out of the depth scale for the rest of the run.
void TakeEventLayersOut(BoreHoleSet& set, MainForm& form) {
  form.Command4.Enabled = true;
  set.EventCount = -9999;
  set.MergedEventCount = -9999;
}

bool ProceedDespiteVersion(BoreHoleSet& set, MainForm& form) {
  const std::string version = VersionOfHeader(set.AgeModel(5, 0));
  if (Trim(set.ModelVersion) == version) return true;
  const MsgAnswer answer = MsgBox(
      "Version dates are inconsistent between correlation models for plotting (" +
          set.ModelVersion + ") and age control points (" + version + "). Do you proceed anyway?",
      MsgButtons::YesNo, "WARNING!!");
  if (answer != MsgAnswer::No) return true;
  ResetProgress(form);
  TakeEventLayersOut(set, form);
  return false;
}

void StoreRecord(Table<std::string, 2>& table, long row, const AgeRecord& record) {
  table.ReDimPreserve(row);
  for (int column = 0; column <= 11; ++column) table(column, row) = record[column];
}

void StoreRecord(Table<Variant, 2>& table, long row, const AgeRecord& record) {
  table.ReDimPreserve(row);
  for (int column = 0; column <= 10; ++column) table(column, row) = record[column];
}

// Rows of class C and V are control points; R rows are only plotted; any
// other class is dropped without a word.
void ReadControlPoints(BoreHoleSet& set, FieldReader& file, ImportProgress& progress) {
  Long points = 0;
  Long references = 0;
  while (!file.Eof()) {
    AgeRecord record = ReadAgeRecord(file, progress);
    std::string& kind = record[0];
    const std::string first = Left(kind, 1);
    if (first == "c" || first == "v" || first == "r") kind = UCase(first) + Mid(kind, 2);
    const std::string letter = Left(kind, 1);
    if (letter == "C" || letter == "V") {
      ++points;
      StoreRecord(set.AgeModel, points, record);
    } else if (letter == "R") {
      ++references;
      StoreRecord(set.AgeReferenceRows, references, record);
    }
  }
  set.AgeModelCount = points;
  set.AgeReferenceCount = references;
}

// The master's bore holes 1 to 4, then the Duo's as 5 to 8, with a later
// match winning, so that a name in both sets counts as the Duo's. The Duo's
// own import knows its four holes also by the letters a to d, either case.
int HoleOfName(BoreHoleSet& set, const std::string& name) {
  int hole = 9999;
  if (set.IsDuo) {
    const char* letters[] = {"a", "A", "b", "B", "c", "C", "d", "D"};
    for (int j = 1; j <= 4; ++j) {
      if (name == set.HoleName(j) || name == letters[2 * j - 2] || name == letters[2 * j - 1])
        hole = j;
    }
    return hole;
  }
  for (int j = 1; j <= 4; ++j) {
    if (name == set.HoleName(j)) hole = j;
  }
  for (int j = 1; j <= 4; ++j) {
    if (name == HoleName2(j)) hole = j + 4;
  }
  return hole;
}

// A hole of the Duo in the master's model is placed on the Duo's composite
// scale and mapped to the master's.
Variant CompositeOfRow(BoreHoleSet& set, const std::string& holeName, int hole,
                       const std::string& section, Single psp) {
  if (set.IsDuo || hole <= 4)
    return CompositeFromTrinity(set, hole, SectionOrdinalByName(set, hole, section), psp);
  // The Duo's section lookup has no handler: a hole of neither set fails there.
  if (hole > 8) Fail(FailureKind::SubscriptOutOfRange, "bore hole " + holeName);
  const int duoHole = hole - 4;
  const Variant duo =
      CompositeFromTrinity(duoSet, duoHole, SectionOrdinalByName(duoSet, duoHole, section), psp);
  if (duo.ToDouble() == 9999) return duo;
  return DuoToMaster(duo.ToSingle());
}

// Each control point on the composite scale and in EFD. A row given by its
// composite depth alone ("---") keeps the depth of the file.
void PlaceControlPoints(BoreHoleSet& set, ImportProgress& progress) {
  for (long i = 1; i <= set.AgeModelCount; ++i) {
    progress.holeAtHand = set.AgeModel(2, i);
    const int hole = HoleOfName(set, set.AgeModel(2, i));
    const std::string& depth = set.AgeModel(5, i);
    if (hole == 9999 && Str(Val(depth)) != depth) {
      Fail(FailureKind::TypeMismatch, "bore hole " + set.AgeModel(2, i));
    }
    if (set.AgeModel(2, i) != "---" && set.AgeModel(3, i) != "---" && set.AgeModel(4, i) != "---") {
      const Variant composite =
          CompositeOfRow(set, set.AgeModel(2, i), hole, set.AgeModel(3, i),
                         CSng(Val(set.AgeModel(4, i))));
      if (composite.ToDouble() != 9999) set.AgeModel(5, i) = Str(composite.ToSingle());
    }
    set.AgeModel(11, i) = CDToEFD(set, CSng(Val(set.AgeModel(5, i)))).ToText();
  }
}

// The four characters around the first decimal mark of a header cell; a mark
// at its first or second character fails.
std::string LevelOfHeader(const std::string& cell) {
  for (long p = 1; p <= Len(cell); ++p) {
    const std::string c = Mid(cell, p, 1);
    if (c == "." || c == ",") return Mid(cell, p - 2, 4) + " %";
  }
  return {};
}

void EnableAgeControls(MainForm& form) {
  const bool typeIn = form.Option1(0).Value;
  for (Control* control :
       std::initializer_list<Control*>{&form.Label7, &form.Label8, &form.Label9, &form.Text4}) {
    control->Enabled = typeIn;
  }
}

void ReportFailure(BoreHoleSet& set, MainForm& form, const ImportProgress& progress) {
  ResetProgress(form);
  if (!progress.fileOpen) return;
  // With the Duo closed every failure of the master's reads as a bore hole
  // of the Duo; the Duo's own import has the plain message.
  if (DuoOpen || set.IsDuo) {
    ShowFormatError();
  } else {
    MsgBox("Bore hole name '" + progress.holeAtHand +
               "' has not been defined. Import parallel correlation model to Ostraline Duo.",
           MsgButtons::Ok, "Error", MsgIcon::Exclamation);
  }
  TakeEventLayersOut(set, form);
}

}  // namespace

void ImportAgeModel(BoreHoleSet& set, MainForm& form, FrmVersion& versions,
                    const std::function<void()>& finish) {
  ImportProgress progress;
  try {
    FieldReader file = OpenDataFile(form, progress.fileOpen);
    set.AgeModelVersion = VersionDate(form.CommonDialog1.FileName);
    versions.Label2(4).Caption = set.AgeModelVersion;

    set.AgeModel.Dim({{0, 11}, {0, 0}});
    set.AgeReferenceRows.Dim({{0, 11}, {0, 0}});
    Screen.SetMousePointer(11);
    form.ProgressBar1.Max = 200;
    form.ProgressBar1.Visible = true;
    StoreRecord(set.AgeModel, 0, ReadAgeRecord(file, progress));
    // The Duo's own import checks no version and reads no confidence levels.
    if (!set.IsDuo && !ProceedDespiteVersion(set, form)) return;
    ReadControlPoints(set, file, progress);

    EnableAgeControls(form);
    PlaceControlPoints(set, progress);
    if (!set.IsDuo) {
      ErrorLevelPlus = LevelOfHeader(set.AgeModel(6, 0));
      ErrorLevelMinus = LevelOfHeader(set.AgeModel(8, 0));
    }
    set.AgeModelLoaded = true;
    Screen.SetMousePointer(0);
    DisplayAge(set, form);
    finish();
  } catch (const RuntimeFailure&) {
    ReportFailure(set, form, progress);
  }
}

void FrmMain::Command4_Click() {
  ImportAgeModel(masterSet, *this, *frmVersion, [this] {
    DrawLamina();
    mnuAge.Enabled = true;
    mnuDepth.Enabled = true;
    CopyAgeModelToDuo();
    if (EventListLoaded2 && frm2Main.IsLoaded()) EnableAgeControls(*frm2Main);

    Command4.Enabled = false;
    // The varve counts are the next and last file of the chain.
    Command5.Enabled = true;
    if (Command5.Visible) Command5.SetFocus();
    ProgressBar1.Visible = false;
    ProgressBar1.Value = 0;
  });
}

}  // namespace ostraline
