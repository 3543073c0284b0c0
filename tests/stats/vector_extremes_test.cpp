#include "kavoratb1c/stats/vector_extremes.h"

#include <climits>
#include <vector>

#include "support/bits.h"
#include "support/random.h"

using namespace kav;

namespace {

/// Extreme and position as they are defined: the first cell that is not excluded, as it is, replaced by later
/// usable ones; or the first present cell (presentOnly).
std::vector<double> byDefinition(const matrix& x, int n, const short* exclude, bool max, bool presentOnly) {
  double extreme = kMissing;
  int position = 0;
  for (int i = 0; i < n; ++i) {
    const double cell = x.getElement(i);
    if (exclude[i] != 0 || (x.getMissing(i) && (presentOnly || position != 0))) continue;
    if (position != 0 && !(max ? cell > extreme : cell < extreme)) continue;
    extreme = cell;
    position = i + 1;
  }
  return {extreme, static_cast<double>(position)};
}

}  // namespace

TEST(VectorExtremes, EqualTheirDefinitionBitForBit) {
  Random random(44);
  // Ties of zeros as minimum and as maximum, infinities, NaN, and ordinary cells.
  const double kinds[4][4] = {{0.0, -0.0, 2.385, kMissing},
                              {0.0, -0.0, -2.385, kMissing},
                              {HUGE_VAL, -HUGE_VAL, kMissing, 1e308},
                              {NAN, 4.5, -2.385, kMissing}};
  for (int n = 0; n <= 66; n += n == 20 ? 43 : 1) {
    for (int round = 0; round < 100; ++round) {
      SCOPED_TRACE(testing::Message() << n << " cells, round " << round);
      std::vector<double> cells;
      for (int i = 0; i < n; ++i) {
        cells.push_back(round % 5 == 4 ? random.uniform(-9.0, 9.0) : kinds[round % 5][random.below(4)]);
      }
      matrix x(round % 9 == 8 ? n - 1 : n, 1, cells.data(), round % 4 != 3, 0, 0);
      if (round % 3 == 0) x.setMissing(random.below(n + 1), true);  // keeps its value
      std::vector<short> exclude(static_cast<std::size_t>(n) + 1);
      const int oneIn = round < 30 ? INT_MAX : round < 60 ? 12 : 2;
      for (short& flag : exclude) flag = static_cast<short>(random.below(oneIn) == 0 ? 1 - 2 * (n % 2) : 0);
      const std::vector<short> none(exclude.size());
      const short* const flags = exclude.data();
      const double min = byDefinition(x, n, flags, false, false)[0];
      const double max = byDefinition(x, n, flags, true, false)[0];
      double both[2] = {NAN, NAN};
      V_MinMax(&x, n, &both[0], &both[1], flags);
      EXPECT_TRUE(
          bits::equal({V_Min(&x, n, flags), V_Max(&x, n, flags), both[0], both[1]}, {min, max, min, max}));
      EXPECT_TRUE(bits::equal(V_Max(&x, n, nullptr), byDefinition(x, n, none.data(), true, false)[0]));
      int at = -9;
      const double first = round % 2 == 0 ? V_MaxAndMaxPos(&x, n, &at) : V_MinAndMinPos(&x, n, &at);
      EXPECT_TRUE(bits::equal({first, static_cast<double>(at)},
                              byDefinition(x, n, none.data(), round % 2 == 0, true)));
    }
  }
}

TEST(VectorExtremes, NothingToChooseFrom) {
  const int integers[] = {-7, INT_MIN, -3};
  const short all[3] = {1, -1, 2}, none[3] = {};
  const matrix x(3, 1, integers);
  double min = NAN, max = NAN;
  V_MinMax(&x, 3, &min, &max, nullptr);
  EXPECT_TRUE(bits::equal({V_Min(&x, 3, nullptr), min, max}, {kMissing, kMissing, kMissing}));
  EXPECT_EQ(V_MaxInt(&x, 3, nullptr), -3);
  EXPECT_EQ(V_MaxInt(&x, 3, all), 0);
  EXPECT_TRUE(bits::equal({V_Min(&x, INT_MIN, nullptr), V_Max(&x, -1, none), V_MinAndMinPos(&x, -1, nullptr)},
                          {kMissing, kMissing, kMissing}));
  EXPECT_EQ(V_MaxInt(&x, INT_MIN, none), 0);
}

TEST(VectorExtremes, SmallestPositiveInterval) {
  const double times[] = {2.0, 9.5, kMissing, 4.0, 9.5, 5.25};
  const matrix x(6, 1, times, true, 0, 0);
  EXPECT_EQ(V_TimeIntervalSize(&x, 6, -1), 1.25);
  EXPECT_EQ(V_TimeIntervalSize(&x, 6, 1), 5.5);
  EXPECT_EQ(V_TimeIntervalSize(&x, 1, -1), kMissing);
}
