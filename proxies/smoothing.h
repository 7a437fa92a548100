#pragma once
// Running means laid over a panel's curve, in red, on the record's own rows.
#include <limits>

#include "forms/canvas.h"
#include "proxies/proxy_records.h"

namespace ostraline {

// Each draws the overlay of its window for record p on its panel from the
// first row F of the drawing on; called by DrawProxy for a checked smoothing
// entry. From row `hidden` on every row lies so far below the view that
// nothing drawn for it shows; the overlay leaves out what lies wholly there.
void SmoothProxy3(const ProxyRecords& records, PictureBox& panel, int p, long F,
                  long hidden = std::numeric_limits<long>::max());
void SmoothProxy5(const ProxyRecords& records, PictureBox& panel, int p, long F,
                  long hidden = std::numeric_limits<long>::max());
void SmoothProxy11(const ProxyRecords& records, PictureBox& panel, int p, long F,
                   long hidden = std::numeric_limits<long>::max());
void SmoothProxy208(const ProxyRecords& records, PictureBox& panel, int p, long F,
                    long hidden = std::numeric_limits<long>::max());

}  // namespace ostraline
