#pragma once
// Reading a proxy record: its layout told from the file's first fields, and
// its rows with their vertical positions.
#include <string>

#include "core/bore_hole_set.h"
#include "runtime/checked_int.h"
#include "runtime/field_reader.h"
#include "runtime/table.h"

namespace ostraline {

// The lead columns before the data columns: position; label, position;
// bore hole, section, PSP; label, bore hole, section, PSP.
enum class ProxyLayout { L1, L2, L3, L4 };

// What one import reads, thrown away at its end. The bounds are the limits
// of a record: 135 columns and 65,535 rows; the rows' tables grow up to
// their bound as rows come in.
struct ProxyWork {
  ProxyWork();
  // Makes room for row r; beyond 65,535 rows a subscript failure.
  void ReachRow(long r);

  Table<std::string> Field;       // 0..99,999: the file's first fields in reading order
  Table<std::string> HeaderWork;  // 0..135
  Table<std::string> LabelWork;   // row 0..65,535
  Table<Single> DepthWork;        // row 0..65,535
  Table<Single, 2> ValueWork;     // column 0..255 by row 0..65,535

  ProxyLayout layout = ProxyLayout::L1;
  long columns = 0;  // N
  long rows = 0;     // R
};

// Whether a field prints back as itself once read as a number: 12.5, 0 and
// -3 do; 12.50, 01, 1.0, an empty field and a word do not.
bool IsPlainNumber(const std::string& field);

// Reads the file's first fields up to the first plain number and on to the
// field that tells the layouts apart, and decides the layout and the number
// of data columns.
void RecogniseLayout(const BoreHoleSet& set, FieldReader& file, ProxyWork& work);

// Reads the two first rows from the fields already read and every further
// row from the file.
void ReadProxyRows(BoreHoleSet& set, FieldReader& file, ProxyWork& work);

}  // namespace ostraline
