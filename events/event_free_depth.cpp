#include "events/event_free_depth.h"

#include <algorithm>
#include <optional>

#include "core/project_state.h"
#include "events/event_state.h"
#include "runtime/failure.h"
#include "runtime/number_text.h"

namespace ostraline {

namespace {

// The running sums of the merged layers, summed anew when the layers change.
const LayerSums* Sums(BoreHoleSet& set) {
  const Table<Single, 2>& tops = set.EventTop;
  const Table<Single, 2>& bottoms = set.EventBottom;
  const long count = set.EventCount;
  const long merged = set.MergedEventCount;
  LayerSums& sums = set.Derived.layers;
  // As long as nothing at all is written to the layers, one comparison a table tells.
  if (FastLookups && sums.built && sums.topSeen == tops.Revision() &&
      sums.bottomSeen == bottoms.Revision() && sums.count == count && sums.merged == merged) {
    return &sums;
  }
  if (!FastLookups || !tops.Allocated() || !bottoms.Allocated() || count < 0 || merged < 0 ||
      tops.UBound(2) < std::max(count, merged) || bottoms.UBound(2) < std::max(count, merged)) {
    return nullptr;
  }
  sums.topSeen = tops.Revision();
  sums.bottomSeen = bottoms.Revision();
  if (sums.built && sums.topRevision == tops.Revision(1) &&
      sums.bottomRevision == bottoms.Revision(1) && sums.count == count && sums.merged == merged) {
    return &sums;
  }
  sums = LayerSums{};
  const auto rows = static_cast<std::size_t>(std::max(count, merged) + 1);
  sums.tops.resize(rows);
  sums.bottoms.resize(rows);
  for (long i = 1; i < static_cast<long>(rows); ++i) {
    sums.tops[i] = tops(1, i);
    sums.bottoms[i] = bottoms(1, i);
  }
  sums.thickness.assign(static_cast<std::size_t>(merged + 1), 0);
  sums.bottomsRise = true;
  for (long i = 1; i <= merged; ++i) {
    sums.thickness[i] = sums.thickness[i - 1] + (sums.bottoms[i] - sums.tops[i]);
    sums.bottomsRise = sums.bottomsRise && sums.bottoms[i] == sums.bottoms[i] &&
                       (i == 1 || sums.bottoms[i - 1] <= sums.bottoms[i]);
  }
  sums.freeAbove.assign(static_cast<std::size_t>(count + 1), 0);
  sums.thicknessBefore.assign(static_cast<std::size_t>(count + 1), 0);
  sums.freeRises = true;
  for (long i = 1; i <= count; ++i) {
    const Single bottomBefore = i == 1 ? 0.0f : sums.bottoms[i - 1];
    const Single topBefore = i == 1 ? 0.0f : sums.tops[i - 1];
    sums.freeAbove[i] = sums.freeAbove[i - 1] + (sums.tops[i] - bottomBefore);
    sums.thicknessBefore[i] = sums.thicknessBefore[i - 1] + (bottomBefore - topBefore);
    sums.freeRises = sums.freeRises && (i == 1 || static_cast<Single>(sums.freeAbove[i - 1]) <=
                                                      static_cast<Single>(sums.freeAbove[i]));
  }
  sums.topRevision = tops.Revision(1);
  sums.bottomRevision = bottoms.Revision(1);
  sums.count = count;
  sums.merged = merged;
  sums.topSeen = tops.Revision();
  sums.bottomSeen = bottoms.Revision();
  sums.built = true;
  return &sums;
}

// The thickness of the layers above cd, as the walk below sums it, when the
// merged layers' bottoms rise so that a search finds where the walk stops.
std::optional<Single> ThicknessAbove(BoreHoleSet& set, Single cd) {
  const LayerSums* sums = Sums(set);
  if (sums == nullptr || !sums->bottomsRise) return std::nullopt;
  const long merged = sums->merged;
  const auto first = sums->bottoms.begin() + 1;
  const long j = std::lower_bound(first, first + merged, cd) - sums->bottoms.begin();
  if (j > merged) return sums->thickness[merged];
  Single thickness = sums->thickness[j - 1];
  if (sums->tops[j] < cd) thickness = thickness + (cd - sums->tops[j]);
  return thickness;
}

// The thickness of the layers above an EFD, as the walk below sums it.
std::optional<double> ThicknessAboveEfd(BoreHoleSet& set, Single efd) {
  const LayerSums* sums = Sums(set);
  if (sums == nullptr) return std::nullopt;
  const long count = sums->count;
  const auto reaches = [&](long i) { return static_cast<Single>(sums->freeAbove[i]) >= efd; };
  long stop = count;
  if (sums->freeRises) {
    long low = 1;
    long high = count + 1;
    while (low < high) {
      const long middle = low + (high - low) / 2;
      if (reaches(middle)) {
        high = middle;
      } else {
        low = middle + 1;
      }
    }
    if (low <= count) stop = low;
  } else {
    for (long i = 1; i <= count; ++i) {
      if (reaches(i)) {
        stop = i;
        break;
      }
    }
  }
  return sums->thicknessBefore[stop];
}

Variant CDToEFDOfLayers(BoreHoleSet& set, Single cd) {
  if (set.EventCount == 0) return Round(cd, DepthPrecision);
  set.EventTop.SetUntracked(-9999, 1, 0);
  set.EventBottom.SetUntracked(-9999, 1, 0);
  if (const auto thickness = ThicknessAbove(set, cd)) {
    return Round(static_cast<double>(cd) - static_cast<double>(*thickness), DepthPrecision);
  }
  // The running thickness is held in single precision after each addition.
  Single thickness = 0;
  for (long i = 0;; ++i) {
    thickness = thickness + (set.EventBottom(1, i) - set.EventTop(1, i));
    if (i + 1 > set.MergedEventCount) break;
    if (set.EventBottom(1, i + 1) < cd) continue;
    // Every depth inside a layer maps to the EFD of its top; one exactly on
    // the top lies outside it, one exactly on the bottom inside.
    if (set.EventTop(1, i + 1) < cd) thickness = thickness + (cd - set.EventTop(1, i + 1));
    break;
  }
  return Round(static_cast<double>(cd) - static_cast<double>(thickness), DepthPrecision);
}

}  // namespace

Variant CDToEFD(BoreHoleSet& set, Single cd) {
  if (!set.IsDuo) return CDToEFDOfLayers(set, cd);
  // The Duo's has no EFD without its event list, and a failure returns the
  // result as it stands: empty, which reads as 0.
  if (!set.EventListLoaded) return Variant();
  try {
    return CDToEFDOfLayers(set, cd);
  } catch (const RuntimeFailure&) {
    return Variant();
  }
}

bool CDToEFDOnlyReads(BoreHoleSet& set) {
  if (set.IsDuo || DepthPrecision < 0 || DepthPrecision > 22) return false;
  if (set.EventCount == 0) return true;
  try {
    const LayerSums* sums = Sums(set);
    // The sentinel row is there to be written.
    return sums != nullptr && sums->bottomsRise && set.EventTop.LBound(2) <= 0 &&
           set.EventBottom.LBound(2) <= 0;
  } catch (const RuntimeFailure&) {
    // Layers that cannot be summed fail where CDToEFD meets them.
    return false;
  }
}

Variant EFDToCD(BoreHoleSet& set, Single efd) {
  if (set.EventCount == 0) return Round(efd, DepthPrecision);
  // This direction measures the first stretch of sediment from depth 0.
  set.EventTop.SetUntracked(0, 1, 0);
  set.EventBottom.SetUntracked(0, 1, 0);
  if (efd == -9999 || efd == 9999) return efd;
  if (const auto thickness = ThicknessAboveEfd(set, efd)) {
    return Round(static_cast<double>(efd) + *thickness, DepthPrecision);
  }
  double freeAbove = 0;
  double thickness = 0;
  // Runs to the rows read, not to the merged count, and takes in layer i - 1
  // only at step i: without a merge the last layer never counts.
  for (long i = 1; i <= set.EventCount; ++i) {
    freeAbove += set.EventTop(1, i) - set.EventBottom(1, i - 1);
    thickness += set.EventBottom(1, i - 1) - set.EventTop(1, i - 1);
    if (static_cast<Single>(freeAbove) >= efd) break;
  }
  return Round(static_cast<double>(efd) + thickness, DepthPrecision);
}

bool CompositeRisesWithEFD(const BoreHoleSet& set) {
  for (long i = 1; i < set.EventCount; ++i) {
    if (set.EventBottom(1, i) < set.EventTop(1, i)) return false;
  }
  return true;
}

}  // namespace ostraline
