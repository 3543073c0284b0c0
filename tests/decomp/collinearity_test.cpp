#include "kavoratb1c/decomp/collinearity.h"

#include <gmock/gmock.h>

#include "definitions/collinearity.h"
#include "kavoratb1c/algebra/products.h"
#include "support/residuals.h"

using namespace kav;

namespace {

using definitions::CollinearityCheck, definitions::Elements, definitions::Packed;
using Doubles = std::vector<double>;

matrix vectorOf(const Doubles& x) { return matrix(static_cast<int>(x.size()), 1, x.data(), true, 0, 0); }

/// Codes, tolerances and inflations, 4.75 before.
Doubles resultsOf(const CollinearityCheck& c, const matrix& r) {
  matrix status(c.p, 1, 4.75), tolerances(c.p, 1, 4.75), inflations(c.p, 1, 4.75), all(c.p, 3, 0.0);
  matrix selection = vectorOf(c.isSelected), groups = vectorOf(c.groupOf), *group = &groups;
  CheckTolerance(&r, c.p, c.groups, &selection, nullptr, group, c.tolerance, c.markOthers, c.sweepAll,
                 c.backwards, &status, &tolerances, &inflations);
  all.copyCol(&status, 0, 0);
  all.copyCol(&tolerances, 0, 1);
  all.copyCol(&inflations, 0, 2);
  return cellsOf(all);
}

}  // namespace

TEST(Collinearity, EqualsItsDefinitionBitForBit) {
  Random random(74);
  int counts[4] = {};
  for (int round = 0; round < 1000; ++round) {
    const short flags[] = {0, -1, 0, -1, 1};
    CollinearityCheck check{1 + random.below(8), random.below(4)};
    check.markOthers = flags[random.below(5)];
    check.sweepAll = flags[random.below(5)];
    check.backwards = flags[random.below(5)];
    check.tolerance = random.below(4) * 0.05;
    check.isSelected.clear();
    for (int k = 0; k < 9; ++k) check.isSelected.push_back(random.below(4) > 0);
    for (int k = 0; k < check.p; ++k) check.groupOf[std::size_t(k)] = 1 + k * check.groups / 9;
    // So few rows that columns are zero, repeat or depend on others, exactly or nearly.
    const int p = check.p, rows = 2 + random.below(6);
    matrix x(rows, p, 0.0), swept(p * (p + 1) / 2, 1, 0.0), table(p, p, 0.0), *r = &table;
    byDefinition(x, rows, p, [&](int, int) {
      return random.below(3) - 1.0 + (round % 3 == 0 ? random.uniform(-0.1, 0.1) : 0.0);
    });
    for (int j = 0; j < p; ++j) x.Normalize(j);
    M_ProductTrAA(&x, rows, p, r);
    if (round % 10 == 0) table.values[random.below(p * p)] = random.uniform(-2.0, 2.0);
    const Doubles actual = resultsOf(check, table);
    Doubles expected(actual.size(), 4.75);
    definitions::Collinearity(check, Elements{table}, expected);
    ASSERT_TRUE(bits::equal(actual, expected)) << round;
    for (const double code : actual) ++counts[code == 60000.0 ? 2 : code == 50000.0 ? 1 : 0];
    const Packed<Elements> s{{swept}};
    for (int k = 0; k < p * p; ++k) s(k / p, k % p) = table.values[k];
    for (int k = 0; k < p; ++k) {
      const double least = definitions::leastTolerance(s, p, k, check.tolerance);
      EXPECT_TRUE(bits::equal(OLSCheckIfIn(&swept, p, k + 1, check.tolerance), least));
      if (least <= 0.01) continue;
      definitions::sweep(s, p, k);
      ++counts[3];
    }
  }
  for (const int count : counts) EXPECT_GT(count, 60);
}

TEST(Collinearity, ByHand) {
  // The third variable is 0.6 times the first plus 0.8 times the second.
  const auto r = square::cells(3, 3, {1, 0, 0.6, 0, 1, 0.8, 0.6, 0.8, 1});
  CollinearityCheck check{3};
  const auto near = [](Doubles x) { return testing::Pointwise(testing::DoubleNear(1e-12), x); };
  const double none = kMissing;
  EXPECT_THAT(resultsOf(check, *r), near({60000, 0, 0, 0, 0.36, 0.36, none, 1 / 0.36, 1 / 0.36}));
  check.backwards = -1;
  EXPECT_THAT(resultsOf(check, *r), near({0, 0, 60000, 1, 1, 0, 1, 1, none}));
  check.sweepAll = 1;
  EXPECT_THAT(resultsOf(check, *r), near({0, 0, 0, 0, 0, 0, none, none, none}));
}
