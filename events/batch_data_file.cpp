// "Convert from data file": the table of samples is read, its shape told from
// its first rows, and frmConversion opened on it.
#include <array>
#include <string>

#include "core/import_pattern.h"
#include "core/project_state.h"
#include "events/batch_conversion.h"
#include "events/batch_state.h"
#include "events/event_state.h"
#include "forms/frm_conversion.h"
#include "forms/frm_main.h"
#include "forms/platform.h"
#include "runtime/failure.h"
#include "runtime/field_reader.h"
#include "runtime/number_text.h"

namespace ostraline {
namespace {

// Where samples can be downloaded to try the conversion.
constexpr const char* kSamplesAddress = "https://www.ostraline.org/samples";

// Two records of four fields, whatever the shape: a value file's header and
// first three samples, or a position file's header and first row. They are
// read as text, and so are a position file's further rows; a value file's
// further rows go into variants, so that a value that reads as a number is
// written back bare.
using FirstRecords = std::array<std::string, 8>;

// The second field of the second record is a number only in a value file;
// it has to print back as itself, so "12.50" makes a file of positions.
bool IsValueFile(const FirstRecords& first) {
  return Str(Val(first[5])) == first[5];
}

void ReadPositionFile(MainForm& form, FieldReader& file, const FirstRecords& first) {
  Screen.SetMousePointer(11);
  ConversionTable.Dim({{0, 5}, {0, 1}});
  for (int i = 0; i < 8; ++i) ConversionTable(i % 4, i / 4) = first[i];
  long row = 1;
  while (!file.Eof()) {
    ++row;
    ConversionTable.ReDimPreserve(row);
    for (int column = 0; column <= 3; ++column) ConversionTable(column, row) = file.ReadText();
  }
  ConversionRows = row;

  ConversionTable(4, 0) = "Composite depth (correlation model: version " + ModelVersion + ")";
  if (EventListLoaded) {
    ConversionTable(5, 0) = "Event free depth (event list: version " + EventListVersion + ")";
  }
  ConvertPositionRows(form);
  ResetProgress(form);
  InputKind = kScaleTrinity;
  frmConversion->Show();
}

// The header's second field names the scale; any other word counts as EFD.
Integer ScaleOfHeader(const std::string& word) {
  const std::string head = Left(word, 3);
  if (head == "Com") return kScaleComposite;
  if (head == "Age") return kScaleAge;
  return kScaleEfd;
}

void ReadValueFile(MainForm& form, FieldReader& file, const FirstRecords& first) {
  if (!EventListLoaded) {
    MsgBox(std::string("Please import list of events. Sample file is available at ") +
               kSamplesAddress + ".",
           MsgButtons::Ok, "Error", MsgIcon::Exclamation);
    if (form.Command3.Enabled) form.Command3.SetFocus();
    ResetProgress(form);
    return;
  }
  ValueTable.Dim({{0, 3}, {0, 3}});
  for (int i = 0; i < 8; ++i) ValueTable(1 + i % 2, i / 2) = first[i];
  long row = 3;
  while (!file.Eof()) {
    ++row;
    ValueTable.ReDimPreserve(row);
    ValueTable(1, row) = file.ReadVariant();
    ValueTable(2, row) = file.ReadVariant();
  }
  ValueRows = row;
  InputKind = ScaleOfHeader(ValueTable(2, 0).ToText());
  frmConversion->Show();
}

}  // namespace

void FrmMain::Command2_Click() {
  bool dialogPassed = false;
  try {
    CommonDialog1.CancelError = true;
    CommonDialog1.Filter = "DataFile(*.csv)|*.csv";
    CommonDialog1.ShowOpen();
    dialogPassed = true;
    FieldReader file = FieldReader::Open(CommonDialog1.FileName);
    FirstRecords first;
    for (std::string& field : first) field = file.ReadText();
    if (IsValueFile(first)) {
      ReadValueFile(*this, file, first);
    } else {
      ReadPositionFile(*this, file, first);
    }
  } catch (const RuntimeFailure&) {
    if (dialogPassed) ShowFormatError();
    ResetProgress(*this);
  }
}

}  // namespace ostraline
