#include "kavoratb1c/decomp/inverse_triangular.h"

#include "definitions/cholesky.h"
#include "support/residuals.h"

using namespace kav;

using namespace square;

TEST(InverseTriangular, EqualsItsDefinitionBitForBit) {
  int results[2] = {};
  forAllTables(62, [&](int n, int shape, const matrix& a, Random& random) {
    const auto inverse = container(n, n, shape, 4.75), expected = copyOf(*inverse);
    const auto lower = static_cast<short>(random.below(3) - 1);
    const double tolerance = random.below(2) == 0 ? 0.0 : 0.125;
    matrix* held = inverse.get();
    const int result = definitions::invertTriangular(definitions::elementsOf(a), n, lower != 0,
                                                     definitions::Elements{*expected}, tolerance);
    EXPECT_EQ(M_InverseTriang(&a, n, lower, held, tolerance), result);
    EXPECT_TRUE(same(*inverse, *expected) && held == inverse.get());
    ++results[result + 1];
  });
  EXPECT_TRUE(results[0] > 50 && results[1] > 50);
}

TEST(InverseTriangular, OfBinomialsAreBinomialsOfBothSigns) {
  for (int n = 1; n <= 28; ++n) {
    const auto l = binomials(n), inverse = container(n, n, kExact, 0.0);
    matrix* out = inverse.get();
    EXPECT_EQ(M_InverseTriang(l.get(), n, -1, out, 1.0), 0);  // the tolerance itself passes
    for (int k = 0; k < n * n; ++k) l->values[k] *= (k % n + k / n) % 2 == 0 ? 1.0 : -1.0;
    EXPECT_EQ(cellsOf(*inverse), cellsOf(*l));
  }
}
