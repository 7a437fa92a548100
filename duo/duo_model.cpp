// The Duo's correlation model: the master's file layout with four more
// fields a row that tie the row to a horizon of the master.
#include "core/correlation_model.h"
#include "core/depth_conversions.h"
#include "core/hole_lookup.h"
#include "core/import_pattern.h"
#include "core/project_state.h"
#include "duo/duo_state.h"
#include "forms/frm2_main.h"
#include "forms/frm2_version.h"
#include "forms/hole_names.h"
#include "forms/platform.h"
#include "runtime/file_names.h"
#include "runtime/number_text.h"

namespace ostraline {
namespace {

// Each of the four fields carries a mark in front of its value.
void CutMasterFields() {
  for (long r = 0; r <= LastRow2; ++r) {
    for (int field = 0; field <= 3; ++field) {
      const std::string text = MasterTrinity(field, r).ToText();
      MasterTrinity(field, r) = Mid(text, 2);
    }
  }
}

// The master's name stands in brackets at the end of one of the header's
// four master fields, as a bore hole's name does in its header cell.
std::string MasterName() {
  for (int field = 0; field <= 3; ++field) {
    const std::string text = Trim(MasterTrinity(field, 0).ToText());
    const long open = InStr(text, "(");
    if (open > 0 && Right(text, 1) == ")") {
      const std::string name = Trim(Mid(text, open + 1, Len(text) - open - 1));
      if (!name.empty()) return name;
    }
  }
  return "Master";
}

// The composite depth on the master's scale of each row's horizon, 9999
// where the row names no bore hole of the master.
void TieRowsToMaster() {
  MasterDepth.Dim({{0, 2}, {0, LastRow2}});
  for (long r = 1; r <= LastRow2; ++r) {
    MasterDepth(0, r) = MasterTrinity(0, r);
    const std::string name = MasterTrinity(1, r).ToText();
    int hole = 0;
    for (int j = 1; j <= 4; ++j) {
      if (name == HoleName(j)) hole = j;
    }
    if (hole == 0) {
      MasterDepth(1, r) = Integer(9999);
      continue;
    }
    const int section = SectionOrdinalByName(masterSet, hole, MasterTrinity(2, r).ToText());
    MasterDepth(1, r) =
        CompositeFromTrinity(masterSet, hole, section, CSng(MasterTrinity(3, r).TextValue()));
  }
}

void ShowOldModelMessage() {
  MsgBox(
      "This is a correlation model for Ostraline ver.6 or earlier. Obtain latest correlation "
      "model for ver.7",
      MsgButtons::Ok, "Error", MsgIcon::Exclamation);
}

}  // namespace

void Frm2Main::Command1_Click() {
  bool fileOpen = false;
  bool rowsRead = false;
  try {
    FieldReader file = OpenModelFile(duoSet, *this, frm2Version->Label2(1), fileOpen);
    MasterTrinity.Dim({{0, 3}, {0, 5000}});
    ReadDuoRows(duoSet, file);
    rowsRead = true;
    MasterTrinity.ReDimPreserve(LastRow2);
    CutMasterFields();
    TidyModel(duoSet, *this, kDuoHoleNames);
    Label1(0).Caption = MasterName();
    SweepSections(duoSet, *this);
    SweepModelDepths(duoSet, *this);
    TieRowsToMaster();
    OpenFormForWork(duoSet, *this);
  } catch (const RuntimeFailure&) {
    ResetProgress(*this);
    if (!fileOpen) return;
    // A file without the master's four columns runs out of fields first.
    if (rowsRead) {
      ShowFormatError();
    } else {
      ShowOldModelMessage();
    }
    return;
  }
  DuoOpen = true;
  ClickCommand3(false);
}

}  // namespace ostraline
