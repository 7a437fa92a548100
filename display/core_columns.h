#pragma once
// The core view of the main form: the four bore hole columns, the composite
// column, the scale strip and the proxy panels, repainted as one picture.
#include "core/bore_hole_set.h"

namespace ostraline {

// Repaints the whole core view over the depth window that the columns show
// and commits it as their picture, so that an overlay is erased with Cls.
// Callers guard it with LastRow > 0.
void DrawLamina(BoreHoleSet& set);
inline void DrawLamina() {
  DrawLamina(masterSet);
}

}  // namespace ostraline
