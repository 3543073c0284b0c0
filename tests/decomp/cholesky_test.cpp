#include "kavoratb1c/decomp/cholesky.h"

#include "definitions/cholesky.h"
#include "support/residuals.h"

using namespace kav;

using namespace square;

namespace {

using definitions::Elements, definitions::elementsOf;

/// Of a table the rows and columns that are kept, 0-based.
struct Kept {
  auto operator()(int i, int j) const { return all(rows[i], rows[j]); }

  Elements all;
  const int* rows;
};

}  // namespace

TEST(Cholesky, EqualsItsDefinitionBitForBitAndLeavesASmallResidual) {
  int results[2] = {}, keptResults[2] = {};
  forAllTables(61, [&](int n, int shape, const matrix& a, Random& random) {
    const double exclusions[] = {0.0, 0.0, 0.0, -0.0, 1.0, -2.0, NAN, 1e-300};
    matrix excluded(n - (random.below(5) == 0), 1, 0.0);  // a cell outside excludes as well
    std::vector<int> kept;
    for (int i = 0; i < n; ++i) {
      excluded.setElement(i, exclusions[random.below(n % 3 == 0 ? 4 : 8)]);
      if (excluded.getElement(i) == 0.0) kept.push_back(i);
    }
    // What is flagged is refilled all the same, and stays 0.0 then. Without the excluded it is all or nothing.
    const int own = shape == kFlagged ? kFlagged : kExact, count = static_cast<int>(kept.size());
    const auto l = container(n, n, own, 4.75), lKept = copyOf(*l), expected = container(n, n, own, 0.0);
    matrix *held = l.get(), *heldKept = lKept.get(), expectedKept(n, n, 0.0);
    const int result = definitions::cholesky(elementsOf(a), n, Elements{*expected});
    const int keptResult = definitions::cholesky(Kept{elementsOf(a), kept.data()}, count,
                                                 Kept{Elements{expectedKept}, kept.data()});
    for (int k = 0; k < n * n; ++k) {
      if (l->missing[k]) expectedKept.values[k] = 0.0;
      if (keptResult != 0) expectedKept.values[k] = lKept->values[k];
    }
    EXPECT_EQ(M_CholDecomp(&a, n, held), result);
    EXPECT_TRUE(same(*l, *expected));
    EXPECT_EQ(M_CholDecompCleaned(&a, n, &excluded, heldKept), keptResult);
    EXPECT_TRUE(same(*lKept, expectedKept) && held == l.get() && heldKept == lKept.get());
    ++results[result + 1];
    ++keptResults[keptResult + 1];
    if (shape > kLarger || result != 0) return;
    const auto mirrored = [&](int i, int j) { return a.vbget(std::min(i, j), std::max(i, j)); };
    EXPECT_LT(residual(n, at(*l), transposed(*l), mirrored), 3.0);
  });
  for (const int count : {results[0], results[1], keptResults[0], keptResults[1]}) EXPECT_GT(count, 50);
}

// Pascal's table is its binomials times their transpose, all of them whole numbers.
TEST(Cholesky, FactorsOfPascalsTablesAreBinomials) {
  for (int n = 1; n <= 28; ++n) {
    const auto pascal = pascalsTable(n), l = container(n, n, kExact, 4.75);
    matrix* root = l.get();
    EXPECT_TRUE(M_CholDecomp(pascal.get(), n, root) == 0 && same(*l, *binomials(n))) << n;
  }
}

TEST(Cholesky, OneTriangleCountsAndWhatIsFoundStays) {
  matrix other(3, 1, 4.75), *l = &other;
  EXPECT_EQ(M_CholDecomp(cells(2, 2, {4, -9, 2, 1}).get(), 2, l), 0);
  const std::unique_ptr<matrix> made(l == &other ? nullptr : l);
  EXPECT_TRUE(holds(*l, 2, 2, {2, 1, 0, 0}));
  EXPECT_TRUE(M_CholDecomp(cells(2, 2, {1, 2, 2, 1}).get(), 2, l) == -1 && holds(*l, 2, 2, {1, 2, 0, 0}));
}
