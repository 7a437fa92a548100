#pragma once
// The rows of the correlation model as the core view reads them, on the
// selected vertical scale. The cells that the drawing walks row by row are
// read once per repaint, as numbers and marks.
#include <string>
#include <vector>

#include "core/bore_hole_set.h"
#include "runtime/checked_int.h"

namespace ostraline {

// The rows on one scale, read anew when the model has changed since.
const ScaleRows& RowsOnScale(const BoreHoleSet& set, int scale);

// A row's lamina label with its PSP, as the columns and their tool tips show it.
std::string RowText(const BoreHoleSet& set, int hole, long row);

class ModelRows {
 public:
  explicit ModelRows(const BoreHoleSet& set);

  long LastRow() const { return lastRow_; }
  // ModelCell(scale, hole, 2, row) as a Single.
  Single Depth(int hole, long row) const { return rows_.holeDepth[Slot(hole, row)]; }
  // The depth cell as text, for the comparison between sections.
  const std::string& DepthText(int hole, long row) const;
  // ModelCell(scale, hole, 1, row) as a number: the PSP on the composite scale.
  double Psp(int hole, long row) const;
  // What the lamina label ModelCell(0, hole, 0, row) marks.
  bool OpensSection(int hole, long row) const { return rows_.opens[Slot(hole, row)] != 0; }
  bool ClosesSection(int hole, long row) const { return rows_.closes[Slot(hole, row)] != 0; }
  bool IsPinRow(int hole, long row) const { return rows_.pins[Slot(hole, row)] != 0; }
  // The rows from the first to the one before the last that close a section, in order.
  const std::vector<long>& SectionEnds(int hole) const { return rows_.sectionEnds[hole - 1]; }
  // The first row after this one that opens a section, or the last row.
  long NextSectionStart(int hole, long row) const;

  // TieCell(scale, row) as a Single: the row's depth on the composite column.
  Single Tie(long row) const { return rows_.tieDepth[static_cast<std::size_t>(row)]; }
  // TieCell(0, row): the bore hole that carries the composite from this row
  // on, or a gap.
  const std::string& Kind(long row) const;
  bool KindIsGap(long row) const { return rows_.gap[static_cast<std::size_t>(row)] != 0; }
  // Whether Kind(row) equals HoleName(hole), and whether it equals any of them.
  bool KindNames(int hole, long row) const {
    return (rows_.kindHoles[static_cast<std::size_t>(row)] >> hole & 1U) != 0;
  }
  bool KindNamesAnyHole(long row) const {
    return rows_.kindHoles[static_cast<std::size_t>(row)] != 0;
  }

 private:
  std::size_t Slot(int hole, long row) const {
    return static_cast<std::size_t>(row) * 4 + static_cast<std::size_t>(hole - 1);
  }

  const BoreHoleSet& set_;
  int axis_;
  long lastRow_;
  // What every step reads of every row, kept between repaints; the rest is
  // read where a row is in view or next to a tie.
  const ScaleRows& rows_;
};

}  // namespace ostraline
