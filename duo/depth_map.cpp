#include "duo/depth_map.h"

#include "core/project_state.h"
#include "duo/duo_state.h"
#include "events/event_free_depth.h"
#include "events/event_state.h"
#include "runtime/number_text.h"

namespace ostraline {
namespace {

// One direction of the map: the tie depths on the scale mapped from and on
// the scale mapped to, and the sets whose EFD functions belong to each.
struct Direction {
  bool fromDuo;
  BoreHoleSet& sourceSet;
  BoreHoleSet& targetSet;

  double Duo(long r) const { return CDbl(TieCell2(1, r)); }
  double Master(long r) const { return MasterDepth(1, r).ToDouble(); }
  double Source(long r) const { return fromDuo ? Duo(r) : Master(r); }
  double Target(long r) const { return fromDuo ? Master(r) : Duo(r); }
  bool IsTie(long r) const { return Duo(r) != 9999 && Master(r) != 9999; }

  double SourceEFD(double cd) const { return CDToEFD(sourceSet, CSng(cd)).ToDouble(); }
  double TargetEFD(double cd) const { return CDToEFD(targetSet, CSng(cd)).ToDouble(); }
  double TargetCD(double efd) const { return EFDToCD(targetSet, CSng(efd)).ToDouble(); }
};

bool BothEventLists() {
  return EventListLoaded && EventListLoaded2;
}

// Above the first tie, row q: one to one from it.
double AboveFirstTie(const Direction& d, long q, Single x) {
  if (!BothEventLists()) return d.Target(q) - (d.Source(q) - x);
  return d.TargetCD(d.TargetEFD(d.Target(q)) - (d.SourceEFD(d.Source(q)) - d.SourceEFD(x)));
}

// Below the last tie, row p: one to one from it.
double BelowLastTie(const Direction& d, long p, Single x) {
  if (!BothEventLists()) return d.Target(p) + (x - d.Source(p));
  return d.TargetCD(d.TargetEFD(d.Target(p)) + (d.SourceEFD(x) - d.SourceEFD(d.Source(p))));
}

double Between(const Direction& d, long p, long q, Single x) {
  if (!BothEventLists()) {
    const double a = d.Source(p);
    const double b = d.Source(q);
    const double c = d.Target(p);
    const double dd = d.Target(q);
    if (a != b) return (dd - c) * (x - a) / (b - a) + c;
    return x >= a ? BelowLastTie(d, p, x) : AboveFirstTie(d, q, x);
  }
  const double c = d.TargetEFD(d.Target(p));
  const double dd = d.TargetEFD(d.Target(q));
  const double a = d.SourceEFD(d.Source(p));
  const double b = d.SourceEFD(d.Source(q));
  const double e = d.SourceEFD(x);
  if (a != b) return d.TargetCD(dd - (dd - c) * (b - e) / (b - a));
  return e >= a ? BelowLastTie(d, p, x) : AboveFirstTie(d, q, x);
}

double Map(const Direction& d, Single x) {
  long p = 0;
  long q = 0;
  for (long r = 1; r <= LastRow2; ++r) {
    if (d.IsTie(r)) {
      if (x >= d.Source(r)) {
        p = r;
      } else {
        q = r;
      }
    }
    // The last row is never the lower end of a pair.
    if (r == LastRow2) break;
    if (q != 0 && p == 0) return AboveFirstTie(d, q, x);
    if (q != 0 && p != 0) return Between(d, p, q, x);
  }
  if (p != 0) return BelowLastTie(d, p, x);
  // A lone tie in the last row maps one to one from it; without any tie the
  // two scales are taken as one.
  if (q != 0) return AboveFirstTie(d, q, x);
  return x;
}

Single MapRounded(const Direction& d, Single x) {
  if (x == -9999 || x == 9999) return 9999;
  return CSng(Round(Map(d, x), DepthPrecision));
}

}  // namespace

Single DuoToMaster(Single depth) {
  return MapRounded({true, duoSet, masterSet}, depth);
}

Single MasterToDuo(Single depth) {
  return MapRounded({false, masterSet, duoSet}, depth);
}

}  // namespace ostraline
