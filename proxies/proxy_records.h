#pragma once
// The proxy records of the five panels: one measured record per panel, with
// its rows' positions, its columns' names and values. The master's panels
// are one instance; the Duo's panels another, with the same tables.
#include <string>

#include "core/bore_hole_set.h"
#include "runtime/checked_int.h"
#include "runtime/table.h"

namespace ostraline {

struct ProxyRecords {
  ProxyRecords();

  // Per panel p = 0..4.
  Table<std::string> ProxyFileName;
  Table<BooleanFlag> ProxyLoaded;
  Table<BooleanFlag> ProxyHasLabel;
  Table<BooleanFlag> ProxyHasTrinity;
  Table<Integer> ProxyColumnCount;
  Table<Long> ProxyRowCount;
  // Each panel's tables have sizes of their own: ProxyLabel(p)(row),
  // ProxyDepth(p)(scale 0..3, row), ProxyHeader(p)(column),
  // ProxyValue(p)(row, column). Row 0 and column 0 stay empty.
  Table<Table<std::string>> ProxyLabel;
  Table<Table<Single, 2>> ProxyDepth;
  Table<Table<std::string>> ProxyHeader;
  Table<Table<Single, 2>> ProxyValue;

  // What a panel's drawing chose and found, per panel: the plotted column,
  // the denominator column (0 for none), the largest and smallest value.
  Table<Integer> ProxyColumnA;
  Table<Integer> ProxyColumnB;
  Table<Single> ProxyMax;
  Table<Single> ProxyMin;
};

// The master's panels, and the Duo's.
inline ProxyRecords masterProxies;
inline ProxyRecords duoProxies;
// The panels of a set's main form.
ProxyRecords& ProxiesOf(const BoreHoleSet& set);

inline auto& ProxyFileName = masterProxies.ProxyFileName;
inline auto& ProxyLoaded = masterProxies.ProxyLoaded;
inline auto& ProxyHasLabel = masterProxies.ProxyHasLabel;
inline auto& ProxyHasTrinity = masterProxies.ProxyHasTrinity;
inline auto& ProxyColumnCount = masterProxies.ProxyColumnCount;
inline auto& ProxyRowCount = masterProxies.ProxyRowCount;
inline auto& ProxyLabel = masterProxies.ProxyLabel;
inline auto& ProxyDepth = masterProxies.ProxyDepth;
inline auto& ProxyHeader = masterProxies.ProxyHeader;
inline auto& ProxyValue = masterProxies.ProxyValue;
inline auto& ProxyColumnA = masterProxies.ProxyColumnA;
inline auto& ProxyColumnB = masterProxies.ProxyColumnB;
inline auto& ProxyMax = masterProxies.ProxyMax;
inline auto& ProxyMin = masterProxies.ProxyMin;

// What the drawing of every panel shares.
struct ProxyState {
  // Rebuilt at each drawing, for the panel drawn: (1, row) the numerator,
  // (2, row) the denominator, (0, row) the plotted value.
  Table<Single, 2> ProxyPlot;
  long CurveColour = 0;
  // The scale subscript of ProxyDepth(p): a copy of DepthAxis.
  Integer PlotScale = 0;
  // False while the program itself writes a panel's axis limits.
  BooleanFlag ProxyAxisEventsOn = true;
};

inline ProxyState proxyState;

inline auto& ProxyPlot = proxyState.ProxyPlot;
inline auto& CurveColour = proxyState.CurveColour;
inline auto& PlotScale = proxyState.PlotScale;
inline auto& ProxyAxisEventsOn = proxyState.ProxyAxisEventsOn;

}  // namespace ostraline
