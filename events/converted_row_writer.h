#pragma once
// The rows of "Convert and Save" on their way to the file. With the fast
// lookups on, a second thread turns them into text and writes them while
// the next rows are converted: a row's cells wait as variants meanwhile, or
// as the places of cells in a table that stands still, so that the text is
// the same as if it had been made at once. Off, the rows are made and
// written by the converting thread as they come.
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "runtime/field_reader.h"
#include "runtime/variant.h"
#include "runtime/variant_table.h"
#include "runtime/work_behind.h"

namespace ostraline {

class ReplacementFile;

class ConvertedRowWriter {
 public:
  ConvertedRowWriter(ReplacementFile& out, bool inBackground);

  // The fields of a row as FieldWriter writes them.
  void Text(std::string_view text) { Value(Variant(text)); }
  void Number(double value) { Value(Variant(value)); }
  void Number(float value) { Value(Variant(value)); }
  void Value(const Variant& value);
  // Cells of one row of a table that stands still until Finish: the thread
  // that writes them reads them there.
  void Cells(const VariantTable& table, long row, int firstColumn, int lastColumn);
  // A failure of the writing thread is thrown at the end of a row.
  void EndRow();
  // Every row is in the file when this returns; without it, the rows not
  // yet written are dropped.
  void Finish();

 private:
  // Cells of a table, written in the row gathered as `inRow` before the
  // gathered cell `before`.
  struct TableCells {
    const VariantTable* table;
    long row;
    int firstColumn;
    int lastColumn;
    std::uint32_t inRow;
    std::uint32_t before;
  };
  // Rows of cells; row i ends before cell rowEnds[i].
  struct Rows {
    std::vector<Variant> cells;
    std::vector<TableCells> tableCells;
    std::vector<std::uint32_t> rowEnds;
  };

  void Send();
  void Write(const Rows& rows);
  void WriteCells(const TableCells& cells);
  // Ends the row in the text, which goes to the file once it is long enough.
  void EndRowInText();

  ReplacementFile& out_;
  // The rows gathered by the converting thread, to be sent.
  Rows gathered_;
  // The rows made text, by the thread that writes them: a cache line of its
  // own keeps the two threads from slowing each other.
  alignas(64) FieldWriter text_;
  alignas(64) std::optional<WorkBehind<Rows>> writer_;
};

}  // namespace ostraline
