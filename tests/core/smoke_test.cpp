#include <gtest/gtest.h>
#include "core/number_text.h"
TEST(Smoke, Builds) { EXPECT_EQ(ostraline::Str(0.5f), "0.5"); }
