#include "events/converted_row_writer.h"

#include <utility>

#include "events/batch_output_file.h"

namespace ostraline {
namespace {

// Rows go to the file some thousand at a time.
constexpr std::size_t kWriteFrom = 1 << 16;
// Rows are sent to the writing thread a few thousand at a time, and only a
// few batches wait, so that the rows in waiting take a few megabytes at most.
constexpr std::size_t kRowsSent = 2048;
constexpr std::size_t kBatchesWaiting = 2;

}  // namespace

ConvertedRowWriter::ConvertedRowWriter(ReplacementFile& out, bool inBackground) : out_(out) {
  if (inBackground) writer_.emplace([this](Rows& rows) { Write(rows); }, kBatchesWaiting);
}

void ConvertedRowWriter::Value(const Variant& value) {
  if (writer_) {
    gathered_.cells.push_back(value);
  } else {
    text_.Value(value);
  }
}

void ConvertedRowWriter::Cells(const VariantTable& table, long row, int firstColumn,
                               int lastColumn) {
  if (writer_) {
    gathered_.tableCells.push_back({&table, row, firstColumn, lastColumn,
                                    static_cast<std::uint32_t>(gathered_.rowEnds.size()),
                                    static_cast<std::uint32_t>(gathered_.cells.size())});
  } else {
    WriteCells({&table, row, firstColumn, lastColumn, 0, 0});
  }
}

void ConvertedRowWriter::EndRow() {
  if (!writer_) {
    EndRowInText();
    return;
  }
  gathered_.rowEnds.push_back(static_cast<std::uint32_t>(gathered_.cells.size()));
  if (gathered_.rowEnds.size() >= kRowsSent) Send();
}

void ConvertedRowWriter::Finish() {
  if (writer_) {
    Send();
    writer_->Finish();
  }
  out_.Write(text_.Content());
  text_.Clear();
}

void ConvertedRowWriter::Send() {
  Rows next;
  // A batch written lends its room to the next.
  if (writer_->TakeDone(next)) {
    next.cells.clear();
    next.tableCells.clear();
    next.rowEnds.clear();
  }
  writer_->Give(std::exchange(gathered_, std::move(next)));
}

void ConvertedRowWriter::Write(const Rows& rows) {
  std::uint32_t cell = 0;
  auto fromTable = rows.tableCells.begin();
  // The table cells given in this row before the gathered cell at hand.
  const auto writeTableCells = [&](std::uint32_t row) {
    for (;
         fromTable != rows.tableCells.end() && fromTable->inRow == row && fromTable->before == cell;
         ++fromTable) {
      WriteCells(*fromTable);
    }
  };
  for (std::uint32_t row = 0; row < rows.rowEnds.size(); ++row) {
    for (; cell < rows.rowEnds[row]; ++cell) {
      writeTableCells(row);
      text_.Value(rows.cells[cell]);
    }
    writeTableCells(row);
    EndRowInText();
  }
}

void ConvertedRowWriter::WriteCells(const TableCells& cells) {
  for (int column = cells.firstColumn; column <= cells.lastColumn; ++column) {
    text_.Value((*cells.table)(column, cells.row));
  }
}

void ConvertedRowWriter::EndRowInText() {
  text_.EndRow();
  if (text_.Content().size() >= kWriteFrom) {
    out_.Write(text_.Content());
    text_.Clear();
  }
}

}  // namespace ostraline
