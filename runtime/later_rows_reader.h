#pragma once
// The later half of a long data file, read by a second thread while the
// earlier half is read as usual. Its rows begin at the first line that
// starts in that half; they are used only if the reader of the earlier rows,
// between two rows, stands exactly there, so that they are the rows it would
// have read itself. Otherwise, and after any failure, the earlier reader
// reads on alone and meets what it would have met.
#include <atomic>
#include <cstddef>
#include <limits>
#include <string>
#include <thread>
#include <vector>

#include "runtime/variant.h"

namespace ostraline {

void* MapBytes(std::size_t bytes);
void UnmapBytes(void* p, std::size_t bytes) noexcept;

// The memory of a block read ahead is mapped for it alone, so that it goes
// back to the system as soon as the block's rows are taken: the blocks are
// made by one thread and freed by another, which the heap would keep.
template <class T>
struct MappedAllocator {
  using value_type = T;
  MappedAllocator() = default;
  template <class U>
  MappedAllocator(const MappedAllocator<U>&) noexcept {}
  T* allocate(std::size_t n) { return static_cast<T*>(MapBytes(n * sizeof(T))); }
  void deallocate(T* p, std::size_t n) noexcept { UnmapBytes(p, n * sizeof(T)); }
  friend bool operator==(const MappedAllocator&, const MappedAllocator&) { return true; }
};

class LaterRowsReader {
 public:
  // Nothing is read ahead from a file shorter than `least` bytes.
  LaterRowsReader(const std::string& path, int fields, std::size_t least);
  LaterRowsReader(const LaterRowsReader&) = delete;
  LaterRowsReader& operator=(const LaterRowsReader&) = delete;
  ~LaterRowsReader() { Drop(); }

  // Asked between two rows with where the earlier reader stands: true when
  // the rows read ahead begin there and were read to the file's end without
  // a failure. Standing beyond their beginning drops them.
  bool ContinuesAt(std::size_t offset) { return offset >= start_ && TakeOver(offset); }

  // The rows read ahead, `fields` cells to a row, in blocks of whole rows.
  using Block = std::vector<Variant, MappedAllocator<Variant>>;
  std::vector<Block>& Blocks() { return blocks_; }

 private:
  static constexpr std::size_t kNowhere = std::numeric_limits<std::size_t>::max();

  bool TakeOver(std::size_t offset);
  void Read(const std::string& path, std::size_t start, int fields);
  void Drop();

  std::size_t start_ = kNowhere;
  std::atomic<bool> stopped_{false};
  // Read by the thread until it ends, then by the caller.
  bool failed_ = false;
  std::vector<Block> blocks_;
  std::thread reader_;
};

}  // namespace ostraline
