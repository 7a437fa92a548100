#include "display/age_ticks.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <vector>

#include "core/project_state.h"
#include "display/core_columns_paint.h"
#include "display/display_state.h"
#include "events/age_lookup.h"
#include "events/event_free_depth.h"
#include "runtime/number_text.h"

namespace ostraline {
namespace {

// Loops up to this long run tick by tick.
constexpr long long kPlainLoopMost = 1000;
// Ticks closer than this never show apart: three twips are less than a device
// pixel up to five device pixels to the pixel of the desktop.
constexpr float kRunTwips = 3.0f;
// The canvas keeps a line up to a pen's width beyond the edge; a tick further
// out than this never shows.
constexpr float kBeyondEdgeTwips = 60.0f;

void Tick(PictureBox& strip, float fromX, float y) {
  if (y > 0) strip.Line(fromX, y, kStripAxis, y, kBlack);
}

class TickLoop {
 public:
  TickLoop(BoreHoleSet& set, PictureBox& strip, long first, long step, long long count, float fromX,
           std::vector<Single> controlAges)
      : set_(set),
        strip_(strip),
        first_(first),
        step_(step),
        count_(count),
        fromX_(fromX),
        controlAges_(std::move(controlAges)) {}

  // Whether the depth of the loop's ages can be found by halving: never the
  // sentinel EFDs on the way, whose depths stand apart from their neighbours'.
  bool Bisectable() {
    const float top = GetEFDFromAge(set_, AsSingle(Age(0))).ToSingle();
    const float end = GetEFDFromAge(set_, AsSingle(Age(count_ - 1))).ToSingle();
    for (const float sentinel : {-9999.0f, 9999.0f}) {
      if (top <= sentinel + 0.01f && end >= sentinel - 0.01f) return false;
    }
    return true;
  }

  void Draw() {
    const float above = strip_.FromTwipsY(-kBeyondEdgeTwips);
    const float below = strip_.FromTwipsY(strip_.InnerHeight() + kBeyondEdgeTwips);
    const long long begin = FirstWhere([&](float y) { return y >= above; });
    const long long end = FirstWhere([&](float y) { return y > below; });
    const bool dense = end - begin > 2 * static_cast<long long>(strip_.InnerHeight());
    for (long long k = begin; k < end;) k = dense ? DrawRun(k, end) : DrawOne(k);
    // The loop's last lookup leaves the errors and the caption behind.
    Y(count_ - 1);
  }

 private:
  double Age(long long k) const { return static_cast<double>(first_ + k * step_); }
  float Y(long long k) const { return AgePosition(set_, Age(k)); }
  float Twips(float y) const { return strip_.ToTwipsY(y); }
  // Which stretch between control points an age lies in: within one the
  // lookups take the same pair of rows, and the depth rises with the age.
  long Stretch(long long k) const {
    const Single age = AsSingle(Age(k));
    return std::upper_bound(controlAges_.begin(), controlAges_.end(), age) - controlAges_.begin();
  }

  template <class Past>
  long long FirstWhere(Past past) const {
    long long low = 0;
    long long high = count_;
    while (low < high) {
      const long long middle = low + (high - low) / 2;
      if (past(Y(middle))) {
        high = middle;
      } else {
        low = middle + 1;
      }
    }
    return low;
  }

  long long DrawOne(long long k) {
    Tick(strip_, fromX_, Y(k));
    return k + 1;
  }

  // The run of ticks from k that lie within a few twips of tick k, in one
  // stretch and on one side of the core top: its first and last show all of
  // it. A run is searched for where the last one ended, then by doubling
  // steps and halving.
  long long DrawRun(long long k, long long end) {
    const float top = Y(k);
    const long stretch = Stretch(k);
    long long good = k;
    long long bad = end;
    const auto probe = [&](long long b) {
      if (b >= end) return false;
      const float y = Y(b);
      if (Stretch(b) == stretch && (y > 0) == (top > 0) && Twips(y) - Twips(top) < kRunTwips) {
        good = b;
        return true;
      }
      bad = b;
      return false;
    };
    const long long guess = std::max(lastRun_, 1LL);
    if (probe(k + guess) && probe(k + guess + 1)) {
      for (long long reach = 2 * (guess + 1); probe(k + reach); reach *= 2) {
      }
    }
    while (bad - good > 1) probe(good + (bad - good) / 2);
    lastRun_ = good - k;
    Tick(strip_, fromX_, top);
    if (good > k) Tick(strip_, fromX_, Y(good));
    return good + 1;
  }

  BoreHoleSet& set_;
  PictureBox& strip_;
  long first_;
  long step_;
  long long count_;
  float fromX_;
  std::vector<Single> controlAges_;
  long long lastRun_ = 1;
};

}  // namespace

float AgePosition(BoreHoleSet& set, double age) {
  return EFDToCD(set, GetEFDFromAge(set, AsSingle(age)).ToSingle()).ToSingle();
}

void DrawAgeTicks(BoreHoleSet& set, PictureBox& strip, double from, double to, long step,
                  float fromX) {
  const long first = CLng(from);
  const long last = CLng(to);
  const long long count = last < first ? 0 : (static_cast<long long>(last) - first) / step + 1;
  const bool counterFits = first + count * step <= std::numeric_limits<std::int32_t>::max();
  if (DrawOnlyWhatShows && count > kPlainLoopMost && counterFits && strip.ScaleHeight > 0 &&
      strip.InnerHeight() > 0 && CompositeRisesWithEFD(set)) {
    if (auto ages = RisingControlAges(set)) {
      TickLoop loop(set, strip, first, step, count, fromX, std::move(*ages));
      if (loop.Bisectable()) {
        loop.Draw();
        I = static_cast<long>(first + count * step);
        return;
      }
    }
  }
  for (I = first; I <= last; I += step) Tick(strip, fromX, AgePosition(set, I));
}

}  // namespace ostraline
