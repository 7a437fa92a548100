// The list of event layers: its import, the composite depth of each row, the
// sort on the top and the fusion of what overlaps, and the EFD shown for the
// composite depth of the target.
#include "events/event_list.h"

#include <initializer_list>
#include <utility>
#include <vector>

#include "core/depth_conversions.h"
#include "core/hole_lookup.h"
#include "core/import_pattern.h"
#include "core/project_state.h"
#include "display/core_columns.h"
#include "events/event_free_depth.h"
#include "events/event_state.h"
#include "forms/frm_main.h"
#include "forms/frm_version.h"
#include "forms/platform.h"
#include "runtime/field_reader.h"
#include "runtime/file_names.h"
#include "runtime/number_text.h"

namespace ostraline {

// Five text fields a record, the header kept in row 0 unread. The table grows
// by one row after each record, so the counter ends one past the last row.
void ReadEventList(BoreHoleSet& set, FieldReader& file) {
  set.EventList.Dim({{0, 9}, {0, 1}});
  long rows = 0;
  while (!file.Eof()) {
    for (int column = 1; column <= 5; ++column) set.EventList(column, rows) = file.ReadText();
    ++rows;
    set.EventList.ReDimPreserve(rows);
  }
  const long count = rows - 1;
  // A file without even a header would cut the table to no row at all, which
  // the language refuses as a bad subscript.
  if (count < 0) Fail(FailureKind::SubscriptOutOfRange, "event list without a header");
  set.EventCount = count;
  set.EventList.ReDimPreserve(count);
}

void DimensionLayerTables(BoreHoleSet& set) {
  const long count = set.EventCount;
  // The Duo keeps no EFD of its layers.
  const long lastScale = set.IsDuo ? 1 : 3;
  set.EventOrder.Dim({{0, count}});
  set.EventTop.Dim({{0, lastScale}, {0, count}});
  set.EventBottom.Dim({{0, lastScale}, {0, count}});
}

void SetEfdControlsEnabled(MainForm& form, bool enabled) {
  for (Control* control : std::initializer_list<Control*>{&form.Label1(9), &form.Label1(10),
                                                          &form.Label3, &form.Text3}) {
    control->Enabled = enabled;
  }
}

namespace {

// The EFD kept beside the composite depth in the correlation tables.
void StoreModelEfd(BoreHoleSet& set) {
  for (long r = 0; r <= set.LastRow; ++r) {
    for (int hole = 1; hole <= 4; ++hole) {
      set.ModelCell(2, hole, 2, r) = CDToEFD(set, CSng(Val(set.ModelCell(1, hole, 2, r)))).ToText();
    }
  }
  for (long r = 0; r <= set.LastRow; ++r)
    set.TieCell(2, r) = CDToEFD(set, CSng(Val(set.TieCell(1, r)))).ToText();
}

// The composite depth of one end of a row, kept to four decimals whatever the
// depth precision of the display, the Duo's to that precision. Unknown
// sections give 9999.
Single EventDepth(BoreHoleSet& set, long row, int positionColumn) {
  const int hole = static_cast<int>(GetBH(set, set.EventList(1, row)).ToDouble());
  const int section = SectionOrdinalByName(set, hole, set.EventList(2, row));
  const Variant depth =
      CompositeFromTrinity(set, hole, section, CSng(Val(set.EventList(positionColumn, row))));
  return CSng(Round(depth.ToDouble(), set.IsDuo ? static_cast<int>(DepthPrecision) : 4));
}

// Selection sort on the composite top. Among equal tops the first row wins,
// and a top at or above the starting minimum is never chosen, so the row of
// the last choice stays in force for that step.
void SelectionSort(BoreHoleSet& set, ProgressBar& progress) {
  long chosen = 0;
  for (long k = 1; k <= set.EventCount; ++k) {
    progress.Value = static_cast<float>(k);
    Single minimum = 999999;
    for (long m = k; m <= set.EventCount; ++m) {
      if (set.EventTop(1, m) < minimum) {
        minimum = set.EventTop(1, m);
        chosen = m;
      }
    }
    std::swap(set.EventTop(1, k), set.EventTop(1, chosen));
    std::swap(set.EventBottom(1, k), set.EventBottom(1, chosen));
    set.EventOrder(k) = chosen;
  }
}

// The same choices, each found in a tree of the rows' smallest tops instead
// of a scan: the leftmost of the smallest tops below the starting minimum.
class SmallestTops {
 public:
  explicit SmallestTops(const std::vector<Single>& tops) : size_(1) {
    while (size_ < tops.size()) size_ *= 2;
    tree_.assign(2 * size_, kNone);
    for (std::size_t i = 0; i < tops.size(); ++i) Set(i, tops[i]);
  }
  // A top that the scan would never choose is no candidate.
  void Set(std::size_t i, Single top) {
    std::size_t node = size_ + i;
    tree_[node] = top < kStartingMinimum ? Entry{top, i} : kNone;
    for (node /= 2; node >= 1; node /= 2)
      tree_[node] = Better(tree_[2 * node], tree_[2 * node + 1]);
  }
  void Remove(std::size_t i) {
    std::size_t node = size_ + i;
    tree_[node] = kNone;
    for (node /= 2; node >= 1; node /= 2)
      tree_[node] = Better(tree_[2 * node], tree_[2 * node + 1]);
  }
  // The row of the leftmost smallest top left, if any.
  bool Smallest(std::size_t& row) const {
    if (tree_[1].row == kNoRow) return false;
    row = tree_[1].row;
    return true;
  }

 private:
  static constexpr Single kStartingMinimum = 999999;
  static constexpr std::size_t kNoRow = static_cast<std::size_t>(-1);
  struct Entry {
    Single top;
    std::size_t row;
  };
  static constexpr Entry kNone{0, kNoRow};
  static Entry Better(const Entry& a, const Entry& b) {
    if (a.row == kNoRow) return b;
    if (b.row == kNoRow) return a;
    if (b.top < a.top) return b;
    if (a.top < b.top) return a;
    return a.row < b.row ? a : b;
  }
  std::size_t size_;
  std::vector<Entry> tree_;
};

void TreeSort(BoreHoleSet& set, ProgressBar& progress) {
  const long count = set.EventCount;
  std::vector<Single> tops(static_cast<std::size_t>(count + 1));
  for (long m = 1; m <= count; ++m) tops[m] = set.EventTop(1, m);
  SmallestTops tree(tops);
  tree.Remove(0);
  long chosen = 0;
  for (long k = 1; k <= count; ++k) {
    progress.Value = static_cast<float>(k);
    std::size_t row = 0;
    if (tree.Smallest(row)) chosen = static_cast<long>(row);
    std::swap(set.EventTop(1, k), set.EventTop(1, chosen));
    std::swap(set.EventBottom(1, k), set.EventBottom(1, chosen));
    set.EventOrder(k) = chosen;
    // Row k leaves the scan; a row below it that was swapped with it takes
    // its top. A choice left over from an earlier step may lie above.
    std::swap(tops[k], tops[chosen]);
    if (chosen > k) tree.Set(static_cast<std::size_t>(chosen), tops[chosen]);
    tree.Remove(static_cast<std::size_t>(k));
  }
}

void SortLayersByTop(BoreHoleSet& set, ProgressBar& progress) {
  // The tree needs the rows it is built from; a list that fails on its rows
  // fails in the scan as it did.
  if (FastLookups && set.EventTop.Allocated() && set.EventTop.UBound(2) >= set.EventCount &&
      set.EventBottom.Allocated() && set.EventBottom.UBound(2) >= set.EventCount &&
      set.EventOrder.Allocated() && set.EventOrder.UBound() >= set.EventCount) {
    TreeSort(set, progress);
  } else {
    SelectionSort(set, progress);
  }
}

void MergeByShifting(BoreHoleSet& set) {
  long i = 0;
  do {
    if (set.EventBottom(1, i + 1) <= set.EventTop(1, i + 2)) {
      ++i;
    } else {
      if (set.EventBottom(1, i + 1) < set.EventBottom(1, i + 2))
        set.EventBottom(1, i + 1) = set.EventBottom(1, i + 2);
      for (long r = i + 3; r <= set.EventCount; ++r) {
        set.EventTop(1, r - 1) = set.EventTop(1, r);
        set.EventBottom(1, r - 1) = set.EventBottom(1, r);
        set.EventOrder(r - 1) = set.EventOrder(r);
      }
      set.EventTop(1, set.EventCount) = -9999;
      set.EventBottom(1, set.EventCount) = -9999;
      set.EventOrder(set.EventCount) = -9999;
      --set.MergedEventCount;
    }
  } while (i < set.MergedEventCount - 1);
}

// The same merge on a chain of the rows: a fused row leaves the chain instead
// of the rows below it moving up one by one, and the chain is written back
// with the freed rows at the end.
void MergeByChain(BoreHoleSet& set) {
  const long count = set.EventCount;
  std::vector<Single> tops(static_cast<std::size_t>(count + 1));
  std::vector<Single> bottoms(tops.size());
  std::vector<long> next(tops.size() + 1);
  for (long r = 0; r <= count; ++r) {
    tops[r] = std::as_const(set.EventTop)(1, r);
    bottoms[r] = std::as_const(set.EventBottom)(1, r);
    next[r] = r + 1;
  }
  long merged = set.MergedEventCount;
  long i = 0;
  long at = 0;  // the row at place i
  do {
    const long upper = next[at];
    const long lower = next[upper];
    if (bottoms[upper] <= tops[lower]) {
      at = upper;
      ++i;
    } else {
      if (bottoms[upper] < bottoms[lower]) bottoms[upper] = bottoms[lower];
      next[upper] = next[lower];
      --merged;
    }
  } while (i < merged - 1);
  std::vector<Integer> order(tops.size());
  for (long r = 1; r <= count; ++r) order[r] = std::as_const(set.EventOrder)(r);
  long row = next[0];
  for (long place = 1; place <= count; ++place) {
    const bool kept = place <= merged;
    set.EventTop(1, place) = kept ? tops[row] : -9999;
    set.EventBottom(1, place) = kept ? bottoms[row] : -9999;
    set.EventOrder(place) = kept ? order[row] : Integer(-9999);
    if (kept) row = next[row];
  }
  set.MergedEventCount = merged;
}

// Layers that overlap become their union. The fused layer keeps its place to
// meet its new neighbour, so a chain of overlaps collapses into one; the rows
// freed at the end hold -9999. Layers that merely touch stay apart.
void MergeOverlappingLayers(BoreHoleSet& set) {
  // With fewer than two rows in the tables the first comparison fails on
  // their bound, as the shifting merge shows.
  const long count = set.EventCount;
  if (FastLookups && count >= 2 && set.MergedEventCount == count &&
      set.EventTop.UBound(2) >= count && set.EventBottom.UBound(2) >= count &&
      set.EventOrder.UBound() >= count) {
    MergeByChain(set);
  } else {
    MergeByShifting(set);
  }
}

}  // namespace

void ImportEventList(BoreHoleSet& set, MainForm& form, FrmVersion& versions,
                     const EventImportSteps& steps) {
  bool fileOpen = false;
  try {
    FieldReader file = OpenDataFile(form, fileOpen);
    if (steps.fileOpened) steps.fileOpened();
    set.EventListVersion = VersionDate(form.CommonDialog1.FileName);
    versions.Label2(3).Caption = set.EventListVersion;
    ReadEventList(set, file);
    DimensionLayerTables(set);

    form.Command3.Enabled = false;
    // The overlap options are opened and never read: the merge always forms the union.
    for (Control* control :
         std::initializer_list<Control*>{&form.Label5, &form.Option3(0), &form.Option3(1)}) {
      control->Enabled = true;
    }
    for (Control* control : steps.opened) control->Enabled = true;
    set.EventListLoaded = true;
    CombineAndSortEvents(set, form);
    steps.placeModel();
    form.Refresh();

    if (form.Option1(0).Value) {
      SetEfdControlsEnabled(form, true);
    } else if (form.Option1(2).Value) {
      SetEfdControlsEnabled(form, false);
    }
    form.Command4.Enabled = true;
    form.Command4.SetFocus();
    if (steps.finish) steps.finish();
  } catch (const RuntimeFailure&) {
    ResetProgress(form);
    if (fileOpen) ShowFormatError();
    form.Command3.Enabled = true;
    // EventListLoaded stays: a failure in the merge leaves it set, and the
    // conversions then act as if no layer existed.
    set.EventCount = -9999;
    set.MergedEventCount = -9999;
  }
}

void FrmMain::Command3_Click() {
  EventImportSteps steps;
  steps.opened = {&mnuOLDuo, &mnuAlign};
  steps.placeModel = [] {
    StoreModelEfd(masterSet);
    for (long i = 1; i <= MergedEventCount; ++i) {
      EventTop(2, i) = CDToEFD(std::as_const(EventTop)(1, i)).ToSingle();
      EventBottom(2, i) = CDToEFD(std::as_const(EventBottom)(1, i)).ToSingle();
    }
    DrawLamina();
  };
  ImportEventList(masterSet, *this, *frmVersion, steps);
}

void CombineAndSortEvents(BoreHoleSet& set, MainForm& form) {
  if (!set.EventListLoaded) {
    ResetProgress(form);
    return;
  }
  set.MergedEventCount = set.EventCount;
  for (long i = 1; i <= set.EventCount; ++i) {
    set.EventTop(1, i) = EventDepth(set, i, 3);
    set.EventBottom(1, i) = EventDepth(set, i, 4);
    set.EventList(6, i) = Str(set.EventTop(1, i));
    set.EventList(7, i) = Str(set.EventBottom(1, i));
  }
  if (set.EventCount == 0) {
    form.Text3.Text = form.Text2.Text.Get();
    return;
  }
  form.ProgressBar1.Max = static_cast<float>(set.EventCount);
  form.ProgressBar1.Value = 0;
  form.ProgressBar1.Visible = true;
  Screen.SetMousePointer(11);

  SortLayersByTop(set, form.ProgressBar1);
  // A single row has no neighbour to meet: the merge fails on the table's bound.
  MergeOverlappingLayers(set);

  const std::string shown = CDToEFD(set, CSng(Val(form.Label1(8).Caption))).ToText();
  form.Label1(10).Caption = shown;
  form.Text3.Text = shown;
  for (long i = 1; i <= set.EventCount; ++i) {
    set.EventList(8, i) = CDToEFD(set, CSng(Val(set.EventList(6, i)))).ToText();
  }
  for (long i = 1; i <= set.MergedEventCount && !set.IsDuo; ++i) {
    const Single top = std::as_const(set.EventTop)(1, i);
    const Single bottom = std::as_const(set.EventBottom)(1, i);
    set.EventTop(2, i) = CDToEFD(set, CSng(Val(Str(top)))).ToSingle();
    set.EventBottom(2, i) = CDToEFD(set, CSng(Val(Str(bottom)))).ToSingle();
  }
  ResetProgress(form);
}

void FrmMain::CombineAndSortEvents() {
  ostraline::CombineAndSortEvents(SetOf(*this), *this);
}

// The road from composite depth to EFD: each write of Label1(8) refreshes the
// EFD box in full digits, and only this write makes Text3 follow Text2.
void FrmMain::Label1_Change(int index) {
  BoreHoleSet& set = SetOf(*this);
  if (index != 8 || !set.EventListLoaded) return;
  const Single efd = CDToEFD(set, CSng(Val(Label1(8).Caption))).ToSingle();
  Label1(10).Caption = Str(efd);
  Text3.Text = Str(efd);
}

}  // namespace ostraline
