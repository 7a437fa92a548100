#pragma once
// The steps of a batch conversion that the two buttons share out: reading the
// rows given as positions, and writing the converted file's rows.
#include <string>

#include "runtime/variant.h"

namespace ostraline {

class FrmConversion;
class MainForm;
class ReplacementFile;

// The sum of the codes of the boxes ticked under " To ", and the code of the
// option set under " From " (0 when none is).
int TickedScales(const FrmConversion& form);
int ChosenScale(const FrmConversion& form);

// A cell that reads as the number 9999 or -9999: no value, passed through.
bool IsNoValue(const Variant& cell);

// Composite depth and, with the event list, EFD of every row of
// ConversionTable; the bar of the main form advances by row.
void ConvertPositionRows(MainForm& form);

// The titles that the converted file's header row takes from the versions.
struct ColumnTitles {
  std::string age;
  std::string composite;
  std::string efd;
};
ColumnTitles MakeColumnTitles();

// Column 3 of ValueTable by FromKind; false for a FromKind that no value
// file can hold. Nothing to do for a file of positions.
bool ConvertValuesFirstPass(MainForm& form, const ColumnTitles& titles);

// One row to a line, the header first, in the layout of FromKind and ToMask.
void WriteConvertedRows(MainForm& form, const ColumnTitles& titles, ReplacementFile& out);

}  // namespace ostraline
