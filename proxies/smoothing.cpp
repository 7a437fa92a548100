// The running means of a panel: one walk over the record's rows, whose window
// sizes and limits come from a table.
#include "proxies/smoothing.h"

#include <cmath>

#include "forms/frm_main.h"
#include "proxies/proxy_records.h"
#include "runtime/checked_int.h"

namespace ostraline {
namespace {

// Row offsets from i. Window 2 is window 1 moved down by one row; a segment
// joins the two means.
struct RunningMean {
  Single divisor;
  long guard;  // nothing is drawn for fewer rows; 0 for none
  long lowestFirst;
  long firstFrom, firstTo;
  long secondFrom, secondTo;
  long testedFrom, testedTo;
  long lastBeforeEnd;  // the loop ends when i reaches R minus this
  // The rows both windows hold are summed once, then each sum takes its
  // window's own outer row.
  bool sharedSum;
};

// The guards of 11 and 208 stop one row short of the rows they read, and 3
// and 5 have none: a short record fails on the rows past its end.
constexpr RunningMean kMean3{3, 0, 2, -1, 1, 0, 2, -1, 2, 2, false};
constexpr RunningMean kMean5{5, 0, 3, -2, 2, -1, 3, -2, 3, 3, false};
constexpr RunningMean kMean11{11, 11, 6, -5, 5, -4, 6, -5, 6, 6, true};
constexpr RunningMean kMean208{208, 208, 105, -104, 103, -103, 104, -104, 104, 104, true};

constexpr long kNoValue = 9999;
constexpr long kRed = 255;

Single Plotted(long row) {
  return ProxyPlot(0, row);
}

Single Depth(int p, long row) {
  return ProxyDepth(p)(PlotScale, row);
}

// Reads every tested row, so that a window past the table's end fails even
// where an earlier row has no value.
bool WindowsUsable(const RunningMean& mean, int p, long i) {
  bool usable = true;
  for (long k = i + mean.testedFrom; k <= i + mean.testedTo; ++k) {
    if (std::fabs(Plotted(k)) == kNoValue) usable = false;
  }
  for (long k = i + mean.testedFrom; k < i + mean.testedTo; ++k) {
    if (Depth(p, k) > Depth(p, k + 1)) usable = false;
  }
  return usable;
}

struct Point {
  Single x;
  Single y;
};

// Single precision throughout, in the order of the rows: the last bits of a
// mean depend on it.
void Means(const RunningMean& mean, int p, long i, Point& first, Point& second) {
  Single x1 = 0;
  Single y1 = 0;
  Single x2 = 0;
  Single y2 = 0;
  if (mean.sharedSum) {
    Single x = 0;
    Single y = 0;
    for (long k = i + mean.secondFrom; k <= i + mean.firstTo; ++k) {
      x += Plotted(k);
      y += Depth(p, k);
    }
    x1 = x + Plotted(i + mean.firstFrom);
    y1 = y + Depth(p, i + mean.firstFrom);
    x2 = x + Plotted(i + mean.secondTo);
    y2 = y + Depth(p, i + mean.secondTo);
  } else {
    for (long k = i + mean.firstFrom; k <= i + mean.firstTo; ++k) {
      x1 += Plotted(k);
      y1 += Depth(p, k);
    }
    for (long k = i + mean.secondFrom; k <= i + mean.secondTo; ++k) {
      x2 += Plotted(k);
      y2 += Depth(p, k);
    }
  }
  first = {x1 / mean.divisor, y1 / mean.divisor};
  second = {x2 / mean.divisor, y2 / mean.divisor};
}

// A failure inside the walk leaves DrawWidth as it is and travels on to the
// drawing's handler. Only the first pass can fail, the later ones reading no
// row past R-1, so it runs whatever `hidden` is; a later pass whose tested
// rows all lie from `hidden` on has both means below the view and is left out.
void DrawRunningMean(const RunningMean& mean, int p, long F, long hidden) {
  PictureBox& panel = frmMain->Picture1(p);
  const long rowCount = ProxyRowCount(p);
  if (rowCount >= mean.guard) {
    Long i = F < mean.lowestFirst ? mean.lowestFirst : F;
    panel.DrawWidth = CInt(1.5);
    const long last = rowCount - mean.lastBeforeEnd;
    do {
      if (WindowsUsable(mean, p, i)) {
        Point first;
        Point second;
        Means(mean, p, i, first, second);
        panel.Line(first.x, first.y, second.x, second.y, kRed);
      }
      ++i;
    } while (i < last && i + mean.testedFrom < hidden);
  }
  panel.DrawWidth = 1;
}

}  // namespace

void SmoothProxy3(int p, long F, long hidden) {
  DrawRunningMean(kMean3, p, F, hidden);
}

void SmoothProxy5(int p, long F, long hidden) {
  DrawRunningMean(kMean5, p, F, hidden);
}

void SmoothProxy11(int p, long F, long hidden) {
  DrawRunningMean(kMean11, p, F, hidden);
}

void SmoothProxy208(int p, long F, long hidden) {
  DrawRunningMean(kMean208, p, F, hidden);
}

}  // namespace ostraline
