#include "kavoratb1c/stats/optimal_split.h"

#include "support/bits.h"
#include "support/random.h"

using namespace kav;

TEST(OptimalSplit, DiametersAndCutsEqualTheirDefinition) {
  Random random(61);
  for (int round = 0; round < 60; ++round) {
    const int n = 2 + random.below(40), from = 1 + random.below(n - 1),
              to = from + 1 + random.below(n - from);
    matrix x(n, 1), w(n, 1);
    for (int i = 0; i < n; ++i) {
      x.values[i] = random.below(9) == 0 ? kMissing : random.uniform(-50.0, 80.0);
      w.values[i] = random.below(7) == 0 ? 0.0 : random.uniform(0.25, 4.0);
    }
    // Squares about the mean are weighted squares between pairs, over the total weight.
    const auto diameter = [&](int begin, int end) {
      double total = 0.0, pairs = 0.0;
      for (int i = begin - 1; i < end; ++i) {
        if (x.getMissing(i)) continue;
        total += w.values[i];
        for (int j = begin - 1; j < i; ++j) {
          if (!x.getMissing(j)) pairs += w.values[i] * w.values[j] * std::pow(x.values[i] - x.values[j], 2);
        }
      }
      return pairs == 0.0 ? 0.0 : pairs / total;
    };
    const double tolerance = 1e-12 * (1.0 + diameter(from, to));
    EXPECT_NEAR(V_FischerDist(&x, n, &w, from, to), diameter(from, to), tolerance);
    double least = HUGE_VAL, within = -7.0;
    for (int i = from; i < to; ++i) least = std::min(least, diameter(from, i) + diameter(i + 1, to));
    const int best = V_FischerBisec(&x, n, &w, from, to, &within);
    ASSERT_TRUE(best >= from && best < to) << best;
    EXPECT_NEAR(within, least, tolerance);
    EXPECT_NEAR(diameter(from, best) + diameter(best + 1, to), least, tolerance);
    EXPECT_EQ(V_FischerBisec(&x, n, &w, to, to, &within), 0);
    EXPECT_EQ(within, kMissing);
  }
}
