#include "events/event_free_depth.h"
#include "core/project_state.h"
#include "events/event_state.h"
#include "runtime/number_text.h"
#include "support/fresh_program.h"

namespace ostraline {
namespace {

class EventFreeDepth : public FreshProgram {
 protected:
  // Merged layers as the import leaves them; rows past the merged count hold -9999.
  void Layers(std::initializer_list<std::pair<float, float>> layers, long rowsRead) {
    EventCount = rowsRead;
    MergedEventCount = static_cast<long>(layers.size());
    EventTop.Dim({{0, 3}, {0, rowsRead}});
    EventBottom.Dim({{0, 3}, {0, rowsRead}});
    long i = 0;
    for (auto [top, bottom] : layers) {
      ++i;
      EventTop(1, i) = top;
      EventBottom(1, i) = bottom;
    }
    for (++i; i <= rowsRead; ++i) {
      EventTop(1, i) = -9999;
      EventBottom(1, i) = -9999;
    }
  }
  double ToEfd(float cd) { return CDToEFD(cd).ToDouble(); }
  double ToCd(float efd) { return EFDToCD(efd).ToDouble(); }
};

TEST_F(EventFreeDepth, CompositeToEfdCutsTheLayersOut) {
  Layers({{10, 12}, {20, 25}}, 2);
  EXPECT_EQ(ToEfd(5), 5);
  EXPECT_EQ(ToEfd(10), 10);
  EXPECT_EQ(ToEfd(11), 10);
  EXPECT_EQ(ToEfd(12), 10);
  EXPECT_EQ(ToEfd(15), 13);
  EXPECT_EQ(ToEfd(22), 18);
  EXPECT_EQ(ToEfd(30), 23);
  EXPECT_EQ(ToEfd(9999), 9999 - 7);
  DepthPrecision = 1;
  EXPECT_EQ(ToEfd(15.25f), 13.2);  // half to even at one digit
}

TEST_F(EventFreeDepth, EfdToCompositeLeavesTheLastLayerOutWithoutAMerge) {
  Layers({{10, 12}, {20, 25}}, 2);
  EXPECT_EQ(ToCd(5), 5);
  EXPECT_EQ(ToCd(10), 10);  // the junction maps to the top
  EXPECT_EQ(ToCd(13), 15);
  EXPECT_EQ(ToCd(18), 20);
  EXPECT_EQ(ToCd(23), 25);  // not 30: not the inverse here
  EXPECT_EQ(ToCd(9999), 9999);
  EXPECT_EQ(ToCd(-9999), -9999);

  // Three rows read, one merge: the last real layer counts.
  Layers({{10, 12}, {20, 25}}, 3);
  EXPECT_EQ(ToCd(23), 30);
}

TEST_F(EventFreeDepth, RefusedAgeImportTakesTheLayersOut) {
  Layers({{10, 12}, {20, 25}}, 2);
  EventCount = -9999;
  MergedEventCount = -9999;
  for (float x : {5.0f, 11.0f, 30.006f}) {
    EXPECT_EQ(ToEfd(x), ToCd(x));
    EXPECT_EQ(ToEfd(x), Round(x, 2));
  }
  // A header-only list: the depth rounded, nothing more.
  EventCount = 0;
  EXPECT_EQ(ToEfd(12.345f), Round(12.345f, 2));
}

}  // namespace
}  // namespace ostraline
