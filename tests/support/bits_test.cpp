#include "support/bits.h"

#include <limits>

TEST(Bits, TellSignedZerosApartAndNansNot) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_TRUE(bits::same(nan, -nan));
  EXPECT_FALSE(bits::same(nan, 1.0));
  EXPECT_FALSE(bits::same(0.0, -0.0));
  EXPECT_FALSE(bits::same(1.0, std::nextafter(1.0, 2.0)));
  EXPECT_TRUE(bits::equal(2.385, 2.385));
}

TEST(Bits, ReportTheFirstDifference) {
  EXPECT_FALSE(bits::equal({1.0, 2.0}, {1.0}));
  const testing::AssertionResult result = bits::equal({1.0, 0.0}, {1.0, -0.0});
  ASSERT_FALSE(result);
  EXPECT_STREQ(result.message(), "0 (0x0000000000000000) instead of -0 (0x8000000000000000) at 1");
}
