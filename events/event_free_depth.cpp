#include "events/event_free_depth.h"

#include "core/project_state.h"
#include "events/event_state.h"
#include "runtime/failure.h"
#include "runtime/number_text.h"

namespace ostraline {

namespace {

Variant CDToEFDOfLayers(BoreHoleSet& set, Single cd) {
  if (set.EventCount == 0) return Round(cd, DepthPrecision);
  set.EventTop(1, 0) = -9999;
  set.EventBottom(1, 0) = -9999;
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

Variant EFDToCD(BoreHoleSet& set, Single efd) {
  if (set.EventCount == 0) return Round(efd, DepthPrecision);
  // This direction measures the first stretch of sediment from depth 0.
  set.EventTop(1, 0) = 0;
  set.EventBottom(1, 0) = 0;
  if (efd == -9999 || efd == 9999) return efd;
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
