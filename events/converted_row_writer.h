#pragma once
// The rows of "Convert and Save" on their way to the file. With the fast
// lookups on, a second thread turns them into text and writes them while
// the next rows are converted: a row's cells wait as variants meanwhile, so
// that the text is the same as if it had been made at once. Off, the rows
// are made and written by the converting thread as they come.
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <exception>
#include <mutex>
#include <string_view>
#include <thread>
#include <vector>

#include "runtime/field_reader.h"
#include "runtime/variant.h"

namespace ostraline {

class ReplacementFile;

class ConvertedRowWriter {
 public:
  ConvertedRowWriter(ReplacementFile& out, bool inBackground);
  ConvertedRowWriter(const ConvertedRowWriter&) = delete;
  ConvertedRowWriter& operator=(const ConvertedRowWriter&) = delete;
  // Rows not yet written are dropped: the conversion failed.
  ~ConvertedRowWriter();

  // The fields of a row as FieldWriter writes them.
  void Text(std::string_view text) { Value(Variant(text)); }
  void Number(double value) { Value(Variant(value)); }
  void Number(float value) { Value(Variant(value)); }
  void Value(const Variant& value);
  // A failure of the writing thread is thrown at the end of a row.
  void EndRow();
  // Every row is in the file when this returns.
  void Finish();

 private:
  // Rows of cells; row i ends before cell rowEnds[i].
  struct Rows {
    std::vector<Variant> cells;
    std::vector<std::uint32_t> rowEnds;
  };

  void Send();
  void WriteInBackground();
  void Write(const Rows& rows, FieldWriter& text);
  // Ends the row in the text, which goes to the file once it is long enough.
  void EndRowIn(FieldWriter& text);
  void RethrowFailure();

  ReplacementFile& out_;
  const bool inBackground_;
  // The rows made text when the converting thread writes them; the writing
  // thread has its own, away from what the converting thread writes.
  FieldWriter text_;
  // The rows gathered by the converting thread, to be sent.
  Rows gathered_;

  std::mutex lock_;
  std::condition_variable changed_;
  std::deque<Rows> queued_;
  // Batches written, kept for their room.
  std::vector<Rows> spare_;
  bool finished_ = false;
  bool stopped_ = false;
  std::exception_ptr failure_;
  std::thread writer_;
};

}  // namespace ostraline
