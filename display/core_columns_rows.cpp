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

}  // namespace

const ScaleRows& RowsOnScale(const BoreHoleSet& set, int scale) {
  ScaleRows& rows = set.Derived.rows;
  const Table<std::string, 4>& model = set.ModelCell;
  const Table<std::string, 2>& ties = set.TieCell;
  const long last = set.LastRow;
  if (rows.built && rows.scale == scale && rows.lastRow == last &&
      rows.modelScale == model.Revision(scale) && rows.modelLabels == model.Revision(0) &&
      rows.tieScale == ties.Revision(scale) && rows.tieKinds == ties.Revision(0)) {
    return rows;
  }
  rows = ScaleRows{};
  const auto count = static_cast<std::size_t>(last + 1);
  rows.holeDepth.resize(count * 4);
  rows.holeDepthVal.resize(count * 4);
  rows.closes.resize(count * 4);
  rows.tieDepth.resize(count);
  rows.gap.resize(count);
  for (long r = 0; r <= last; ++r) {
    rows.tieDepth[r] = CellNumber(ties(scale, r));
    rows.gap[r] = IsGap(ties(0, r)) ? 1 : 0;
    for (int hole = 1; hole <= 4; ++hole) {
      const std::size_t slot = static_cast<std::size_t>(r) * 4 + static_cast<std::size_t>(hole - 1);
      const std::string& depth = model(scale, hole, 2, r);
      rows.holeDepth[slot] = CellNumber(depth);
      rows.holeDepthVal[slot] = Val(depth);
      rows.closes[slot] = IsSectionBottom(model(0, hole, 0, r)) ? 1 : 0;
    }
  }
  rows.modelScale = model.Revision(scale);
  rows.modelLabels = model.Revision(0);
  rows.tieScale = ties.Revision(scale);
  rows.tieKinds = ties.Revision(0);
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

const std::string& ModelRows::Label(int hole, long row) const {
  return set_.ModelCell(0, hole, 0, row);
}

bool ModelRows::OpensSection(int hole, long row) const {
  return IsSectionTop(Label(hole, row));
}

bool ModelRows::IsPinRow(int hole, long row) const {
  return IsPin(Label(hole, row));
}

long ModelRows::NextSectionStart(int hole, long row) const {
  long next = row + 1;
  while (next < lastRow_ && !OpensSection(hole, next)) ++next;
  return next;
}

const std::string& ModelRows::Kind(long row) const {
  return set_.TieCell(0, row);
}

bool ModelRows::KindNames(int hole, long row) const {
  return Kind(row) == set_.HoleName(hole);
}

bool ModelRows::KindNamesAnyHole(long row) const {
  for (int hole = 1; hole <= 4; ++hole) {
    if (KindNames(hole, row)) return true;
  }
  return false;
}

}  // namespace ostraline
