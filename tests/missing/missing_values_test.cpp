#include "kavoratb1c/missing/missing_values.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "kavoratb1c/marker.h"

using namespace kav;

TEST(MissingValues, NumbersAtOrBelowTheMarker) {
  EXPECT_EQ(kMissing, -1.79769313486231E+308);
  EXPECT_EQ(IsMissingValueDbl(kMissing), -1);
  EXPECT_EQ(IsMissingValueDbl(-std::numeric_limits<double>::max()), -1);
  EXPECT_EQ(IsMissingValueDbl(-std::numeric_limits<double>::infinity()), -1);
  EXPECT_EQ(IsMissingValueDbl(std::nextafter(kMissing, 0.0)), 0);
  EXPECT_EQ(IsMissingValueDbl(-1.7E+306), 0);
  EXPECT_EQ(IsMissingValueDbl(NAN), 0);
}

TEST(MissingValues, EmptyTexts) {
  EXPECT_EQ(IsMissingValueStr(u""), -1);
  EXPECT_EQ(IsMissingValueStr(u" "), 0);
}
