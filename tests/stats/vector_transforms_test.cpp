#include "kavoratb1c/stats/vector_transforms.h"

#include <memory>
#include <vector>

#include "kavoratb1c/stats/vector_moments.h"
#include "kavoratb1c/stats/vector_sums.h"
#include "support/bits.h"
#include "support/random.h"

using namespace kav;

namespace {

std::vector<double> cellsOf(const matrix& m) { return std::vector<double>(m.values, m.values + m.nX * m.pX); }

}  // namespace

TEST(VectorTransforms, EqualTheirDefinitionBitForBit) {
  Random random(71);
  for (int n = 1; n < 30; ++n) {
    std::vector<double> cells, factors;
    std::vector<short> exclude;
    for (int i = 0; i < n; ++i) {
      cells.push_back(random.below(6) == 0 ? kMissing : random.uniform(-8.0, 20.0));
      factors.push_back(random.uniform(0.1, 2.0));
      exclude.push_back(static_cast<short>(random.below(4) == 0 ? 1 : 0));
    }
    const short* const flags = exclude.data();
    const int flagged = random.below(n);
    matrix x(n, 1, cells.data(), n % 2 == 0, 0, 0);
    x.setMissing(flagged, true);  // keeps its value
    const matrix y(n - 1, 1, factors.data(), true, 0, 0);
    double mean, deviation;
    V_MeanStdev(&x, n, &mean, &deviation, flags, &y, -1, 0);
    const double norm = std::sqrt(V_SumSq(&x, n)), normW = std::sqrt(V_SumSqW(&x, n, &y));
    for (int k = 0; k < 9; ++k) {
      matrix target(n, 1, cells.data(), n % 2 == 0, 0, 0), *const m = &target, *out = m;
      target.setMissing(flagged, true);
      std::vector<double> expected = cellsOf(target);
      for (int i = 0; i < n; ++i) {
        const double c = x.getElement(i), f = y.getElement(i), replaced = c == kMissing ? 4.5 : c;
        const bool usable = flags[i] == 0 && !x.getMissing(i);
        const double standard = !usable ? kMissing : deviation > 0.0 ? (c - mean) / deviation : 0.0;
        const double all[] = {usable ? c + 2.385 : kMissing,
                              c / norm,
                              c / normW * 3.7,
                              standard,
                              standard,
                              replaced,
                              replaced,
                              c * f,
                              c * f};
        if (!target.missing[i]) expected[static_cast<std::size_t>(i)] = all[k];
      }
      // In place, or into a result of the right shape.
      if (k == 0) V_PlusVal(m, n, 2.385, flags);
      if (k == 1) V_Norm(m, n);
      if (k == 2) V_NormToValW(m, n, 3.7, &y);
      if (k == 3) V_Standardize2(m, n, flags, &y, -1);
      if (k == 4) V_Standardize(&x, n, flags, &y, -1, out);
      if (k == 5) V_ReplaceVal2(m, n, kMissing, 4.5);
      if (k == 6) V_ReplaceVal(&x, n, kMissing, 4.5, out);
      if (k == 7) V_ProductV1V22(m, n, &y);
      if (k == 8) V_ProductV1V2(&x, n, &y, out);
      EXPECT_TRUE(bits::equal(cellsOf(target), expected)) << "worker " << k << ", n = " << n;
    }
  }
}

TEST(VectorTransforms, RescaledCellsReachBothBoundsExactly) {
  Random random(72);
  for (int round = 0; round < 200; ++round) {
    const double a = random.uniform(-9.0, 0.0), b = random.uniform(0.0, 1.0), c = random.uniform(1.0, 9.0);
    const double cells[] = {a, b, c, kMissing, 99.0};
    const short exclude[] = {0, 0, 0, 0, -1};
    matrix x(5, 1, cells, true, 0, 0);
    V_Rescale2(&x, 5, 0.1, 0.7, exclude);
    EXPECT_NEAR(x.getElement(1), 0.1 + 0.6 * (b - a) / (c - a), 1e-15);
    EXPECT_TRUE(bits::equal(cellsOf(x), {0.1, x.getElement(1), 0.7, kMissing, kMissing}));
  }
}

TEST(VectorTransforms, ProductsOfTwoVectors) {
  const double a[] = {2.385, kMissing}, b[] = {0.5, -4.0, 8.0};
  matrix x(2, 1, a, false, 0, 0), y(3, 1, b, true, 0, 0), *table = nullptr, *inPlace = &x;
  int p = 2;
  V_ProductV1TrV2(&x, 3, &y, table);
  V_ProductHorizV1V22(inPlace, &p, &y, 3);
  const std::unique_ptr<matrix> owner(table), product(inPlace);
  EXPECT_EQ(p, 6);
  EXPECT_TRUE(bits::equal(cellsOf(*table), {1.1925, 0.0, -0.5, -9.54, -0.0, 4.0, 19.08, 0.0, -8.0}));
  EXPECT_TRUE(bits::equal(cellsOf(*inPlace), {1.1925, -9.54, 19.08, 0.0, -0.0, 0.0}));
}
