#pragma once
// The event layers on the bore hole columns and the composite column.
#include <string>
#include "core/bore_hole_set.h"

namespace ostraline {

// Paints every event layer in view: ordinary layers first, tephras over them
// with their names, voids over both. Callers run it only with merged layers.
void DrawEvents(BoreHoleSet& set);
inline void DrawEvents() {
  DrawEvents(masterSet);
}

// Whether a description names a tephra ("tephra" or "Tephra" anywhere).
bool IsTephra(const std::string& text);
// Whether a description names a void ("void" or "Void" anywhere).
bool IsVoid(const std::string& text);
// The name beside the word tephra at either end of the description, trimmed;
// empty when the word stands elsewhere or alone.
std::string GetTephraName(const std::string& text);

}  // namespace ostraline
