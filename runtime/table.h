#pragma once
// Tables with explicit bounds per dimension. Reading or writing outside the
// bounds, or in a table never dimensioned, is a subscript failure.
#include <algorithm>
#include <array>
#include <cstddef>
#include <deque>
#include <initializer_list>
#include <type_traits>
#include <vector>

#include "runtime/checked_int.h"
#include "runtime/failure.h"

namespace ostraline {

// Revisions are drawn from one program-wide count, so that no two states of
// any tables ever share one.
inline unsigned long long NextTableRevision() {
  static unsigned long long count = 0;
  return ++count;
}

struct Bounds {
  long lo;
  long hi;
};

// Cells in blocks of a fixed count. A table grown row by row, as the data
// file of a batch conversion is, never moves the cells it holds and never
// keeps an old and a new copy of them at once: only its last block grows.
template <class T>
class CellBlocks {
 public:
  void clear() { blocks_.clear(); }
  // Cells past the new count go; new ones are default-constructed.
  void resize(std::size_t count) {
    const std::size_t oldBlocks = blocks_.size();
    const std::size_t newBlocks = (count + kBlockCells - 1) / kBlockCells;
    blocks_.resize(newBlocks);
    // Only the old last block and the new ones change size.
    const std::size_t kept = std::min(oldBlocks, newBlocks);
    for (std::size_t b = kept > 0 ? kept - 1 : 0; b < newBlocks; ++b) {
      std::vector<T>& block = blocks_[b];
      const std::size_t cells = std::min(kBlockCells, count - b * kBlockCells);
      // Doubling, as a vector grows, up to a sixteenth of a block; then the
      // whole block at once, so that a long table is not moved again and again.
      if (cells > block.capacity()) {
        const std::size_t doubled = std::max(cells, 2 * block.capacity());
        block.reserve(doubled > kBlockCells / 16 ? kBlockCells : doubled);
      }
      block.resize(cells);
    }
  }
  T& operator[](std::size_t i) { return blocks_[i / kBlockCells][i % kBlockCells]; }
  const T& operator[](std::size_t i) const { return blocks_[i / kBlockCells][i % kBlockCells]; }

 private:
  static constexpr std::size_t kBlockCells = 16384;
  std::vector<std::vector<T>> blocks_;
};

template <class T, int Rank = 1>
class Table {
 public:
  Table() = default;

  // Bumped by every access that may change the contents or the bounds: what
  // is derived from a table is rebuilt when its revision has moved on. A
  // table of more than one dimension also keeps one for each value of its
  // first subscript, so that what reads one scale or column of a table is
  // not rebuilt for writes to another.
  unsigned long long Revision() const { return revision_; }
  unsigned long long Revision(long first) const {
    if constexpr (Rank == 1) {
      return revision_;
    } else {
      const long k = first - bounds_[0].lo;
      if (!allocated_ || k < 0 || k >= static_cast<long>(sliceRevision_.size())) return revision_;
      return sliceRevision_[static_cast<std::size_t>(k)];
    }
  }

  // Dimension anew: all contents are dropped.
  void Dim(std::initializer_list<Bounds> bounds) {
    if (static_cast<int>(bounds.size()) != Rank) Fail(FailureKind::SubscriptOutOfRange, "rank");
    int d = 0;
    for (const Bounds& b : bounds) bounds_[d++] = b;
    allocated_ = true;
    Renew();
    // Default-constructed, not copied: a model's table holds some 360000 cells.
    data_.clear();
    data_.resize(Capacity());
  }
  // Convenience for the common "0..hi" in every dimension.
  template <class... Hi>
  void DimUpper(Hi... hi) {
    static_assert(sizeof...(Hi) == Rank);
    Dim({Bounds{0, static_cast<long>(hi)}...});
  }

  // Keeps what is there; only the upper bound of the last dimension may change.
  void ReDimPreserve(long lastHi) {
    if (!allocated_) {
      Fail(FailureKind::SubscriptOutOfRange, "preserve of an undimensioned table");
    }
    bounds_[Rank - 1].hi = lastHi;
    Renew();
    data_.resize(Capacity());
  }

  void Erase() {
    revision_ = NextTableRevision();
    sliceRevision_.clear();
    allocated_ = false;
    data_.clear();
  }

  bool Allocated() const { return allocated_; }
  long LBound(int dim = 1) const { return Dimension(dim).lo; }
  long UBound(int dim = 1) const { return Dimension(dim).hi; }

  template <class... Ix>
  T& operator()(Ix... ix) {
    static_assert(sizeof...(Ix) == Rank, "wrong number of subscripts");
    const std::array<long, Rank> at{Subscript(ix)...};
    T& cell = data_[Offset(at)];
    revision_ = NextTableRevision();
    if constexpr (Rank > 1)
      sliceRevision_[static_cast<std::size_t>(at[0] - bounds_[0].lo)] = revision_;
    return cell;
  }
  // A write to a cell that nothing derived from the table reads: a scratch
  // cell that its readers fill before they read it.
  template <class... Ix>
  void SetUntracked(const T& value, Ix... ix) {
    static_assert(sizeof...(Ix) == Rank, "wrong number of subscripts");
    data_[Offset({Subscript(ix)...})] = value;
  }
  template <class... Ix>
  const T& operator()(Ix... ix) const {
    static_assert(sizeof...(Ix) == Rank, "wrong number of subscripts");
    return data_[Offset({Subscript(ix)...})];
  }

 private:
  // Every revision moves on: the bounds or all the contents may have changed.
  void Renew() {
    std::size_t stride = 1;
    for (int d = 0; d < Rank; ++d) {
      const Bounds& b = bounds_[d];
      extents_[d] = b.hi >= b.lo ? static_cast<std::size_t>(b.hi - b.lo + 1) : 0;
      strides_[d] = stride;
      stride *= extents_[d];
    }
    revision_ = NextTableRevision();
    if constexpr (Rank > 1) {
      const Bounds& first = bounds_[0];
      sliceRevision_.assign(
          first.hi >= first.lo ? static_cast<std::size_t>(first.hi - first.lo + 1) : 0, revision_);
    }
  }

  // A fractional subscript is rounded the language's way (half to even), not cut.
  template <class I>
  static long Subscript(I ix) {
    if constexpr (std::is_floating_point_v<I>) {
      return CLng(ix);
    } else {
      return static_cast<long>(ix);
    }
  }
  const Bounds& Dimension(int dim) const {
    if (!allocated_ || dim < 1 || dim > Rank) Fail(FailureKind::SubscriptOutOfRange);
    return bounds_[dim - 1];
  }
  std::size_t Capacity() const { return strides_[Rank - 1] * extents_[Rank - 1]; }
  // The first subscript varies fastest, so that the last can grow in place.
  std::size_t Offset(std::array<long, Rank> ix) const {
    if (!allocated_) Fail(FailureKind::SubscriptOutOfRange, "table not dimensioned");
    std::size_t offset = 0;
    for (int d = 0; d < Rank; ++d) {
      // Below the lower bound the difference wraps round beyond every extent.
      const std::size_t k = static_cast<std::size_t>(ix[d]) - static_cast<std::size_t>(bounds_[d].lo);
      if (k >= extents_[d]) Fail(FailureKind::SubscriptOutOfRange);
      offset += k * strides_[d];
    }
    return offset;
  }

  std::array<Bounds, Rank> bounds_{};
  // Each dimension's count of subscripts, and the cells between two of its neighbours.
  std::array<std::size_t, Rank> extents_{};
  std::array<std::size_t, Rank> strides_{};
  bool allocated_ = false;
  unsigned long long revision_ = NextTableRevision();
  std::vector<unsigned long long> sliceRevision_;
  // vector<bool> hands out no references; a deque of bool does.
  std::conditional_t<std::is_same_v<T, bool>, std::deque<bool>, CellBlocks<T>> data_;
};

}  // namespace ostraline
