#include "kavoratb1c/checks/derived_variables.h"

#include "support/tables.h"

using namespace kav;

TEST(DerivedVariables, AreAsDefined) {
  Random random(3);
  // Whole numbers, so that sums are exact in any order; flagged ones count.
  const auto fill = [&](matrix& m) {
    for (int k = 0; k < m.nX * m.pX; ++k) {
      m.values[k] = random.below(9) - 4.0;
      m.missing[k] = k % 5 == 2;
    }
  };
  for (int round = 0; round < 60; ++round) {
    const int n = round % 5, p = round / 5 % 6;
    matrix l(n + random.below(2), p, 0.0), s(p, p, 0.0), *variances = nullptr;
    fill(l);
    fill(s);
    const auto cell = [&](int i, int j) {
      double sum = 0.0;
      for (int k = 1; k <= p * p; ++k) {
        const int u = (k - 1) % p + 1, v = (k - 1) / p + 1;
        sum += l.vbget(i, u) * s.vbget(u, v) * l.vbget(j, v);
      }
      return sum;
    };
    expectMakes(n, n, cell, [&](matrix*& made) { ComputeNewVar(&l, n, p, &s, variances, made); });
    const std::unique_ptr<matrix> own(variances);
    EXPECT_TRUE(variances->nX == n && variances->pX == 1);
    for (int i = 1; i <= n; ++i) EXPECT_EQ(variances->vbget(i, 1), cell(i, i));
  }
}
