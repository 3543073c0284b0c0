#include "kavoratb1c/decomp/lu.h"

#include <limits>

#include "definitions/lu.h"
#include "support/residuals.h"

using namespace kav;

using namespace square;

TEST(Lu, FactorsAndDeterminantsEqualTheirDefinitionBitForBit) {
  int results[3] = {}, negative = 0;
  forAllTables(63, [&](int n, int shape, const matrix& a, Random&) {
    const auto lu = copyOf(a), expected = copyOf(a), rows = copyOf(a), index = container(n, 2, shape, 4.75),
               expectedIndex = copyOf(*index);
    matrix *table = lu.get(), *indexOut = index.get();
    double parity = 58.0, expectedParity = 0.0;
    short status = 58;
    const int expectedStatus =
        definitions::luFactors(definitions::Elements{*expected}, n, expectedParity,
                               [&](int j, int row) { expectedIndex->setElement(j, row + 1.0); });
    M_LUDecomp(table, n, indexOut, parity, status);
    EXPECT_TRUE(status == expectedStatus && parity == expectedParity && same(*lu, *expected));
    EXPECT_TRUE(same(*index, *expectedIndex) && table == lu.get() && indexOut == index.get());
    ++results[status + 1];
    if (shape > kLarger) return;
    if (status == 0) {
      for (int k = 0; k < n * n; ++k) {
        const int i = k / n, row = static_cast<int>(index->getElement(i)) - 1;
        definitions::exchange(definitions::Elements{*rows}, i, k % n, row, k % n);
      }
      const auto unitLower = [&](int i, int k) { return i > k ? lu->vbget(i, k) : identity(i, k); };
      const auto upper = [&](int k, int j) { return k <= j ? lu->vbget(k, j) : 0.0; };
      EXPECT_LT(residual(n, unitLower, upper, at(*rows)), 3.0);
    }
    // By the logarithms of the diagonal, so in the same bits.
    const double determinant = status == 0 ? parity * M_DeterminantTriang(expected.get(), n, status) : 0.0;
    EXPECT_TRUE(bits::equal(M_Determinant(&a, n, status), determinant) && status == expectedStatus);
    negative += determinant < 0.0;
  });
  for (const int count : {results[0], results[1], results[2], negative}) EXPECT_GT(count, 50);
}

TEST(Lu, DeterminantsOfClosedForm) {
  short status = 58;
  const double hilbert[] = {1.0, 1.0, 12.0, 2160.0, 6048000.0, 266716800000.0};
  for (int n = 1; n <= 28; ++n) EXPECT_EQ(M_DeterminantTriang(binomials(n).get(), n, status), 1.0);
  for (int n = 1; n <= 5; ++n) {
    matrix a(n, n, 0.0);
    byDefinition(a, n, n, [](int i, int j) { return 1.0 / (i + j - 1); });
    EXPECT_NEAR(M_Determinant(&a, n, status) * hilbert[n], 1.0, 1e-10) << n;
    EXPECT_NEAR(M_Determinant(pascalsTable(n).get(), n, status), 1.0, 1e-10);
  }
}

TEST(Lu, DeterminantsOfSmallTables) {
  short status = 58;
  const auto some = cells(2, 2, {1, 2, 0, 0});
  EXPECT_EQ(M_Determinant(some.get(), std::numeric_limits<int>::max(), status), -kMissing);  // no memory
  EXPECT_EQ(status, -1);
  EXPECT_EQ(M_Determinant(some.get(), -3, status), 1.0);
  EXPECT_EQ(M_DeterminantTriang(some.get(), 0, status), 1.0);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(M_Determinant(cells(2, 2, {0, 1, 1, 0}).get(), 2, status), -1.0);
  EXPECT_NEAR(M_DeterminantTriang(cells(2, 2, {-2, 0, 0, 3}).get(), 2, status), -6.0, 1e-14);
  EXPECT_EQ(M_DeterminantTriang(cells(2, 2, {-2, 5, 5, 0}).get(), 2, status), 0.0);
  const auto three = cells(3, 3, {4, 9, 1, 9, 9, 9, 2, 9, 5}), second = cells(3, 1, {0, 7, 0});
  EXPECT_NEAR(M_DeterminantCleaned(three.get(), 3, second.get(), status), 18.0, 1e-13);
  // A pivot of 0.0 is no failure; the rows tie, so they change places.
  EXPECT_NEAR(M_Determinant(cells(2, 2, {1, 1, 1, 1}).get(), 2, status) * 1e20, -1.0, 1e-13);
}
