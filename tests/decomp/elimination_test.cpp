#include "kavoratb1c/decomp/elimination.h"

#include <gmock/gmock.h>

#include "definitions/elimination.h"
#include "kavoratb1c/algebra/products.h"
#include "kavoratb1c/decomp/inverses.h"
#include "support/residuals.h"

using namespace kav;

using namespace square;

using definitions::Elements, definitions::elementsOf, definitions::Packed;

TEST(Elimination, EqualsItsDefinitionBitForBitAndLeavesSmallResiduals) {
  int results[3] = {};
  forAllTables(71, [&](int n, int shape, const matrix& table, Random& random) {
    const int sides[] = {0, 1, 3, n > 17 ? 2 : n}, m = sides[random.below(4)], size = n * (n + 1) / 2;
    const auto a = copyOf(table), inverse = copyOf(table), b = container(n, m, shape, 0.0);
    for (int k = 0; k < b->nX * b->pX; ++k) b->values[k] = random.below(40) == 0 ? NAN : random.uniform(0, 9);
    const auto solution = copyOf(*b);
    const int result = definitions::eliminate(Elements{*inverse}, n, Elements{*solution}, m);
    EXPECT_EQ(M_Gauss(a.get(), n, m, b.get()), result);
    EXPECT_TRUE(same(*a, *inverse) && same(*b, *solution)) << m;
    ++results[result + 2];
    EXPECT_LT(shape <= kLarger && result == 0 ? residual(n, at(table), at(*a), identity) : 0.0, 3.0);

    // On pivots first, in the middle and last one after the other, and on none.
    const auto s = container(size, 1, shape == kColumnShort ? kRowShort : shape, 0.0);
    for (int k = 0; k < s->nX; ++k) s->values[k] = table.getElement(k % std::max(n * n, 1));
    const auto expected = copyOf(*s);
    for (const int k : {1, n / 2 + 1, n, 0, n + 1, -1}) {
      if (k >= 1 && k <= n) definitions::sweep(Packed<Elements>{{*expected}}, n, k - 1);
      EXPECT_EQ(M_Sweep(s.get(), n, k), 0);
      ASSERT_TRUE(same(*s, *expected)) << "pivot " << k;
    }
  });
  EXPECT_TRUE(results[0] > 100 && results[2] > 200);
}

TEST(Elimination, InvertsCrossProductsAndWhatIsSweptOnAllPivots) {
  Random random(72);
  for (const int n : {1, 2, 3, 5, 10, 17, 50}) {
    matrix x(n, n, 0.0), a(n, n, 0.0), g(n, n, 4.75), left(n, n, 0.0), swept(n * (n + 1) / 2, 1, 0.0);
    matrix *squares = &a, *ag = &left;
    byDefinition(x, n, n, [&](int, int) { return random.uniform(-1.0, 1.0); });
    for (const int rank : {n, (n + 1) / 2}) {  // of few columns it is the Moore-Penrose inverse
      int found = 58;
      M_ProductATrA(&x, n, rank, squares);
      EXPECT_TRUE(M_InvGeneralized(&a, n, &g, 1e-9, found) == 0 && found == rank);
      M_ProductAB(&a, n, n, &g, n, ag);
      const double condition = std::sqrt(M_FrobeniusNorm(&a, n, n, &a) * M_FrobeniusNorm(&g, n, n, &g));
      EXPECT_LT(residual(n, at(left), at(a), at(a)), 3.0 * condition);
      EXPECT_LT(residual(n, at(g), at(left), at(g)), 3.0 * condition);
      EXPECT_LT(residual(n, at(left), identity, transposed(left)), 3.0 * condition);
    }
    const Packed<Elements> cells{{swept}};  // in the end minus the inverse, swept once more itself
    const auto s = [&](int i, int j) -> double { return cells(i - 1, j - 1); };
    for (int k = 0; k < n * n; ++k) cells(k / n, k % n) = k % (n + 1) == 0 ? n + 1.0 : x.values[k];
    byDefinition(a, n, n, s);
    const auto before = copyOf(swept);
    for (int k = 1; k <= n; ++k) M_Sweep(&swept, n, k);
    EXPECT_LT(residual(n, at(a), s, [](int i, int j) { return -identity(i, j); }), 3.0);
    for (int k = n; k >= 1; --k) M_Sweep(&swept, n, k);
    EXPECT_THAT(cellsOf(swept), testing::Pointwise(testing::DoubleNear(n * 1e-15), cellsOf(*before)));
  }
}

TEST(Elimination, SmallTablesByHand) {
  const auto a = cells(2, 2, {0, 1, 1, 0}), b = cells(2, 1, {3, 5}), s = cells(3, 1, {4, 2, 3});
  const auto diagonal = cells(2, 2, {2, 0, 0, 0}), c = cells(3, 3, {4, 9, 2, 9, 9, 9, 2, 9, 5}),
             zeros = cells(3, 3, std::vector<double>(9, 0.0));
  EXPECT_TRUE(M_Gauss(a.get(), 2, 1, b.get()) == 0 && holds(*b, 2, 1, {5, 3}));
  EXPECT_TRUE(M_Sweep(s.get(), 2, 1) == 0 && holds(*s, 3, 1, {-0.25, 0.5, 2}));
  matrix g(3, 2, 4.75), *inverse = nullptr;
  int rank = 58;
  EXPECT_TRUE(M_InvGeneralized(diagonal.get(), 2, &g, 1e-10, rank) == 0 && rank == 1);
  EXPECT_TRUE(holds(g, 3, 2, {0.5, 0, 4.75, 0, 0, 4.75}));
  const auto second = cells(3, 1, {0, 5, 0}), two = cells(3, 1, {1, 5, 0}), all = cells(3, 1, {1, 5, 1});
  EXPECT_EQ(cCleanConstraintsAndInvert(3, second.get(), c.get(), inverse), 0);
  const std::unique_ptr<matrix> made(inverse);
  EXPECT_TRUE(holds(*inverse, 3, 3, {0.3125, 0, -0.125, 0, 0, 0, -0.125, 0, 0.25}));
  EXPECT_EQ(cCleanConstraintsAndInvertTriang(3, second.get(), c.get(), 0, inverse), 0);
  EXPECT_TRUE(holds(*inverse, 3, 3, {0.25, 0, 0, 0, 0, 0, -0.1, 0, 0.2}));
  EXPECT_EQ(cCleanConstraintsAndInvertTriang(3, second.get(), c.get(), 1, inverse), 0);
  EXPECT_EQ(cCleanConstraintsAndInvertTriang(3, two.get(), zeros.get(), 1, inverse), -1);
  EXPECT_EQ(cCleanConstraintsAndInvert(3, second.get(), zeros.get(), inverse), -1);
  EXPECT_TRUE(holds(*inverse, 3, 3, {0.25, 0, -0.1, 0, 0, 0, 0, 0, 0.2}));  // as it was
  EXPECT_EQ(cCleanConstraintsAndInvert(3, two.get(), zeros.get(), inverse), 0);
  EXPECT_TRUE(holds(*inverse, 3, 3, {0, 0, 0, 0, 0, 0, 0, 0, 1 / 1e-12}));
  EXPECT_TRUE(cCleanConstraintsAndInvert(3, all.get(), c.get(), inverse) == 0 && same(*inverse, *zeros));
  const auto hilbert = cells(3, 3, {1, 1. / 2, 1. / 3, 1. / 2, 1. / 3, 1. / 4, 1. / 3, 1. / 4, 1. / 5});
  const std::vector<double> whole = {9, -36, 30, -36, 192, -180, 30, -180, 180};
  EXPECT_EQ(cCleanConstraintsAndInvert(3, zeros.get(), hilbert.get(), inverse), 0);
  EXPECT_THAT(cellsOf(*inverse), testing::Pointwise(testing::DoubleNear(1e-11), whole));
}
