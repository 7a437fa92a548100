#pragma once
// The depth span the columns show and the layout of the main form's panels.
#include "runtime/checked_int.h"

namespace ostraline {

// Source 1 is the main form asking, 2 the Duo; Span is a mnuCM index, 9999
// for the whole core.
void SetViewSpan(Integer Source, Integer Span);

}  // namespace ostraline
