#include "fuzz/support/layer_checks.h"

#include <utility>

#include "fuzz/support/fuzz_support.h"

namespace ostraline::fuzz {
namespace {

// The layers lie in order and apart, as long as every top could be chosen by
// the sort; the rows freed by the merge hold -9999.
void CheckLayers(const BoreHoleSet& set) {
  const auto& tops = set.EventTop;
  const auto& bottoms = set.EventBottom;
  for (long i = 1; i <= set.EventCount; ++i) {
    if (!(tops(1, i) < 999999)) return;
  }
  for (long i = 1; i < set.MergedEventCount; ++i) {
    Require(tops(1, i) <= tops(1, i + 1), "layers out of order");
    Require(bottoms(1, i) <= tops(1, i + 1), "layers that overlap after the merge");
  }
  for (long i = set.MergedEventCount + 1; i <= set.EventCount; ++i) {
    Require(tops(1, i) == -9999, "a freed row that holds a layer");
  }
}

}  // namespace

// The target horizon may speak too; the import's message comes once, and
// only on failure.
void CheckEventImport(const ScriptedPlatform& platform, MainForm& form, const BoreHoleSet& set) {
  const int formatErrors = CountMessages(platform, "File format error.");
  if (form.Command3.Enabled) {
    Require(formatErrors == 1 && set.EventCount == -9999 && set.MergedEventCount == -9999,
            "an event list refused without its message, or with layers");
    return;
  }
  Require(formatErrors == 0 && set.EventListLoaded && set.EventCount >= 0,
          "an event list taken but not loaded");
  CheckLayers(set);
}

}  // namespace ostraline::fuzz
