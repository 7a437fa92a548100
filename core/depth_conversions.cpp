#include "core/depth_conversions.h"

#include <algorithm>
#include <utility>

#include "core/hole_lookup.h"
#include "core/project_state.h"
#include "display/display_state.h"
#include "display/form_view.h"
#include "forms/frm_divider.h"
#include "forms/frm_main.h"
#include "runtime/number_text.h"

namespace ostraline {
namespace {

double Psp(const BoreHoleSet& set, int hole, long row) {
  return CDbl(std::as_const(set.ModelCell)(0, hole, 1, row));
}
double Cd(const BoreHoleSet& set, long row) {
  return CDbl(std::as_const(set.TieCell)(1, row));
}

// The section's rows with a PSP go to the divider's two lists and to
// SectionTieList; returns how many rows were used.
long FillDividerLists(BoreHoleSet& set, int hole) {
  FrmDivider& divider = DividerOf(set);
  divider.Combo1(0).Clear();
  divider.Combo1(1).Clear();
  long used = 0;
  for (long r = TargetTopRow;; ++r) {
    const std::string& label = std::as_const(set.ModelCell)(0, hole, 0, r);
    if (std::as_const(set.ModelCell)(0, hole, 1, r) != "9999") {
      divider.Combo1(0).AddItem(label);
      divider.Combo1(1).AddItem(label);
      ++used;
      SectionTieList(used, 0) = label;
      SectionTieList(used, 1) = std::as_const(set.ModelCell)(0, hole, 1, r);
      SectionTieList(used, 2) = std::as_const(set.TieCell)(1, r);
    }
    if (IsSectionBottom(label)) break;
  }
  // The other forms take the section's name from this caption less its first two characters.
  divider.Label5.Caption =
      set.HoleName(hole) + "-" +
      set.SectionName(hole,
                      static_cast<long>(SectionOrdinalOfRow(set, hole, TargetTopRow).ToDouble()));
  return used;
}

}  // namespace

namespace {

// The cells as they stand, parsed at each read.
struct PlainCells {
  const BoreHoleSet& set;
  int hole;
  double Psp(long row) const { return CDbl(std::as_const(set.ModelCell)(0, hole, 1, row)); }
  Single PspSingle(long row) const { return CSng(Psp(row)); }
  double Cd(long row) const { return CDbl(std::as_const(set.TieCell)(1, row)); }
  bool Bottom(long row) const {
    return IsSectionBottom(std::as_const(set.ModelCell)(0, hole, 0, row));
  }
  // Every row is read.
  long NextStop(long row) const { return row; }
  long NextCd(long row) const { return row; }
  // The walk reads every tie.
  const SectionTies* Ties(long) const { return nullptr; }
};

// A cell that is no number sends the lookup back to the plain cells, which
// fail where they did.
struct NotANumber {};

// The same cells parsed once per revision of the model.
struct ParsedCells {
  const TrinityCells& cells;
  int hole;
  const TrinityRow& At(long row) const {
    if (row < 0 || row > cells.lastRow) throw NotANumber{};
    return cells.rows[hole][static_cast<std::size_t>(row)];
  }
  double Psp(long row) const {
    const TrinityRow& at = At(row);
    if (!at.pspKnown) throw NotANumber{};
    return at.psp;
  }
  Single PspSingle(long row) const {
    const TrinityRow& at = At(row);
    if (!at.pspFits) throw NotANumber{};
    return at.pspSingle;
  }
  double Cd(long row) const {
    const TrinityRow& at = At(row);
    if (!at.cdKnown) throw NotANumber{};
    return at.cd;
  }
  bool Bottom(long row) const { return At(row).bottom; }
  long NextStop(long row) const { return At(row).nextStop; }
  long NextCd(long row) const { return At(row).nextCd; }
  // The section's ties from its top row, where the search may stand for the walk.
  const SectionTies* Ties(long top) const {
    if (top < 1 || top > cells.lastRow) return nullptr;
    std::vector<SectionTies>& known = cells.sectionTies[hole];
    if (known.empty()) known.resize(static_cast<std::size_t>(cells.lastRow + 1));
    SectionTies& ties = known[static_cast<std::size_t>(top)];
    if (!ties.built) ties = ChainOfTies(top);
    return ties.clean ? &ties : nullptr;
  }

 private:
  // The stops the walk makes from the top row on, each a tie, a bottom or
  // a cell that is no number; PSPs parsed from text are never NaN.
  SectionTies ChainOfTies(long top) const {
    SectionTies ties;
    ties.built = true;
    const std::vector<TrinityRow>& rows = cells.rows[hole];
    const TrinityRow& first = rows[static_cast<std::size_t>(top)];
    if (!first.cdKnown || first.cd == 9999 || !first.pspFits) return ties;
    ties.rows.push_back(top);
    for (long r = top + 1; r <= cells.lastRow; ++r) {
      r = rows[static_cast<std::size_t>(r)].nextStop;
      if (r > cells.lastRow) break;
      const TrinityRow& row = rows[static_cast<std::size_t>(r)];
      if (!row.pspKnown || !row.cdKnown) return ties;
      if (row.psp != 9999 && row.cd != 9999 && row.psp != 0) {
        if (!row.pspFits) return ties;
        ties.highest.push_back(ties.rows.size() == 1
                                   ? row.pspSingle
                                   : std::max(ties.highest.back(), row.pspSingle));
        ties.rows.push_back(r);
      }
      if (row.bottom) {
        ties.bottomFound = true;
        break;
      }
    }
    ties.clean = true;
    return ties;
  }
};

// Whether the cells were read from the model as it stands: the lookup reads
// Scale 0 of the model and the composite depths of the ties.
bool CellsStand(const BoreHoleSet& set) {
  const TrinityCells& cells = set.Derived.trinity;
  return cells.built && cells.modelRevision == set.ModelCell.Revision(0) &&
         cells.tieRevision == set.TieCell.Revision(1) && cells.lastRow == set.LastRow;
}

// The model's cells of a bore hole, read anew when the model has changed.
[[gnu::noinline]] const TrinityCells* ReadCells(BoreHoleSet& set, int hole) {
  const Table<std::string, 4>& model = set.ModelCell;
  const Table<std::string, 2>& ties = set.TieCell;
  if (hole < 1 || hole > 4 || !model.Allocated() || !ties.Allocated()) return nullptr;
  const long last = set.LastRow;
  if (last < 0 || last > model.UBound(4) || last > ties.UBound(2)) return nullptr;
  TrinityCells& cells = set.Derived.trinity;
  if (!CellsStand(set)) {
    cells = TrinityCells{};
    const auto rows = static_cast<std::size_t>(last + 1);
    std::vector<TrinityRow> tieRows(rows);
    for (long r = 0; r <= last; ++r) {
      TrinityRow& row = tieRows[static_cast<std::size_t>(r)];
      try {
        row.cd = CDbl(ties(1, r));
        row.cdKnown = true;
      } catch (const RuntimeFailure&) {
      }
    }
    for (int h = 1; h <= 4; ++h) {
      cells.rows[h] = tieRows;
      for (long r = 0; r <= last; ++r) {
        TrinityRow& row = cells.rows[h][static_cast<std::size_t>(r)];
        try {
          row.psp = CDbl(model(0, h, 1, r));
          row.pspKnown = true;
          row.pspSingle = CSng(row.psp);
          row.pspFits = true;
        } catch (const RuntimeFailure&) {
        }
        row.bottom = IsSectionBottom(model(0, h, 0, r));
      }
      // From the last row up: the next row that may be a tie, a bottom or
      // a cell that is no number, and the next with a composite depth.
      long nextStop = last + 1;
      long nextCd = last + 1;
      for (long r = last; r >= 0; --r) {
        TrinityRow& row = cells.rows[h][static_cast<std::size_t>(r)];
        const bool known = row.pspKnown && row.cdKnown;
        const bool tie = known && row.psp != 9999 && row.cd != 9999 && row.psp != 0;
        if (!known || tie || row.bottom) nextStop = r;
        if (row.cdKnown && row.cd != 9999) nextCd = r;
        row.nextStop = nextStop;
        row.nextCd = nextCd;
      }
    }
    cells.modelRevision = model.Revision(0);
    cells.tieRevision = ties.Revision(1);
    cells.lastRow = last;
    cells.built = true;
  }
  cells.modelSeen = model.Revision();
  cells.tiesSeen = ties.Revision();
  return &cells;
}

// Called for every lookup: as long as nothing at all is written to the
// model, one comparison a table tells that its cells stand.
inline const TrinityCells* Cells(BoreHoleSet& set, int hole) {
  const TrinityCells& cells = set.Derived.trinity;
  if (hole >= 1 && hole <= 4 && cells.built && cells.modelSeen == set.ModelCell.Revision() &&
      cells.tiesSeen == set.TieCell.Revision() && cells.lastRow == set.LastRow) {
    return &cells;
  }
  return ReadCells(set, hole);
}

// From the section's top row down to the first tie, from the second on,
// whose PSP reaches the position, or to the section's bottom; whether it
// got there.
template <class Cells>
bool WalkTies(const BoreHoleSet& set, const Cells& cells, Single psp, int& count) {
  // The top row counts by its composite depth alone.
  if (cells.Cd(TopRowFound) != 9999) {
    TieRowLast = TopRowFound;
    count = 1;
  }
  bool left = false;
  for (long r = TopRowFound + 1; r <= set.LastRow; ++r) {
    // Rows up to the next that may be a tie or a section's bottom only end
    // the walk, at the first with a composite depth, when the last tie
    // already lies at or beyond the PSP.
    const long stop = std::min<long>(cells.NextStop(r), set.LastRow + 1);
    if (stop > r) {
      if (cells.PspSingle(TieRowLast) >= psp && TieRowPrevious != 0 && cells.NextCd(r) < stop) {
        left = true;
        break;
      }
      r = stop;
      if (r > set.LastRow) break;
    }
    const double rowPsp = cells.Psp(r);
    const double rowCd = cells.Cd(r);
    // A row with PSP exactly 0 below the top is never a tie.
    if (rowPsp != 9999 && rowCd != 9999 && rowPsp != 0) {
      TieRowPrevious = TieRowLast;
      TieRowLast = static_cast<int>(r);
      ++count;
    }
    if (cells.PspSingle(TieRowLast) >= psp && rowCd != 9999 && TieRowPrevious != 0) {
      left = true;
      break;
    }
    if (cells.Bottom(r)) {
      left = true;
      break;
    }
  }
  return left;
}

// The same stop found by a search of the highest PSPs.
bool SearchTies(const SectionTies& ties, Single psp, int& count) {
  const auto reaching = std::lower_bound(ties.highest.begin(), ties.highest.end(), psp);
  const auto met = static_cast<std::size_t>(reaching - ties.highest.begin()) + 1;
  const std::size_t n = std::min(met + 1, ties.rows.size());
  TieRowLast = static_cast<int>(ties.rows[n - 1]);
  TieRowPrevious = n >= 2 ? static_cast<int>(ties.rows[n - 2]) : 0;
  count = static_cast<int>(n);
  return reaching != ties.highest.end() || ties.bottomFound;
}

template <class Cells>
Variant Composite(const BoreHoleSet& set, int hole, int section, Single psp, const Cells& cells) {
  try {
    if (hole == 0 || psp == 9999 || psp == -9999 || section == 9999 || section == -9999 ||
        section > set.SectionCount(hole) || set.LastRow < 1) {
      return Integer(9999);
    }
    TopRowFound = 0;
    TieRowPrevious = 0;
    TieRowLast = 0;
    int count = 0;
    TopRowFound = set.SectionTopRow(hole, section);
    const SectionTies* ties = cells.Ties(TopRowFound);
    const bool left =
        ties != nullptr ? SearchTies(*ties, psp, count) : WalkTies(set, cells, psp, count);
    if (!left || count == 0) return Variant();
    const double p = psp;
    if (count == 1) return cells.Cd(TieRowLast) + (p - cells.Psp(TieRowLast));
    const int a = TieRowPrevious;
    const int b = TieRowLast;
    auto interpolation = [&] {
      return cells.Cd(a) +
             (p - cells.Psp(a)) * Divide(cells.Cd(b) - cells.Cd(a), cells.Psp(b) - cells.Psp(a));
    };
    // The extrapolation method is the master's, for both sets.
    MainForm& form = *frmMain;
    if (form.Option4(0).Value) return interpolation();
    if (form.Option4(1).Value) {
      if (cells.PspSingle(a) > psp) return cells.Cd(a) + (p - cells.Psp(a));
      if (cells.PspSingle(b) >= psp) return interpolation();
      return cells.Cd(b) + (p - cells.Psp(b));
    }
    return Variant();
  } catch (const RuntimeFailure&) {
    return Integer(9999);
  }
}

}  // namespace

double ModelPspValue(BoreHoleSet& set, int hole, long row) {
  if (FastLookups) {
    const TrinityCells* cells = Cells(set, hole);
    if (cells != nullptr && row >= 0 && row <= cells->lastRow) {
      const TrinityRow& at = cells->rows[hole][static_cast<std::size_t>(row)];
      if (at.pspKnown) return at.psp;
    }
  }
  return Val(std::as_const(set.ModelCell)(0, hole, 1, row));
}

Variant CompositeFromTrinity(BoreHoleSet& set, int hole, int section, Single psp) {
  if (FastLookups) {
    if (const TrinityCells* cells = Cells(set, hole)) {
      try {
        return Composite(set, hole, section, psp, ParsedCells{*cells, hole});
      } catch (const NotANumber&) {
      }
    }
  }
  return Composite(set, hole, section, psp, PlainCells{set, hole});
}

void GetPSP(BoreHoleSet& set, int hole, Single target) {
  MainForm& form = MainFormOf(set);
  // The extrapolation method is the master's, for both sets.
  const MainForm& method = *frmMain;
  if (form.Command1.Enabled) return;
  try {
    // The section: the first whose estimated bottom lies strictly below the target.
    TargetTopRow = 0;
    long found = 0;
    long lastTie = 0;
    for (long r = 1; r <= set.LastRow && found == 0; ++r) {
      const std::string& label = std::as_const(set.ModelCell)(0, hole, 0, r);
      if (IsSectionTop(label)) TargetTopRow = static_cast<int>(r);
      if (Val(std::as_const(set.ModelCell)(1, hole, 2, r)) != 9999 && Cd(set, r) != 9999)
        lastTie = r;
      if (IsSectionBottom(label)) {
        const double e = Val(std::as_const(set.ModelCell)(0, hole, 1, r)) -
                         Val(std::as_const(set.ModelCell)(0, hole, 1, lastTie));
        if (form.Option2(1).Value && CSng(Cd(set, lastTie) + e) > target) {
          found = r;
        } else if (form.Option2(0).Value &&
                   CSng(CDbl(std::as_const(set.ModelCell)(0, hole, 2, lastTie)) + e) > target) {
          found = r;
        }
      }
    }

    // The two ties that bracket the target.
    TieRowAbove = 0;
    TieRowBelow = 0;
    long r = TargetTopRow - 1;
    const bool composite = form.Option2(1).Value;
    const bool drilling = !composite && form.Option2(0).Value;
    if (composite || drilling) {
      for (;;) {
        ++r;
        const bool inReach = composite ? r <= found : r < found;
        if (std::as_const(set.ModelCell)(0, hole, 1, r) != "9999" && inReach &&
            std::as_const(set.TieCell)(1, r) != "9999") {
          TieRowAbove = TieRowBelow;
          TieRowBelow = static_cast<int>(r);
        }
        const bool good = std::as_const(set.TieCell)(1, r) != "9999" &&
                          std::as_const(set.ModelCell)(0, hole, 2, r) != "9999" &&
                          CSng(Cd(set, r)) > target;
        if (good && TieRowAbove > 0) break;
        if (composite && r >= found) break;
      }
    }

    long used = -1;
    if (set.DrivenBy != 8) used = FillDividerLists(set, hole);

    TargetDepth = form.BoreHole(hole).ScaleTop + static_cast<float>(ViewSpanOf(set)) / 2.0f;
    if (composite) {
      const int a = TieRowAbove;
      const int b = TieRowBelow;
      auto interpolation = [&] {
        return Psp(set, hole, a) +
               (TargetDepth - Cd(set, a)) *
                   Divide(Psp(set, hole, b) - Psp(set, hole, a), Cd(set, b) - Cd(set, a));
      };
      if (method.Option4(0).Value) {
        TargetPSP = CSng(interpolation());
      } else if (CSng(Cd(set, b)) < TargetDepth) {
        TargetPSP = CSng(Psp(set, hole, b) - (Cd(set, b) - TargetDepth));
      } else if (CSng(Cd(set, a)) > TargetDepth) {
        TargetPSP = CSng(Psp(set, hole, a) + (TargetDepth - Cd(set, a)));
      } else {
        TargetPSP = CSng(interpolation());
      }
    } else if (drilling) {
      // The drilling depth of the section's top is the origin of the PSP.
      TargetPSP = CSng(target - CDbl(std::as_const(set.ModelCell)(0, hole, 2, TargetTopRow)));
    }

    form.BoreHole(hole).ToolTipText = "Target depth: " + Str(TargetPSP) + " (cm)";
    for (long row = used + 1; used >= 0 && row <= 50; ++row) {
      for (int item = 0; item <= 2; ++item) SectionTieList(row, item) = std::string();
    }
    form.Label4.Caption = Str(TargetTopRow) + "/" + Str(TieRowAbove) + "/" + Str(TieRowBelow);
  } catch (const RuntimeFailure&) {
    // The caller tests TargetPSP, which keeps its last value.
  }
}

void InvTrinityToCD() {}

}  // namespace ostraline
