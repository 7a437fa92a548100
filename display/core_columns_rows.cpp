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

ModelRows::ModelRows(const BoreHoleSet& set)
    : set_(set),
      axis_(ColumnScaleOf(set)),
      lastRow_(set.LastRow),
      holeRows_(static_cast<std::size_t>(lastRow_ + 1) * 4),
      tieRows_(static_cast<std::size_t>(lastRow_ + 1)) {
  for (long r = 0; r <= lastRow_; ++r) {
    TieRow& tie = tieRows_[static_cast<std::size_t>(r)];
    tie.depth = CellNumber(set_.TieCell(axis_, r));
    tie.gap = IsGap(Kind(r));
    for (int hole = 1; hole <= 4; ++hole) {
      HoleRow& row = holeRows_[Slot(hole, r)];
      row.depth = CellNumber(DepthText(hole, r));
      row.closes = IsSectionBottom(Label(hole, r));
    }
  }
}

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
