#include "runtime/later_rows_reader.h"

#include <sys/mman.h>

#include <fstream>
#include <new>
#include <system_error>

#include "runtime/field_reader.h"

namespace ostraline {
namespace {

constexpr std::size_t kRowsInBlock = 4096;

// The first byte after the first line end from the file's middle on;
// nothing when there is none before the end.
std::size_t LaterHalfStart(const std::string& path, std::size_t least) {
  std::ifstream in(path, std::ios::binary | std::ios::ate);
  if (!in) return std::string::npos;
  const std::streamoff size = in.tellg();
  if (size < 0 || static_cast<std::size_t>(size) < least) return std::string::npos;
  in.seekg(size / 2);
  std::string line;
  if (!std::getline(in, line) || in.eof()) return std::string::npos;
  const std::streamoff start = in.tellg();
  return start < size ? static_cast<std::size_t>(start) : std::string::npos;
}

}  // namespace

void* MapBytes(std::size_t bytes) {
  void* p = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (p == MAP_FAILED) throw std::bad_alloc();
  return p;
}

void UnmapBytes(void* p, std::size_t bytes) noexcept {
  munmap(p, bytes);
}

LaterRowsReader::LaterRowsReader(const std::string& path, int fields, std::size_t least) {
  const std::size_t start = LaterHalfStart(path, least);
  if (start == std::string::npos) return;
  try {
    reader_ = std::thread([this, path, start, fields] { Read(path, start, fields); });
    start_ = start;
  } catch (const std::system_error&) {
    // Without a second thread the file is read from its start alone.
  }
}

void LaterRowsReader::Read(const std::string& path, std::size_t start, int fields) {
  try {
    // Small chunks: what this thread frees, the heap keeps for it alone.
    FieldReader file = FieldReader::Open(path, 1 << 16, start);
    const std::size_t cells = kRowsInBlock * static_cast<std::size_t>(fields);
    Block block;
    block.reserve(cells);
    while (!file.Eof()) {
      if (stopped_.load(std::memory_order_relaxed)) return;
      for (int field = 0; field < fields; ++field) block.emplace_back(file.ReadTextView());
      if (block.size() >= cells) {
        blocks_.push_back(std::move(block));
        block = {};
        block.reserve(cells);
      }
    }
    blocks_.push_back(std::move(block));
  } catch (...) {
    // The earlier reader will meet the same failure where it lies.
    failed_ = true;
  }
}

bool LaterRowsReader::TakeOver(std::size_t offset) {
  if (offset != start_) {
    Drop();
    return false;
  }
  reader_.join();
  start_ = kNowhere;
  if (!failed_) return true;
  blocks_.clear();
  return false;
}

void LaterRowsReader::Drop() {
  start_ = kNowhere;
  if (reader_.joinable()) {
    stopped_ = true;
    reader_.join();
  }
  blocks_.clear();
}

}  // namespace ostraline
