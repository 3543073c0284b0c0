#include "definitions/lu.h"
#include "support/residuals.h"

using namespace kav;

using namespace square;

TEST(MatrixInverse, EqualsItsDefinitionBitForBitAndLeavesASmallResidual) {
  int singularTables = 0, inverses = 0;
  forAllTables(51, [&](int n, int shape, const matrix& table, Random& random) {
    if (table.nX != n) return;
    const bool loose = random.below(2) == 0;
    const double threshold = loose ? 1e-300 : random.below(2) - 1.0;
    const auto a = copyOf(table), out = container(n, n, shape == kFlagged ? kFlagged : kExact, 4.75),
               expected = copyOf(*out);
    matrix factors(n, n, 0.0);
    byDefinition(factors, n, n, [&](int i, int j) {
      return table.getMissing(i - 1, j - 1) ? 0.0 : table.vbget(i, j);  // what is flagged counts as 0.0
    });
    const int result = definitions::invert(definitions::Cells{factors.values, n}, n,
                                           definitions::Elements{*expected}, loose ? 1e-8 : kEpsilon);
    short singular = 58;
    EXPECT_EQ(a->inverse1(out.get(), singular, threshold), result);
    EXPECT_EQ(singular, result == 0 ? 58 : -1);
    EXPECT_TRUE(same(*out, *expected) && same(*a, table));
    singularTables += result != 0;
    inverses += result == 0;
    if (result != 0 || shape != kExact || n == 0) return;
    EXPECT_LT(residual(n, at(table), at(*out), identity), 3.0);
    EXPECT_EQ(a->inverse1(a.get(), singular, threshold), 0);
    EXPECT_TRUE(same(*a, *out));
  });
  EXPECT_TRUE(singularTables > 100 && inverses > 100);
}

TEST(MatrixInverse, WritesItsColumnsInOrderAndTakesFlaggedCellsAsZero) {
  matrix a(3, 3, 0.0), row(1, 3, 4.75), diagonal(2, 2, 4.75), out(2, 2, 4.75);
  for (int k : {2, 3, 7}) a.setElement(k, 1.0);
  short singular = 0;
  EXPECT_EQ(a.inverse1(&row, singular, 0.0), 0);
  EXPECT_TRUE(holds(row, 1, 3, {0, 0, 1}));
  for (int k : {1, 2}) diagonal.setMissing(k, true);
  EXPECT_EQ(diagonal.inverse1(&out, singular, 0.0), 0);
  EXPECT_TRUE(holds(out, 2, 2, {1 / 4.75, 0, 0, 1 / 4.75}));
}

TEST(MatrixInverse, RefusesSingularTablesAndKeepsTheResult) {
  for (int row = 0; row < 3; ++row) {
    matrix a(3, 3, 0.0), out(3, 3, 4.75);
    for (int k = 0; k < 9; ++k) a.setElement(k, k % 3 == row ? 0.0 : 2.385 + (k % 3 + 1) * (k / 3) * (k / 3));
    short singular = 0;
    EXPECT_EQ(a.inverse1(&out, singular, 0.0), -1) << row;
    EXPECT_EQ(singular, -1);
    EXPECT_TRUE(holds(out, 3, 3, std::vector<double>(9, 4.75)));
  }
  // Pivots between the thresholds: first, and last.
  for (int place = 0; place < 2; ++place) {
    for (const double pivot : {1e-9, 1e-8, 1.0000001e-8, kEpsilon, 2.3e-16}) {
      matrix a(2, 2, 0.0), out(2, 2, 4.75);
      for (int i = 0; i < 2; ++i) a.setElement(i, i, i == place ? pivot : 4.5);
      short singular = 0;
      EXPECT_EQ(a.inverse1(&out, singular, 1e-12), pivot > 1e-8 ? 0 : -1) << place << ": " << pivot;
      EXPECT_EQ(a.inverse1(&out, singular, -1e-12), pivot > kEpsilon ? 0 : -1) << pivot;
    }
  }
}
