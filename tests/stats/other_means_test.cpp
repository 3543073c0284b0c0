#include "kavoratb1c/stats/other_means.h"

#include <vector>

#include "numerics/scalar.h"
#include "support/bits.h"
#include "support/random.h"

using namespace kav;

TEST(OtherMeans, EqualTheirDefinitionBitForBit) {
  Random random(81);
  for (int round = 0; round < 60; ++round) {
    const int n = round < 30 ? round / 6 : 40;
    std::vector<double> cells, weights;
    std::vector<short> exclude;
    double total = 0.0, count = 0.0, mean = 0.0, squares = 0.0, inverse = 0.0, distance = 0.0;
    bool zero = false, positive = true;
    for (int i = 0; i < n; ++i) {
      const double x = round % 3 == 0 ? random.below(9) - 1.0 : random.uniform(0.1, 1e4);
      const double w = random.uniform(0.1, 3.0);
      exclude.push_back(static_cast<short>(random.below(4) == 0 ? 1 : 0));
      cells.push_back(x);
      weights.push_back(w);
      if (exclude.back() != 0) continue;
      zero = zero || x == 0.0;
      positive = positive && x > 0.0;
      total += w;
      count += 1.0;
      inverse += w / x;
      distance += std::fabs(x - 2.385) * w;
      const double d = scalar::naturalLog(x) - mean;
      squares += (total == w ? 0.0 : w - w * w / total) * (d * d);
      mean += w / total * d;
    }
    const double divisor = total - total / count, gsd = scalar::exponential(std::sqrt(squares / divisor));
    const matrix x(n, 1, cells.data(), true, 0, 0), w(n, 1, weights.data(), true, 0, 0);
    const short* const flags = exclude.data();
    double g[2] = {-9.0, -9.0};
    V_GMeanGSD(&x, n, flags, &w, &g[0], &g[1]);
    EXPECT_TRUE(bits::equal(
        {V_HarmonicMean(&x, n, flags, &w), V_MeanAbsDev(&x, n, 2.385, flags, &w), g[0], g[1]},
        {zero ? kMissing : total / inverse, distance / total, positive ? scalar::exponential(mean) : kMissing,
         positive && divisor != 0.0 ? gsd : kMissing}));
    EXPECT_TRUE(bits::equal(V_HarmonicMean(&w, n, nullptr, &w), n > 0 ? kMissing : NAN));
  }
}
