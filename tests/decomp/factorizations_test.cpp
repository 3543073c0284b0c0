// The triangular factors and what is made of them: cholesky.h, lu.h, inverse_triangular.h.

#include <limits>

#include "kavoratb1c/decomp/cholesky.h"
#include "kavoratb1c/decomp/inverse_triangular.h"
#include "kavoratb1c/decomp/lu.h"
#include "support/residuals.h"

using namespace kav;

using namespace square;

namespace {

using Variables = std::vector<int>;  // 1-based

int choleskyByDefinition(const matrix& a, const Variables& kept, matrix& l) {
  for (auto i = kept.begin(); i != kept.end(); ++i) {
    for (auto j = i; j != kept.end(); ++j) {
      double s = a.vbget(*i, *j);
      for (auto k = i; k != kept.begin(); --k) s -= l.vbget(*i, k[-1]) * l.vbget(*j, k[-1]);
      if (j == i ? s < 0.0 : l.vbget(*i, *i) == 0.0) return -1;
      l.vbset(*j, *i, j == i ? std::sqrt(s) : s / l.vbget(*i, *i));
    }
  }
  return 0;
}

short luByDefinition(matrix& a, int n, matrix& index, double& parity) {
  matrix scale(n, 1, 0.0);
  parity = 1.0;
  for (int i = 1; i <= n; ++i) {
    double big = 0.0;
    for (int j = 1; j <= n; ++j) big = std::fabs(a.vbget(i, j)) > big ? std::fabs(a.vbget(i, j)) : big;
    if (big == 0.0) return -1;
    scale.vbset(i, 1, 1.0 / big);
  }
  for (int j = 1; j <= n; ++j) {
    int pivot = 0;
    double big = 0.0;
    for (int i = 1; i <= n; ++i) {
      double sum = a.vbget(i, j);
      for (int k = 1; k < std::min(i, j); ++k) sum -= a.vbget(i, k) * a.vbget(k, j);
      a.vbset(i, j, sum);
      const double size = scale.vbget(i, 1) * std::fabs(a.vbget(i, j));
      if (i >= j && size >= big) big = size, pivot = i;
    }
    if (pivot == 0) return 1;
    for (int k = 1; k <= n && pivot != j; ++k) exchange(a, pivot, k, j, k);
    if (pivot != j) parity = -parity, scale.vbset(pivot, 1, scale.vbget(j, 1));
    index.vbset(j, 1, pivot);
    if (a.vbget(j, j) == 0.0) a.vbset(j, j, 1e-20);
    const double reciprocal = 1.0 / a.vbget(j, j);
    for (int i = j + 1; i <= n; ++i) a.vbset(i, j, a.vbget(i, j) * reciprocal);
  }
  return 0;
}

int inverseByDefinition(const matrix& t, int n, bool lower, matrix& inverse, double tolerance) {
  for (int i = 1; i <= n; ++i) {
    if (std::fabs(t.vbget(i, i)) < tolerance) return -1;
    inverse.vbset(i, i, 1.0 / t.vbget(i, i));
  }
  for (int i = 1; i <= n; ++i) {
    for (int j = lower ? 1 : i + 1; j <= (lower ? i - 1 : n); ++j) {
      double sum = 0.0;
      for (int k = j; k < i; ++k) sum += t.vbget(i, k) * inverse.vbget(k, j);
      for (int k = i; k < j; ++k) sum += inverse.vbget(i, k) * t.vbget(k, j);
      inverse.vbset(i, j, -sum / t.vbget(std::max(i, j), std::max(i, j)));
    }
  }
  return 0;
}

}  // namespace

TEST(Factorizations, EqualTheirDefinitionBitForBitAndLeaveSmallResiduals) {
  int results[10] = {};
  forAllTables(61, [&](int n, int shape, const matrix& a, Random& random) {
    const double exclusions[] = {0.0, 0.0, 0.0, -0.0, 1.0, -2.0, NAN, 1e-300};
    matrix excluded(n - (random.below(5) == 0), 1, 0.0);  // a cell outside excludes as well
    Variables all, kept;
    for (int i = 0; i < n; ++i) {
      excluded.setElement(i, exclusions[random.below(n % 3 == 0 ? 4 : 8)]);
      all.push_back(i + 1);
      if (excluded.getElement(i) == 0.0) kept.push_back(i + 1);
    }
    // What is flagged is refilled all the same, and stays 0.0 then. Without the excluded it is all or
    // nothing.
    const int own = shape == kFlagged ? kFlagged : kExact;
    const auto l = container(n, n, own, 4.75), lKept = copyOf(*l), expected = container(n, n, own, 0.0);
    matrix *held = l.get(), *heldKept = lKept.get(), expectedKept(n, n, 0.0);
    const int result = choleskyByDefinition(a, all, *expected);
    const int keptResult = choleskyByDefinition(a, kept, expectedKept);
    for (int k = 0; k < n * n; ++k) {
      if (l->missing[k]) expectedKept.values[k] = 0.0;
      if (keptResult != 0) expectedKept.values[k] = lKept->values[k];
    }
    EXPECT_EQ(M_CholDecomp(&a, n, held), result);
    EXPECT_TRUE(same(*l, *expected));
    EXPECT_EQ(M_CholDecompCleaned(&a, n, &excluded, heldKept), keptResult);
    EXPECT_TRUE(same(*lKept, expectedKept) && held == l.get() && heldKept == lKept.get());
    const auto mirrored = [&](int i, int j) { return a.vbget(std::min(i, j), std::max(i, j)); };
    const bool whole = shape <= kLarger;
    EXPECT_LT(whole && result == 0 ? residual(n, at(*l), transposed(*l), mirrored) : 0.0, 3.0);

    const auto inverse = container(n, n, shape, 4.75), expectedInverse = copyOf(*inverse);
    const int lower = random.below(3) - 1;
    const double tolerance = random.below(2) == 0 ? 0.0 : 0.125;
    held = inverse.get();
    const int inverted = inverseByDefinition(a, n, lower != 0, *expectedInverse, tolerance);
    EXPECT_EQ(M_InverseTriang(&a, n, static_cast<short>(lower), held, tolerance), inverted);
    EXPECT_TRUE(same(*inverse, *expectedInverse) && held == inverse.get());

    const auto lu = copyOf(a), expectedLu = copyOf(a), rows = copyOf(a), index = container(n, 2, shape, 4.75),
               expectedIndex = copyOf(*index);
    matrix *table = lu.get(), *indexOut = index.get();
    double parity = 58.0, expectedParity = 0.0;
    short status = 58, expectedStatus = luByDefinition(*expectedLu, n, *expectedIndex, expectedParity);
    M_LUDecomp(table, n, indexOut, parity, status);
    EXPECT_TRUE(status == expectedStatus && parity == expectedParity && same(*lu, *expectedLu));
    EXPECT_TRUE(same(*index, *expectedIndex) && table == lu.get() && indexOut == index.get());
    ++results[result + 1], ++results[keptResult + 3], ++results[inverted + 5], ++results[status + 7];
    for (int k = 0; k < n * n && status == 0; ++k) {
      exchange(*rows, k / n + 1, k % n + 1, static_cast<int>(index->vbget(k / n + 1, 1)), k % n + 1);
    }
    const auto unitLower = [&](int i, int k) { return i > k ? lu->vbget(i, k) : identity(i, k); };
    const auto upper = [&](int k, int j) { return k <= j ? lu->vbget(k, j) : 0.0; };
    EXPECT_LT(whole && status == 0 ? residual(n, unitLower, upper, at(*rows)) : 0.0, 3.0);

    // By the logarithms of the diagonal, so in the same bits.
    const double determinant = status == 0 ? parity * M_DeterminantTriang(expectedLu.get(), n, status) : 0.0;
    const double actual = M_Determinant(&a, n, status);
    EXPECT_TRUE(!whole || (bits::equal(actual, determinant) && status == expectedStatus));
    results[9] += determinant < 0.0;
  });
  for (const int count : results) EXPECT_GT(count, 50);
}

TEST(Factorizations, ClosedFormsAndSmallTables) {
  short status = 58;
  const double hilbert[] = {1.0, 1.0, 12.0, 2160.0, 6048000.0, 266716800000.0};
  for (int n = 1; n <= 28; ++n) {
    // Pascal's table is its binomials times their transpose, all of them whole numbers.
    matrix pascal(n, n, 1.0), binomials(n, n, 0.0), inverse(n, n, 0.0), l(n, n, 0.0);
    matrix *root = &l, *out = &inverse;
    byDefinition(pascal, n, n, [&](int i, int j) {
      return i == 1 || j == 1 ? 1.0 : pascal.vbget(i - 1, j) + pascal.vbget(i, j - 1);
    });
    byDefinition(binomials, n, n, [&](int i, int j) { return i < j ? 0.0 : pascal.vbget(i - j + 1, j); });
    EXPECT_TRUE(M_CholDecomp(&pascal, n, root) == 0 && same(l, binomials));
    EXPECT_EQ(M_DeterminantTriang(root, n, status), 1.0);
    EXPECT_EQ(M_InverseTriang(root, n, -1, out, 1.0), 0);  // the tolerance itself passes
    for (int k = 0; k < n * n; ++k) l.values[k] *= (k % n + k / n) % 2 == 0 ? 1.0 : -1.0;
    EXPECT_EQ(cellsOf(inverse), cellsOf(l));
    if (n > 5) continue;
    EXPECT_NEAR(M_Determinant(&pascal, n, status), 1.0, 1e-10);
    byDefinition(pascal, n, n, [](int i, int j) { return 1.0 / (i + j - 1); });
    EXPECT_NEAR(M_Determinant(&pascal, n, status) * hilbert[n], 1.0, 1e-10) << n;
  }
  matrix other(3, 1, 4.75), *l = &other;
  EXPECT_EQ(M_CholDecomp(cells(2, 2, {4, -9, 2, 1}).get(), 2, l), 0);  // one triangle counts
  const std::unique_ptr<matrix> made(l == &other ? nullptr : l);
  EXPECT_TRUE(holds(*l, 2, 2, {2, 1, 0, 0}));
  EXPECT_TRUE(M_CholDecomp(cells(2, 2, {1, 2, 2, 1}).get(), 2, l) == -1 && holds(*l, 2, 2, {1, 2, 0, 0}));
  EXPECT_EQ(M_Determinant(l, std::numeric_limits<int>::max(), status), -kMissing);  // no memory
  EXPECT_EQ(status, -1);
  EXPECT_TRUE(M_Determinant(l, -3, status) == 1.0 && M_DeterminantTriang(l, 0, status) == 1.0 && status == 0);
  EXPECT_EQ(M_Determinant(cells(2, 2, {0, 1, 1, 0}).get(), 2, status), -1.0);
  EXPECT_NEAR(M_DeterminantTriang(cells(2, 2, {-2, 0, 0, 3}).get(), 2, status), -6.0, 1e-14);
  EXPECT_EQ(M_DeterminantTriang(cells(2, 2, {-2, 5, 5, 0}).get(), 2, status), 0.0);
  const auto three = cells(3, 3, {4, 9, 1, 9, 9, 9, 2, 9, 5}), second = cells(3, 1, {0, 7, 0});
  EXPECT_NEAR(M_DeterminantCleaned(three.get(), 3, second.get(), status), 18.0, 1e-13);
  // A pivot of 0.0 is no failure; the rows tie, so they change places.
  EXPECT_NEAR(M_Determinant(cells(2, 2, {1, 1, 1, 1}).get(), 2, status) * 1e20, -1.0, 1e-13);
}
