#include "runtime/table.h"

#include <gtest/gtest.h>

#include <string>

#include "support/failures.h"

namespace ostraline {
namespace {

constexpr std::optional<FailureKind> kOutOfRange = FailureKind::SubscriptOutOfRange;

TEST(TableTest, boundsAreExplicitPerDimensionAndNeededForEveryAccess) {
  Table<int, 2> t;
  t.Dim({{-2, 3}, {5, 7}});
  EXPECT_EQ(t.LBound(1), -2);
  EXPECT_EQ(t.UBound(1), 3);
  EXPECT_EQ(t.LBound(2), 5);
  EXPECT_EQ(t.UBound(2), 7);
  for (int i = -2; i <= 3; ++i) {
    for (int j = 5; j <= 7; ++j) t(i, j) = 10 * i + j;
  }
  // Every cell is its own: no two subscripts share storage.
  for (int i = -2; i <= 3; ++i) {
    for (int j = 5; j <= 7; ++j) EXPECT_EQ(t(i, j), 10 * i + j);
  }
  EXPECT_EQ(FailureOf([&] { t(-3, 5); }), kOutOfRange);
  EXPECT_EQ(FailureOf([&] { t(4, 5); }), kOutOfRange);
  EXPECT_EQ(FailureOf([&] { t(0, 4); }), kOutOfRange);
  EXPECT_EQ(FailureOf([&] { t(0, 8) = 1; }), kOutOfRange);
  EXPECT_EQ(FailureOf([&] { t.UBound(3); }), kOutOfRange);
  EXPECT_EQ(FailureOf([&] { t.Dim({{0, 1}}); }), kOutOfRange);

  // Dimensioning anew drops the contents.
  t.DimUpper(1, 1);
  EXPECT_EQ(t.LBound(1), 0);
  EXPECT_EQ(t(1, 1), 0);

  // A table not dimensioned, or erased, has no bounds at all.
  Table<std::string> u;
  EXPECT_FALSE(u.Allocated());
  EXPECT_EQ(FailureOf([&] { u(0); }), kOutOfRange);
  EXPECT_EQ(FailureOf([&] { u.UBound(); }), kOutOfRange);
  EXPECT_EQ(FailureOf([&] { u.ReDimPreserve(3); }), kOutOfRange);
  u.Dim({{1, 2}});
  u(2) = "b";
  u.Erase();
  EXPECT_EQ(FailureOf([&] { u(2); }), kOutOfRange);
}

TEST(TableTest, reDimPreserveKeepsContentsWhenTheLastDimensionChanges) {
  Table<std::string, 3> t;
  t.Dim({{0, 1}, {1, 2}, {0, 1}});
  for (int a = 0; a <= 1; ++a) {
    for (int b = 1; b <= 2; ++b) {
      for (int c = 0; c <= 1; ++c)
        t(a, b, c) = std::to_string(a) + std::to_string(b) + std::to_string(c);
    }
  }
  t.ReDimPreserve(4);
  EXPECT_EQ(t.UBound(3), 4);
  for (int a = 0; a <= 1; ++a) {
    for (int b = 1; b <= 2; ++b) {
      for (int c = 0; c <= 1; ++c) {
        EXPECT_EQ(t(a, b, c), std::to_string(a) + std::to_string(b) + std::to_string(c));
      }
      EXPECT_EQ(t(a, b, 4), "");
    }
  }
  // Shrinking keeps what is left.
  t.ReDimPreserve(0);
  EXPECT_EQ(t(1, 2, 0), "120");
  EXPECT_EQ(FailureOf([&] { t(1, 2, 1); }), kOutOfRange);

  Table<double> row;
  row.Dim({{1, 1}});
  row(1) = 2.5;
  for (long hi = 2; hi <= 100; ++hi) {
    row.ReDimPreserve(hi);
    row(hi) = hi;
  }
  EXPECT_EQ(row(1), 2.5);
  EXPECT_EQ(row(100), 100.0);
}

TEST(TableTest, boolTablesAndFractionalSubscripts) {
  Table<bool> flags;
  flags.Dim({{1, 4}});
  flags(2) = true;
  bool& third = flags(3);
  third = true;
  EXPECT_FALSE(flags(1));
  EXPECT_TRUE(flags(2));
  EXPECT_TRUE(flags(3));
  flags.ReDimPreserve(6);
  EXPECT_TRUE(flags(3));
  EXPECT_FALSE(flags(6));

  // A fractional subscript is rounded half to even, as a whole-number conversion is.
  Table<int> t;
  t.Dim({{0, 3}});
  t(1) = 1;
  t(2) = 2;
  t(3) = 3;
  EXPECT_EQ(t(1.6), 2);
  EXPECT_EQ(t(2.5), 2);
  EXPECT_EQ(t(2.5f), 2);
  EXPECT_EQ(t(0.5), 0);
  EXPECT_EQ(t(1.4999), 1);
  EXPECT_EQ(FailureOf([&] { t(3.5); }), kOutOfRange);
}

}  // namespace
}  // namespace ostraline
