#pragma once
// Running means laid over a panel's curve, in red, on the record's own rows.
#include <limits>

namespace ostraline {

// Each draws the overlay of its window on Picture1(p) from the first row F
// of the drawing on; called by DrawProxy for a checked smoothing entry.
// From row `hidden` on every row lies so far below the view that nothing
// drawn for it shows; the overlay leaves out what lies wholly there.
void SmoothProxy3(int p, long F, long hidden = std::numeric_limits<long>::max());
void SmoothProxy5(int p, long F, long hidden = std::numeric_limits<long>::max());
void SmoothProxy11(int p, long F, long hidden = std::numeric_limits<long>::max());
void SmoothProxy208(int p, long F, long hidden = std::numeric_limits<long>::max());

}  // namespace ostraline
