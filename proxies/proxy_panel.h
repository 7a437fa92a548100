#pragma once
// A proxy panel of the main form: its record drawn beside the core columns,
// against the same vertical axis.
#include "core/bore_hole_set.h"
#include "proxies/proxy_records.h"

namespace ostraline {

// Redraws panel p from its record: the limits, the background with the
// event layers, the curve and its markers, the smoothing overlay, and the
// target mark; then every panel's picture is committed.
void DrawProxy(BoreHoleSet& set, ProxyRecords& records, int p);
inline void DrawProxy(int p) {
  DrawProxy(masterSet, masterProxies, p);
}
class MainForm;
// Panel p of a main form, from the form's own records.
void DrawPanel(MainForm& form, int p);

}  // namespace ostraline
