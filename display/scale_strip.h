#pragma once
// The scale strip between the bore holes and the composite column: a depth
// scale or an age scale, chosen in its pop-up menu.
#include "core/bore_hole_set.h"

namespace ostraline {

// Paints the strip BoreHole(5) on its working layer, its scale a little
// taller than the columns' so that its marks stand level with theirs.
void DrawBH5(BoreHoleSet& set);
inline void DrawBH5() {
  DrawBH5(masterSet);
}

}  // namespace ostraline
