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

ConvertedRowWriter::ConvertedRowWriter(ReplacementFile& out, bool inBackground)
    : out_(out), inBackground_(inBackground) {
  if (inBackground_) writer_ = std::thread([this] { WriteInBackground(); });
}

ConvertedRowWriter::~ConvertedRowWriter() {
  if (!writer_.joinable()) return;
  {
    const std::lock_guard<std::mutex> hold(lock_);
    stopped_ = true;
  }
  changed_.notify_all();
  writer_.join();
}

void ConvertedRowWriter::Value(const Variant& value) {
  if (inBackground_) {
    gathered_.cells.push_back(value);
  } else {
    text_.Value(value);
  }
}

void ConvertedRowWriter::EndRow() {
  if (!inBackground_) {
    EndRowIn(text_);
    return;
  }
  gathered_.rowEnds.push_back(static_cast<std::uint32_t>(gathered_.cells.size()));
  if (gathered_.rowEnds.size() >= kRowsSent) Send();
}

void ConvertedRowWriter::Finish() {
  if (!inBackground_) {
    out_.Write(text_.Content());
    text_.Clear();
    return;
  }
  Send();
  {
    const std::lock_guard<std::mutex> hold(lock_);
    finished_ = true;
  }
  changed_.notify_all();
  writer_.join();
  RethrowFailure();
}

void ConvertedRowWriter::Send() {
  std::unique_lock<std::mutex> hold(lock_);
  changed_.wait(hold, [this] { return failure_ || queued_.size() < kBatchesWaiting; });
  if (failure_) {
    hold.unlock();
    RethrowFailure();
  }
  queued_.push_back(std::move(gathered_));
  if (spare_.empty()) {
    gathered_ = Rows{};
  } else {
    gathered_ = std::move(spare_.back());
    spare_.pop_back();
  }
  hold.unlock();
  changed_.notify_all();
}

void ConvertedRowWriter::WriteInBackground() {
  FieldWriter text;
  std::unique_lock<std::mutex> hold(lock_);
  while (true) {
    changed_.wait(hold, [this] { return stopped_ || finished_ || !queued_.empty(); });
    if (stopped_) return;
    if (queued_.empty()) break;
    Rows rows = std::move(queued_.front());
    queued_.pop_front();
    hold.unlock();
    changed_.notify_all();
    try {
      Write(rows, text);
    } catch (...) {
      hold.lock();
      failure_ = std::current_exception();
      changed_.notify_all();
      return;
    }
    rows.cells.clear();
    rows.rowEnds.clear();
    hold.lock();
    spare_.push_back(std::move(rows));
  }
  hold.unlock();
  try {
    out_.Write(text.Content());
  } catch (...) {
    hold.lock();
    failure_ = std::current_exception();
  }
}

void ConvertedRowWriter::Write(const Rows& rows, FieldWriter& text) {
  std::size_t cell = 0;
  for (const std::uint32_t end : rows.rowEnds) {
    for (; cell < end; ++cell) text.Value(rows.cells[cell]);
    EndRowIn(text);
  }
}

void ConvertedRowWriter::EndRowIn(FieldWriter& text) {
  text.EndRow();
  if (text.Content().size() >= kWriteFrom) {
    out_.Write(text.Content());
    text.Clear();
  }
}

void ConvertedRowWriter::RethrowFailure() {
  const std::lock_guard<std::mutex> hold(lock_);
  if (failure_) std::rethrow_exception(failure_);
}

}  // namespace ostraline
