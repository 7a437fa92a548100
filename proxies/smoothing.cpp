// The running means of a panel: one walk over the record's rows, whose window
// sizes and limits come from a table.
#include "proxies/smoothing.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "display/display_state.h"
#include "forms/canvas.h"
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

Single Depth(const ProxyRecords& records, int p, long row) {
  return records.ProxyDepth(p)(PlotScale, row);
}

// Reads every tested row, so that a window past the table's end fails even
// where an earlier row has no value.
bool WindowsUsable(const RunningMean& mean, const ProxyRecords& records, int p, long i) {
  bool usable = true;
  for (long k = i + mean.testedFrom; k <= i + mean.testedTo; ++k) {
    if (std::fabs(Plotted(k)) == kNoValue) usable = false;
  }
  for (long k = i + mean.testedFrom; k < i + mean.testedTo; ++k) {
    if (Depth(records, p, k) > Depth(records, p, k + 1)) usable = false;
  }
  return usable;
}

struct Point {
  Single x;
  Single y;
};

// Single precision throughout, in the order of the rows: the last bits of a
// mean depend on it. x(k) and y(k) read a row's plotted value and depth.
template <class ReadX, class ReadY>
void Means(const RunningMean& mean, long i, ReadX x, ReadY y, Point& first, Point& second) {
  Single x1 = 0;
  Single y1 = 0;
  Single x2 = 0;
  Single y2 = 0;
  if (mean.sharedSum) {
    Single xs = 0;
    Single ys = 0;
    for (long k = i + mean.secondFrom; k <= i + mean.firstTo; ++k) {
      xs += x(k);
      ys += y(k);
    }
    x1 = xs + x(i + mean.firstFrom);
    y1 = ys + y(i + mean.firstFrom);
    x2 = xs + x(i + mean.secondTo);
    y2 = ys + y(i + mean.secondTo);
  } else {
    for (long k = i + mean.firstFrom; k <= i + mean.firstTo; ++k) {
      x1 += x(k);
      y1 += y(k);
    }
    for (long k = i + mean.secondFrom; k <= i + mean.secondTo; ++k) {
      x2 += x(k);
      y2 += y(k);
    }
  }
  first = {x1 / mean.divisor, y1 / mean.divisor};
  second = {x2 / mean.divisor, y2 / mean.divisor};
}

// The record's rows read once for a walk: the plotted values and depths, and
// running counts of the rows without value and of the depths that fall to
// the next row, so that a pass tests its rows in one step and sums them from
// plain arrays. Rows past the tables are left to the checked reads, which
// fail there as a pass would.
class WalkRows {
 public:
  WalkRows(const ProxyRecords& records, int p) {
    last_ = std::min({static_cast<long>(records.ProxyRowCount(p)), ProxyPlot.UBound(2),
                      records.ProxyDepth(p).UBound(2)});
    const auto count = static_cast<std::size_t>(std::max(last_ + 1, 0L));
    plotted_.resize(count);
    depth_.resize(count);
    noValue_.assign(count + 1, 0);
    falls_.assign(count + 1, 0);
    for (long k = 0; k <= last_; ++k) {
      plotted_[k] = Plotted(k);
      depth_[k] = Depth(records, p, k);
      noValue_[k + 1] = noValue_[k] + (std::fabs(plotted_[k]) == kNoValue ? 1 : 0);
      if (k > 0) falls_[k] = falls_[k - 1] + (depth_[k - 1] > depth_[k] ? 1 : 0);
    }
  }

  bool Holds(long from, long to) const { return from >= 0 && to <= last_; }

  // Every row from..to has a value, and no depth falls within them.
  bool Usable(long from, long to) const {
    return noValue_[to + 1] == noValue_[from] && falls_[to] == falls_[from];
  }

  Single X(long k) const { return plotted_[static_cast<std::size_t>(k)]; }
  Single Y(long k) const { return depth_[static_cast<std::size_t>(k)]; }

 private:
  long last_ = -1;
  std::vector<Single> plotted_;
  std::vector<Single> depth_;
  std::vector<long> noValue_;  // rows without value before row k
  std::vector<long> falls_;    // rows j < k whose depth is above that of j + 1
};

// A failure inside the walk leaves DrawWidth as it is and travels on to the
// drawing's handler. Only the first pass can fail, the later ones reading no
// row past R-1, so it runs whatever `hidden` is; a later pass whose tested
// rows all lie from `hidden` on has both means below the view and is left out.
void DrawRunningMean(const RunningMean& mean, const ProxyRecords& records, PictureBox& panel, int p,
                     long F, long hidden) {
  const long rowCount = records.ProxyRowCount(p);
  if (rowCount >= mean.guard) {
    Long i = F < mean.lowestFirst ? mean.lowestFirst : F;
    panel.DrawWidth = CInt(1.5);
    const WalkRows rows(records, p);
    const long last = rowCount - mean.lastBeforeEnd;
    do {
      const long from = i + mean.testedFrom;
      const long to = i + mean.testedTo;
      Point first;
      Point second;
      if (DrawOnlyWhatShows && rows.Holds(from, to)) {
        if (rows.Usable(from, to)) {
          Means(
              mean, i, [&](long k) { return rows.X(k); }, [&](long k) { return rows.Y(k); }, first,
              second);
          panel.Line(first.x, first.y, second.x, second.y, kRed);
        }
      } else if (WindowsUsable(mean, records, p, i)) {
        Means(
            mean, i, Plotted, [&](long k) { return Depth(records, p, k); }, first, second);
        panel.Line(first.x, first.y, second.x, second.y, kRed);
      }
      ++i;
    } while (i < last && i + mean.testedFrom < hidden);
  }
  panel.DrawWidth = 1;
}

}  // namespace

void SmoothProxy3(const ProxyRecords& records, PictureBox& panel, int p, long F, long hidden) {
  DrawRunningMean(kMean3, records, panel, p, F, hidden);
}

void SmoothProxy5(const ProxyRecords& records, PictureBox& panel, int p, long F, long hidden) {
  DrawRunningMean(kMean5, records, panel, p, F, hidden);
}

void SmoothProxy11(const ProxyRecords& records, PictureBox& panel, int p, long F, long hidden) {
  DrawRunningMean(kMean11, records, panel, p, F, hidden);
}

void SmoothProxy208(const ProxyRecords& records, PictureBox& panel, int p, long F, long hidden) {
  DrawRunningMean(kMean208, records, panel, p, F, hidden);
}

}  // namespace ostraline
