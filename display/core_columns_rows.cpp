#include "display/core_columns_rows.h"
#include "display/form_view.h"

#include "core/project_state.h"
#include "display/core_columns_paint.h"
#include "runtime/number_text.h"

namespace ostraline {
namespace {

bool IsGap(const std::string& kind) {
  const std::string head3 = Left(kind, 3);
  const std::string head4 = Left(kind, 4);
  return head3 == "Gap" || head3 == "gap" || head4 == "Void" || head4 == "void";
}

// The names are compared as they stand: a repaint reads them through
// accesses that count as writes.
bool NamesStand(const BoreHoleSet& set, const ScaleRows& rows) {
  for (int hole = 1; hole <= 4; ++hole) {
    if (rows.holeNames[hole - 1] != set.HoleName(hole)) return false;
  }
  return true;
}

}  // namespace

const ScaleRows& RowsOnScale(const BoreHoleSet& set, int scale) {
  ScaleRows& rows = set.Derived.rows;
  const Table<std::string, 4>& model = set.ModelCell;
  const Table<std::string, 2>& ties = set.TieCell;
  const long last = set.LastRow;
  if (rows.built && rows.scale == scale && rows.lastRow == last &&
      rows.modelScale == model.Revision(scale) && rows.modelLabels == model.Revision(0) &&
      rows.tieScale == ties.Revision(scale) && rows.tieKinds == ties.Revision(0) &&
      NamesStand(set, rows)) {
    return rows;
  }
  rows = ScaleRows{};
  const auto count = static_cast<std::size_t>(last + 1);
  rows.holeDepth.resize(count * 4);
  rows.holeDepthVal.resize(count * 4);
  rows.closes.resize(count * 4);
  rows.opens.resize(count * 4);
  rows.pins.resize(count * 4);
  rows.tieDepth.resize(count);
  rows.gap.resize(count);
  rows.kindHoles.resize(count);
  for (long r = 0; r <= last; ++r) {
    rows.tieDepth[r] = CellNumber(ties(scale, r));
    const std::string& kind = ties(0, r);
    rows.gap[r] = IsGap(kind) ? 1 : 0;
    for (int hole = 1; hole <= 4; ++hole) {
      const std::size_t slot = static_cast<std::size_t>(r) * 4 + static_cast<std::size_t>(hole - 1);
      const std::string& depth = model(scale, hole, 2, r);
      rows.holeDepth[slot] = CellNumber(depth);
      rows.holeDepthVal[slot] = Val(depth);
      const std::string& label = model(0, hole, 0, r);
      rows.closes[slot] = IsSectionBottom(label) ? 1 : 0;
      rows.opens[slot] = IsSectionTop(label) ? 1 : 0;
      rows.pins[slot] = IsPin(label) ? 1 : 0;
      if (kind == set.HoleName(hole)) rows.kindHoles[r] |= static_cast<unsigned char>(1U << hole);
      if (rows.closes[slot] != 0 && r >= 1 && r < last) rows.sectionEnds[hole - 1].push_back(r);
    }
  }
  rows.modelScale = model.Revision(scale);
  rows.modelLabels = model.Revision(0);
  rows.tieScale = ties.Revision(scale);
  rows.tieKinds = ties.Revision(0);
  for (int hole = 1; hole <= 4; ++hole) rows.holeNames[hole - 1] = set.HoleName(hole);
  rows.lastRow = last;
  rows.scale = scale;
  rows.built = true;
  return rows;
}

ModelRows::ModelRows(const BoreHoleSet& set)
    : set_(set), axis_(ColumnScaleOf(set)), lastRow_(set.LastRow), rows_(RowsOnScale(set, axis_)) {}

const std::string& ModelRows::DepthText(int hole, long row) const {
  return set_.ModelCell(axis_, hole, 2, row);
}

double ModelRows::Psp(int hole, long row) const {
  return Val(set_.ModelCell(axis_, hole, 1, row));
}

std::string RowText(const BoreHoleSet& set, int hole, long row) {
  return set.ModelCell(0, hole, 0, row) + " (" + set.ModelCell(0, hole, 1, row) + " cm)";
}

long ModelRows::NextSectionStart(int hole, long row) const {
  long next = row + 1;
  while (next < lastRow_ && !OpensSection(hole, next)) ++next;
  return next;
}

const std::string& ModelRows::Kind(long row) const {
  return set_.TieCell(0, row);
}

}  // namespace ostraline
