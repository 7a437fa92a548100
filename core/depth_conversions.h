#pragma once
// From the Holy trinity to composite depth and back, from the tie points of
// the section concerned.
#include "runtime/checked_int.h"
#include "runtime/variant.h"

namespace ostraline {

// Composite depth as a Double, the Integer 9999 when it has none, or empty
// when the section gives no answer.
Variant CompositeFromTrinity(int hole, int section, Single psp);
// Finds section and PSP at a target in one bore hole: sets TargetPSP and the
// working rows, refills the divider's lists and Label4. Fails silently.
void GetPSP(int hole, Single target);
// Exists and does nothing.
void InvTrinityToCD();

}  // namespace ostraline
