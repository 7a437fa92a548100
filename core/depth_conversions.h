#pragma once
// From the Holy trinity to composite depth and back, from the tie points of
// the section concerned.
#include "core/bore_hole_set.h"
#include "runtime/checked_int.h"
#include "runtime/variant.h"

namespace ostraline {

// Val of a bore hole's PSP cell on Scale 0, from the numbers the lookups
// parse once wherever the cell reads as one.
double ModelPspValue(BoreHoleSet& set, int hole, long row);

// Composite depth as a Double, the Integer 9999 when it has none, or empty
// when the section gives no answer.
Variant CompositeFromTrinity(BoreHoleSet& set, int hole, int section, Single psp);
inline Variant CompositeFromTrinity(int hole, int section, Single psp) {
  return CompositeFromTrinity(masterSet, hole, section, psp);
}
// Finds section and PSP at a target in one bore hole: sets TargetPSP and the
// working rows, refills the divider's lists and Label4. Fails silently.
void GetPSP(BoreHoleSet& set, int hole, Single target);
inline void GetPSP(int hole, Single target) {
  GetPSP(masterSet, hole, target);
}
// Exists and does nothing.
void InvTrinityToCD();

}  // namespace ostraline
