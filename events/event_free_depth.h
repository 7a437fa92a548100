#pragma once
// Composite depth to event free depth and back: the merged event layers cut
// out of the scale. No other code subtracts thickness.
#include "core/bore_hole_set.h"
#include "runtime/checked_int.h"
#include "runtime/variant.h"

namespace ostraline {

// Both round every result to DepthPrecision, half to even. The two
// directions are not inverse where the list has had no merge: the last
// layer's thickness never enters EFDToCD then.
Variant CDToEFD(BoreHoleSet& set, Single cd);
inline Variant CDToEFD(Single cd) {
  return CDToEFD(masterSet, cd);
}
Variant EFDToCD(BoreHoleSet& set, Single efd);
inline Variant EFDToCD(Single efd) {
  return EFDToCD(masterSet, efd);
}

// Whether CDToEFD of this set, whatever the depth, cannot fail and writes
// nothing but the sentinel row of the layers: it then reads only sums made
// once, made here if need be, and may run beside code that leaves the
// layers alone.
bool CDToEFDOnlyReads(BoreHoleSet& set);

// Whether EFDToCD never falls as the EFD rises, away from the two sentinels:
// no layer it counts ends above its top.
bool CompositeRisesWithEFD(const BoreHoleSet& set);

}  // namespace ostraline
