// The varve record: composite depths of markers with a running count of
// annual laminae, the last file of the import chain.
#include "events/varve_counts.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "core/import_pattern.h"
#include "core/project_state.h"
#include "display/core_columns.h"
#include "duo/duo_state.h"
#include "events/copy_to_duo.h"
#include "events/event_free_depth.h"
#include "events/event_state.h"
#include "forms/frm_main.h"
#include "forms/frm_version.h"
#include "forms/platform.h"
#include "runtime/field_reader.h"
#include "runtime/file_names.h"

namespace ostraline {
namespace {

// Row 0 stays zero, so the first marker's count is measured from 0.
void ReadVarveRows(BoreHoleSet& set, MainForm& form, FieldReader& file) {
  set.VarveCounts.Dim({{0, 1}, {0, 0}});
  Long rows = 0;
  while (!file.Eof()) {
    form.ProgressBar1.Value = static_cast<float>(std::min<long>(rows, 2000));
    ++rows;
    set.VarveCounts.ReDimPreserve(rows);
    set.VarveCounts(0, rows) = file.ReadSingle();
    set.VarveCounts(1, rows) = file.ReadSingle();
  }
  set.VarveCountRows = rows;
}

// A record of a header only has no first marker: reading it fails the import.
void SetVarveLimits(BoreHoleSet& set) {
  set.VarveTopCD = set.VarveCounts(0, 1);
  set.VarveBottomCD = set.VarveCounts(0, set.VarveCountRows);
  set.VarveTopEFD = CDToEFD(set, set.VarveTopCD).ToSingle();
  set.VarveBottomEFD = CDToEFD(set, set.VarveBottomCD).ToSingle();
  set.VarveCountsLoaded = true;
}

}  // namespace

namespace {

// Depths whose searches are kept: more than an age-depth model has points.
constexpr std::size_t kSearchedDepths = 1024;

// What the searches know of the record, read anew when it has changed.
const MarkerOrder& Order(BoreHoleSet& set) {
  const Table<Single, 2>& counts = set.VarveCounts;
  MarkerOrder& order = set.Derived.varveMarkers;
  // As long as nothing at all is written to the record, one comparison tells.
  if (order.built && order.tableSeen == counts.Revision()) return order;
  if (order.built && order.markerRevision == counts.Revision(0) &&
      order.countRevision == counts.Revision(1)) {
    order.tableSeen = counts.Revision();
    return order;
  }
  const long last = counts.UBound(2);
  order.markers.resize(static_cast<std::size_t>(last + 1));
  for (long i = 0; i <= last; ++i) order.markers[static_cast<std::size_t>(i)] = counts(0, i);
  order.rising = true;
  for (long i = 2; i <= last && order.rising; ++i) {
    order.rising = order.markers[static_cast<std::size_t>(i - 1)] <= order.markers[static_cast<std::size_t>(i)];
  }
  // Whole counts within 2^22 give intervals a Single holds exactly; their
  // magnitudes summed below 2^24, every partial sum is exact as well.
  constexpr double kExactCount = 1 << 22;
  constexpr double kExactSum = 1 << 24;
  order.wholeCounts = true;
  order.counted.assign(static_cast<std::size_t>(last + 1), 0);
  double magnitudes = 0;
  Single previous = 0;
  for (long i = 0; i <= last && order.wholeCounts; ++i) {
    const Single count = counts(1, i);
    order.wholeCounts = std::trunc(count) == count && std::fabs(count) <= kExactCount;
    if (i > 0) {
      const double interval = count - previous;
      magnitudes += std::fabs(interval);
      order.wholeCounts = order.wholeCounts && magnitudes < kExactSum;
      order.counted[static_cast<std::size_t>(i)] =
          order.counted[static_cast<std::size_t>(i - 1)] + interval;
    }
    previous = count;
  }
  order.searched.assign(kSearchedDepths, {});
  order.markerRevision = counts.Revision(0);
  order.countRevision = counts.Revision(1);
  order.tableSeen = counts.Revision();
  order.built = true;
  return order;
}

// What the searches know of the record, when its markers from row 1 on never
// fall and end below `beyond`: then a search finds where a walk from the
// first marker would begin to count, and where it would stop.
const MarkerOrder* MarkersRisingBeyond(BoreHoleSet& set, Single beyond) {
  const Table<Single, 2>& counts = set.VarveCounts;
  if (!FastLookups || !counts.Allocated() || counts.UBound(2) < 1) return nullptr;
  const MarkerOrder& order = Order(set);
  return order.rising && beyond < order.markers.back() ? &order : nullptr;
}

// The first row from `from` on whose marker lies at or beyond `depth` (or
// beyond it, when `beyond`), in a rising record; `end` if none before it.
long FirstMarkerFrom(const std::vector<Single>& markers, long from, long end, Single depth,
                     bool beyond) {
  while (from < end) {
    const long middle = from + (end - from) / 2;
    const Single marker = markers[static_cast<std::size_t>(middle)];
    if (beyond ? marker > depth : marker >= depth) {
      end = middle;
    } else {
      from = middle + 1;
    }
  }
  return from;
}

// The searches for a depth in a rising record, made once for each depth kept.
const MarkerOrder::SearchedDepth& Searched(const MarkerOrder& order, Single depth) {
  std::uint32_t bits = 0;
  std::memcpy(&bits, &depth, sizeof bits);
  MarkerOrder::SearchedDepth& kept =
      order.searched[(bits * 0x9E3779B1u >> 16) % order.searched.size()];
  if (!kept.known || kept.bits != bits) {
    const auto rows = static_cast<long>(order.markers.size());
    kept = {bits, true, FirstMarkerFrom(order.markers, 1, rows, depth, true),
            FirstMarkerFrom(order.markers, 1, rows, depth, false)};
  }
  return kept;
}

// The intervals of rows from..end-1 summed as the walk sums them, one by
// one from zero; at once where every partial sum is exact.
Single IntervalsOf(const BoreHoleSet& set, const MarkerOrder& order, long from, long end) {
  Single sum = 0;
  if (from >= end) return sum;
  if (order.wholeCounts) {
    return static_cast<Single>(order.counted[static_cast<std::size_t>(end - 1)] -
                               order.counted[static_cast<std::size_t>(from - 1)]);
  }
  const Table<Single, 2>& counts = set.VarveCounts;
  for (long i = from; i < end; ++i) sum += counts(1, i) - counts(1, i - 1);
  return sum;
}

}  // namespace

VarveSums VarveSumsAt(BoreHoleSet& set, Single depth, Single lowerDepth, Single upperDepth) {
  const Table<Single, 2>& counts = set.VarveCounts;
  VarveSums sums;
  long first = 1;
  // The walk adds nothing until a marker passes both the lower point and the
  // depth, nor after the first beyond the upper point.
  const Single start = std::min(lowerDepth, depth);
  const MarkerOrder* order = start == start && depth == depth && lowerDepth == lowerDepth &&
                                     upperDepth == upperDepth
                                 ? MarkersRisingBeyond(set, upperDepth)
                                 : nullptr;
  if (order != nullptr) {
    const std::vector<Single>& markers = order->markers;
    first = Searched(*order, start).beyond;
    // The walk's rows run to the first marker beyond the upper point, which
    // lies before the last. Where the walk stops before it passes the start
    // (the upper point lies above it), neither side has a marker to count.
    const MarkerOrder::SearchedDepth upper = Searched(*order, upperDepth);
    if (upper.beyond < first) return sums;
    // In a rising record the rows of each side lie together.
    const long end = upper.beyond + 1;
    // The walk began beyond the lower of the lower point and the depth: with
    // the lower point above the depth its side begins there, else it is empty
    // and the other side begins there.
    long belowEnd = first;
    long aboveFrom = first;
    if (lowerDepth < depth) {
      belowEnd = FirstMarkerFrom(markers, first, end, depth, false);
      aboveFrom = belowEnd;
      while (aboveFrom < end && !(markers[static_cast<std::size_t>(aboveFrom)] > depth)) ++aboveFrom;
    }
    const long aboveEnd = std::clamp(upper.atOrBeyond, aboveFrom, end);
    sums.below = IntervalsOf(set, *order, first, belowEnd);
    sums.above = IntervalsOf(set, *order, aboveFrom, aboveEnd);
    return sums;
  }
  for (long i = first;; ++i) {
    const Single interval = counts(1, i) - counts(1, i - 1);
    const Single marker = counts(0, i);
    if (lowerDepth < marker && marker < depth) {
      sums.below += interval;
    } else if (depth < marker && marker < upperDepth) {
      sums.above += interval;
    }
    if (upperDepth < marker) break;
  }
  return sums;
}

Single VarveOffset(BoreHoleSet& set, Single lowerDepth, Single upperDepth, Single before,
                   Single after) {
  const Table<Single, 2>& counts = set.VarveCounts;
  long i = 1;
  // A marker at or below each point ends each search.
  if (const MarkerOrder* order =
          lowerDepth <= upperDepth ? MarkersRisingBeyond(set, upperDepth) : nullptr) {
    i = Searched(*order, lowerDepth).atOrBeyond;
  }
  while (!(lowerDepth <= counts(0, i))) ++i;
  const long anchor = i - 1;
  i = anchor + 1;
  while (!(upperDepth <= counts(0, i))) ++i;
  const long end = i - 1;
  Single target = 0;
  if (static_cast<Single>(before + after) != 0) {
    target = (counts(1, end) - counts(1, anchor)) * before / (before + after);
  }
  Single count = 0;
  for (i = anchor + 1;; ++i) {
    count += counts(1, i) - counts(1, i - 1);
    if (count >= target) break;
  }
  return counts(0, i - 1) - counts(0, anchor);
}

bool ImportVarveCounts(BoreHoleSet& set, MainForm& form, FrmVersion& versions) {
  bool fileOpen = false;
  try {
    FieldReader file = OpenDataFile(form, fileOpen);
    Screen.SetMousePointer(11);
    form.ProgressBar1.Max = 2000;
    form.ProgressBar1.Value = 0;
    form.ProgressBar1.Visible = true;
    file.ReadText();
    file.ReadText();
    set.VarveVersion = VersionDate(form.CommonDialog1.FileName);
    versions.Label2(5).Caption = set.VarveVersion;
    ReadVarveRows(set, form, file);
    SetVarveLimits(set);
    return true;
  } catch (const RuntimeFailure&) {
    ResetProgress(form);
    if (fileOpen) ShowFormatError();
    return false;
  }
}

void FrmMain::Command5_Click() {
  if (!ImportVarveCounts(masterSet, *this, *frmVersion)) return;
  try {
    DrawLamina();
    DisplayAge();
    // The Duo's copy of the ages is made anew with the varves.
    AgeModelLoaded2 = false;
    CopyAgeModelToDuo();
    Command5.Enabled = false;
    if (Text2.Enabled) Text2.SetFocus();
    ResetProgress(*this);
  } catch (const RuntimeFailure&) {
    ResetProgress(*this);
    ShowFormatError();
  }
}

}  // namespace ostraline
