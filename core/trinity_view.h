#pragma once
// The view and the composite depth of the Holy trinity shown in a set's form.
#include "core/bore_hole_set.h"

namespace ostraline {

// Sets the view of the columns to the trinity in Combo1, Combo2/Combo5 and
// Text1, and redraws.
void SearchCoreTop(BoreHoleSet& set);
// The composite depth of the trinity, into Label1(8) and Text2; the master's
// then crosses to the Duo.
void GetCompositDepth(BoreHoleSet& set);
// The master's composite depth to the Duo's form, once per user entry.
void CrossToDuo(double depth);

}  // namespace ostraline
