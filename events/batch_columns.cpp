// The second pass of "Convert and Save": the converted file's columns, in
// the layout of the scale given (FromKind) and the scales ticked (ToMask).
#include <string>
#include <string_view>
#include <utility>

#include "core/project_state.h"
#include "duo/depth_map.h"
#include "events/age_lookup.h"
#include "events/batch_conversion.h"
#include "events/batch_output_file.h"
#include "events/batch_state.h"
#include "events/converted_row_writer.h"
#include "events/event_free_depth.h"
#include "events/event_state.h"
#include "forms/frm2_main.h"
#include "forms/frm_main.h"
#include "runtime/number_text.h"

namespace ostraline {
namespace {

bool Wants(int scale) {
  return (ToMask & scale) != 0;
}

// The age of one EFD with its errors and unit, as one GetAgeFromEFD gives them.
// The unit is read where it lies, in the age model or in the data file,
// while the row is written.
struct AgeCells {
  Single age;
  Single plus;
  Single minus;
  std::string_view unit;
  const Variant* missing = nullptr;
};

AgeCells AgeOfEfd(BoreHoleSet& set, const Variant& efdCell) {
  const Single efd = CSng(efdCell.TextValue());
  const double age = GetAgeFromEFD(set, efd).ToDouble();
  AgeCells cells{CSng(Round(age, AgePrecision)), CSng(Round(set.AgeErrorPlus, AgePrecision)),
                 CSng(Round(set.AgeErrorMinus, AgePrecision)), {}, nullptr};
  if (efd == 9999 || efd == -9999) {
    // No rows were looked up: the unit column carries the missing EFD's cell
    // as it stands, text or number.
    cells.missing = &efdCell;
  } else if (const auto& model = std::as_const(set.AgeModel);
             model(9, set.AgeRowLower) == model(9, set.AgeRowUpper)) {
    cells.unit = model(9, set.AgeRowUpper);
  } else {
    // The two control points give their ages in different units.
    cells.unit = "Hybrid unit";
  }
  return cells;
}

void ErrorTitles(ConvertedRowWriter& row) {
  row.Text("Age " + ErrorLevelPlus + " error (+)");
  row.Text("Age " + ErrorLevelMinus + " error (-)");
  row.Text("Age unit");
}

void ErrorCells(ConvertedRowWriter& row, const AgeCells& cells) {
  row.Number(cells.plus);
  row.Number(cells.minus);
  if (cells.missing != nullptr) {
    row.Value(*cells.missing);
  } else {
    row.Text(cells.unit);
  }
}

void AgeColumns(BoreHoleSet& set, ConvertedRowWriter& row, bool header, const ColumnTitles& titles,
                const Variant& efd) {
  if (header) {
    row.Text(titles.age);
    ErrorTitles(row);
    return;
  }
  const AgeCells cells = AgeOfEfd(set, efd);
  row.Number(cells.age);
  ErrorCells(row, cells);
}

// The Duo writes beside each of its composite depths the master's, under
// the master's name; a missing depth maps to 9999.
void MasterColumn(const BoreHoleSet& set, ConvertedRowWriter& row, bool header, const Variant& duoCd) {
  if (!set.IsDuo) return;
  if (header) {
    row.Text("Composite depth (" + frm2Main->Label1(0).Caption.Get() + ")");
  } else {
    row.Number(DuoToMaster(CSng(duoCd.TextValue())));
  }
}

// A value that is a depth: label, value, the other depth when both are
// ticked, then the age of the row's EFD.
void DepthValueRow(BoreHoleSet& set, ConvertedRowWriter& row, long r, const ColumnTitles& titles) {
  const bool header = r == 0;
  row.Value(ValueTable(1, r));
  row.Value(ValueTable(2, r));
  if (FromKind == kScaleComposite) MasterColumn(set, row, header, ValueTable(2, r));
  if (Wants(kScaleComposite) && Wants(kScaleEfd)) {
    row.Value(ValueTable(3, r));
    if (FromKind == kScaleEfd) MasterColumn(set, row, header, ValueTable(3, r));
  }
  if (Wants(kScaleAge)) {
    const Variant efd = ValueTable(FromKind == kScaleComposite ? 3 : 2, r);
    AgeColumns(set, row, header, titles, efd);
  }
}

// A value that is an age: the age as given and its errors first, then the
// depths, composite before EFD.
void AgeValueRow(BoreHoleSet& set, ConvertedRowWriter& row, long r, const ColumnTitles& titles) {
  const bool header = r == 0;
  row.Value(ValueTable(1, r));
  row.Value(ValueTable(2, r));
  if (header) {
    ErrorTitles(row);
  } else {
    ErrorCells(row, AgeOfEfd(set, ValueTable(3, r)));
  }
  if (Wants(kScaleComposite)) {
    const Variant cd = header ? Variant() : EFDToCD(set, CSng(ValueTable(3, r).TextValue()));
    if (header) {
      row.Text(titles.composite);
    } else {
      row.Value(cd);
    }
    MasterColumn(set, row, header, cd);
  }
  if (Wants(kScaleEfd)) row.Value(ValueTable(3, r));
}

// A position: the file's four columns, then composite depth, EFD and age.
void PositionRow(BoreHoleSet& set, ConvertedRowWriter& row, long r, const ColumnTitles& titles) {
  const bool header = r == 0;
  const auto& converted = std::as_const(ConversionTable);
  row.Cells(converted, r, 0, 3);
  if (Wants(kScaleComposite)) {
    const Variant cd = converted(4, r);
    if (header) {
      row.Value(cd);
    } else {
      row.Number(Round(cd.ToDouble(), DepthPrecision));
    }
    MasterColumn(set, row, header, cd);
  }
  const Variant efd = converted(5, r);
  if (Wants(kScaleEfd)) row.Value(efd);
  if (Wants(kScaleAge)) AgeColumns(set, row, header, titles, efd);
}

}  // namespace

void WriteConvertedRows(BoreHoleSet& set, MainForm& form, const ColumnTitles& titles,
                        ReplacementFile& out) {
  const bool positions = FromKind == kScaleTrinity;
  const long rows = static_cast<long>(positions ? ConversionRows : ValueRows);
  auto writeRow = positions ? PositionRow : FromKind == kScaleAge ? AgeValueRow : DepthValueRow;
  form.ProgressBar1.Max = static_cast<float>(rows);
  ConvertedRowWriter written(out, FastLookups);
  for (long r = 0; r <= rows; ++r) {
    form.ProgressBar1.Value = static_cast<float>(r);
    writeRow(set, written, r, titles);
    written.EndRow();
  }
  written.Finish();
}

}  // namespace ostraline
