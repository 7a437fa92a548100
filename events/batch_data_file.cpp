// "Convert from data file": the table of samples is read, its shape told from
// its first rows, and frmConversion opened on it.
#include <array>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "core/import_pattern.h"
#include "core/project_state.h"
#include "duo/duo_state.h"
#include "events/batch_conversion.h"
#include "events/batch_state.h"
#include "events/event_state.h"
#include "forms/frm2_conversion.h"
#include "forms/frm_conversion.h"
#include "forms/frm_main.h"
#include "forms/platform.h"
#include "runtime/failure.h"
#include "runtime/field_reader.h"
#include "runtime/later_rows_reader.h"
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

// The rows read ahead, four cells to a row, after the last row read. The
// table grows by a block as each block read ahead goes, so that the two are
// not held whole at once.
long TakeLaterRows(LaterRowsReader& later, long row) {
  for (auto& block : later.Blocks()) {
    ConversionTable.ReDimPreserve(row + static_cast<long>(block.size() / 4));
    for (std::size_t cell = 0; cell < block.size(); cell += 4) {
      ++row;
      for (int column = 0; column <= 3; ++column) {
        ConversionTable.Set(column, row, block[cell + static_cast<std::size_t>(column)]);
      }
    }
    LaterRowsReader::Block().swap(block);
  }
  return row;
}

void ReadPositionFile(BoreHoleSet& set, MainForm& form, FieldReader& file,
                      const FirstRecords& first) {
  Screen.SetMousePointer(11);
  ConversionTable.Dim({{0, 5}, {0, 1}});
  for (int i = 0; i < 8; ++i) ConversionTable.SetText(i % 4, i / 4, first[i]);
  // A second thread reads the later half of a long file meanwhile.
  constexpr std::size_t kReadAheadFrom = 1 << 20;
  LaterRowsReader later(form.CommonDialog1.FileName, 4,
                        FastLookups ? kReadAheadFrom : std::numeric_limits<std::size_t>::max());
  long row = 1;
  while (!file.Eof()) {
    if (later.ContinuesAt(file.Offset())) {
      row = TakeLaterRows(later, row);
      break;
    }
    ++row;
    ConversionTable.ReDimPreserve(row);
    for (int column = 0; column <= 3; ++column) {
      ConversionTable.SetText(column, row, file.ReadTextView());
    }
  }
  ConversionRows = row;

  const ColumnTitles titles = MakeColumnTitles(set);
  ConversionTable.SetText(4, 0, titles.composite);
  if (set.EventListLoaded) ConversionTable.SetText(5, 0, titles.efd);
  ConvertPositionRows(set, form);
  ResetProgress(form);
  InputKind = kScaleTrinity;
  ConversionFormOf(set).Show();
}

// The header's second field names the scale; any other word counts as EFD.
Integer ScaleOfHeader(const std::string& word) {
  const std::string head = Left(word, 3);
  if (head == "Com") return kScaleComposite;
  if (head == "Age") return kScaleAge;
  return kScaleEfd;
}

void ReadValueFile(BoreHoleSet& set, MainForm& form, FieldReader& file, const FirstRecords& first) {
  if (!set.EventListLoaded) {
    MsgBox(std::string("Please import list of events. Sample file is available at ") +
               kSamplesAddress + ".",
           MsgButtons::Ok, "Error", MsgIcon::Exclamation);
    if (form.Command3.Enabled) form.Command3.SetFocus();
    ResetProgress(form);
    return;
  }
  ValueTable.Dim({{0, 3}, {0, 3}});
  for (int i = 0; i < 8; ++i) ValueTable.SetText(1 + i % 2, i / 2, first[i]);
  long row = 3;
  while (!file.Eof()) {
    ++row;
    ValueTable.ReDimPreserve(row);
    ValueTable.Set(1, row, file.ReadVariant());
    ValueTable.Set(2, row, file.ReadVariant());
  }
  ValueRows = row;
  InputKind = ScaleOfHeader(ValueTable(2, 0).ToText());
  ConversionFormOf(set).Show();
}

}  // namespace

bool IsValueFileCell(const std::string& cell) {
  return Str(Val(cell)) == cell;
}

BoreHoleSet& SetOf(const FrmConversion& form) {
  return form.ForDuo() ? duoSet : masterSet;
}

FrmConversion& ConversionFormOf(const BoreHoleSet& set) {
  if (set.IsDuo) return *frm2Conversion;
  return *frmConversion;
}

void UnloadConversionForm(const BoreHoleSet& set) {
  if (set.IsDuo) {
    frm2Conversion.Unload();
  } else {
    frmConversion.Unload();
  }
}

void ConvertFromDataFile(BoreHoleSet& set, MainForm& form) {
  bool dialogPassed = false;
  try {
    form.CommonDialog1.CancelError = true;
    form.CommonDialog1.Filter = "DataFile(*.csv)|*.csv";
    form.CommonDialog1.ShowOpen();
    dialogPassed = true;
    FieldReader file = FieldReader::Open(form.CommonDialog1.FileName);
    FirstRecords first;
    for (std::string& field : first) field = file.ReadText();
    if (IsValueFileCell(first[5])) {
      ReadValueFile(set, form, file, first);
    } else {
      ReadPositionFile(set, form, file, first);
    }
  } catch (const RuntimeFailure&) {
    if (dialogPassed) ShowFormatError();
    ResetProgress(form);
  }
}

void FrmMain::Command2_Click() {
  ConvertFromDataFile(SetOf(*this), *this);
}

}  // namespace ostraline
