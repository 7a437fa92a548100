#pragma once
// The steps of a batch conversion that the two buttons share out: reading the
// rows given as positions, and writing the converted file's rows.
#include <optional>
#include <string>

#include "core/bore_hole_set.h"
#include "runtime/variant.h"

namespace ostraline {

class FrmConversion;
class MainForm;
class ReplacementFile;

// The set that a conversion form converts through, and the conversion form,
// frmConversion or frm2Conversion, of a set.
BoreHoleSet& SetOf(const FrmConversion& form);
FrmConversion& ConversionFormOf(const BoreHoleSet& set);
void UnloadConversionForm(const BoreHoleSet& set);

// "Convert from data file" on the set's main form: the file read and the
// set's conversion form shown.
void ConvertFromDataFile(BoreHoleSet& set, MainForm& form);

// The sum of the codes of the boxes ticked under " To ", and the code of the
// option set under " From " (0 when none is).
int TickedScales(const FrmConversion& form);
int ChosenScale(const FrmConversion& form);

// Nothing for a cell that reads as the number 9999 or -9999, which stands
// for no value and is passed through; what Val reads from it otherwise.
std::optional<double> ValueOfCell(const Variant& cell);
// The same as a Single, for the conversions that take one.
std::optional<Single> SingleOfCell(const Variant& cell);

// Composite depth and, with the event list, EFD of every row of
// ConversionTable; the bar of the main form advances by row. A bore hole of
// the other set is converted through it and mapped to this set's scale.
void ConvertPositionRows(BoreHoleSet& set, MainForm& form);

// The titles that the converted file's header row takes from the versions.
struct ColumnTitles {
  std::string age;
  std::string composite;
  std::string efd;
};
ColumnTitles MakeColumnTitles(const BoreHoleSet& set);

// Column 3 of ValueTable by FromKind; false for a FromKind that no value
// file can hold. Nothing to do for a file of positions.
bool ConvertValuesFirstPass(BoreHoleSet& set, MainForm& form, const ColumnTitles& titles);

// One row to a line, the header first, in the layout of FromKind and ToMask.
// The Duo writes the master's composite depth beside each of its own.
void WriteConvertedRows(BoreHoleSet& set, MainForm& form, const ColumnTitles& titles,
                        ReplacementFile& out);

}  // namespace ostraline
