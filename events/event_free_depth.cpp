#include "events/event_free_depth.h"

#include "core/project_state.h"
#include "events/event_state.h"
#include "runtime/number_text.h"

namespace ostraline {

Variant CDToEFD(Single cd) {
  if (EventCount == 0) return Round(cd, DepthPrecision);
  EventTop(1, 0) = -9999;
  EventBottom(1, 0) = -9999;
  // The running thickness is held in single precision after each addition.
  Single thickness = 0;
  for (long i = 0;; ++i) {
    thickness = thickness + (EventBottom(1, i) - EventTop(1, i));
    if (i + 1 > MergedEventCount) break;
    if (EventBottom(1, i + 1) < cd) continue;
    // Every depth inside a layer maps to the EFD of its top; one exactly on
    // the top lies outside it, one exactly on the bottom inside.
    if (EventTop(1, i + 1) < cd) thickness = thickness + (cd - EventTop(1, i + 1));
    break;
  }
  return Round(static_cast<double>(cd) - static_cast<double>(thickness), DepthPrecision);
}

Variant EFDToCD(Single efd) {
  if (EventCount == 0) return Round(efd, DepthPrecision);
  // This direction measures the first stretch of sediment from depth 0.
  EventTop(1, 0) = 0;
  EventBottom(1, 0) = 0;
  if (efd == -9999 || efd == 9999) return efd;
  double freeAbove = 0;
  double thickness = 0;
  // Runs to the rows read, not to the merged count, and takes in layer i - 1
  // only at step i: without a merge the last layer never counts.
  for (long i = 1; i <= EventCount; ++i) {
    freeAbove += EventTop(1, i) - EventBottom(1, i - 1);
    thickness += EventBottom(1, i - 1) - EventTop(1, i - 1);
    if (static_cast<Single>(freeAbove) >= efd) break;
  }
  return Round(static_cast<double>(efd) + thickness, DepthPrecision);
}

}  // namespace ostraline
