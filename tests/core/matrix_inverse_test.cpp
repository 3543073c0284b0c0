#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "core/contents.h"
#include "numerics/thresholds.h"
#include "support/random.h"

using namespace kav;

namespace {

/// Crout's decomposition row by row, then one substitution per unit vector, from its first non-zero cell on.
int inverseByDefinition(const matrix& source, matrix& out, double tiny) {
  const int n = source.nX;
  matrix lu(n, n, 0.0), scale(n, 1, 0.0), places(n, 1, 0.0), x(n, 1, 0.0);
  for (int k = 0; k < n * n; ++k) lu.values[k] = source.getElement(k);
  const auto a = [&](int i, int j) -> double& { return lu.values[i + n * j]; };
  for (int i = 0; i < n; ++i) {
    double big = 0.0;
    for (int j = 0; j < n; ++j) big = std::max(big, std::fabs(a(i, j)));
    if (big == 0.0) return -1;
    scale.values[i] = 1.0 / big, places.values[i] = i;
  }
  for (int j = 0; j < n; ++j) {
    int pivot = j;
    double big = 0.0;
    for (int i = 0; i < n; ++i) {
      for (int k = 0; k < std::min(i, j); ++k) a(i, j) -= a(i, k) * a(k, j);
      const double candidate = i < j ? -1.0 : scale.values[i] * std::fabs(a(i, j));
      if (candidate >= big) big = candidate, pivot = i;
    }
    for (int k = 0; k < n; ++k) std::swap(a(pivot, k), a(j, k));
    std::swap(places.values[pivot], places.values[j]);
    scale.values[pivot] = scale.values[j];
    if (std::fabs(a(j, j)) <= tiny) return -1;
    for (int i = j + 1; i < n; ++i) a(i, j) /= a(j, j);
  }
  for (int c = 0; c < n; ++c) {
    for (int i = 0, first = n; i < n; ++i) {
      if (places.values[i] == c) first = i;
      x.values[i] = i == first ? 1.0 : 0.0;
      for (int k = first; k < i; ++k) x.values[i] -= a(i, k) * x.values[k];
    }
    for (int i = n - 1; i >= 0; --i) {
      for (int k = i + 1; k < n; ++k) x.values[i] -= a(i, k) * x.values[k];
      out.setElement(i, c, x.values[i] /= a(i, i));
    }
  }
  return 0;
}

/// The largest cell of a.b - I over n, the largest cells of both and the machine epsilon.
double residual(const matrix& a, const matrix& b) {
  double largest = 0.0, normA = 0.0, normB = 0.0;
  for (int i = 0; i < a.nX; ++i) {
    for (int j = 0; j < a.nX; ++j) {
      double cell = i == j ? -1.0 : 0.0;
      for (int k = 0; k < a.nX; ++k) cell += a.getElement(i, k) * b.getElement(k, j);
      largest = std::max(largest, std::fabs(cell));
      normA = std::max(normA, std::fabs(a.getElement(i, j)));
      normB = std::max(normB, std::fabs(b.getElement(i, j)));
    }
  }
  return largest / (a.nX * normA * normB * kEpsilon);
}

}  // namespace

TEST(MatrixInverse, EqualsItsDefinitionBitForBitAndLeavesASmallResidual) {
  Random random(51);
  const double infinity = std::numeric_limits<double>::infinity(), notNumbers[] = {infinity, -infinity, NAN};
  int singularTables = 0, inverses = 0;
  for (int round = 0; round < 240; ++round) {
    const int n = round < 220 ? round / 6 : 86 + round % 20, kind = round % 6;
    SCOPED_TRACE(testing::Message() << n << ", round " << round);
    // Containers with a column less or more, cells that are no numbers.
    matrix a(n, n + (round % 7 == 3) - (round % 7 == 4), 0.0), out(n, n, 4.75), expected(n, n, 4.75);
    for (int i = 0; i < n; ++i) {
      for (int j = 0; j < a.pX; ++j) {
        const double any = random.uniform(-9.0, 9.0);
        a.setElement(i, j,
                     kind == 0   ? any
                     : kind == 1 ? random.below(5) - 2.0  // pivots tie and rows repeat
                     : kind == 2 ? any * std::pow(10.0, i % 7 - 3)
                     : kind == 3 ? 1.0 / (i + j + 1)
                     : kind == 4 ? (i == j ? 2.385 * std::pow(-7.0, i % 9) : 0.0)
                                 : (j == (5 * i + 3) % n ? 1.75 + i : 0.0));
      }
    }
    const bool regular = round % 5 > 1 && a.pX == n;
    if (round % 5 < 2 && n > 0) a.setElement(random.below(n * n), notNumbers[random.below(3)]);
    for (matrix* m : {&out, &expected}) m->setMissing(n / 2, n / 3, !regular);
    const bool loose = round % 4 < 2;
    const int result = inverseByDefinition(a, expected, loose ? 1e-8 : kEpsilon);
    const std::vector<double> before = cellsOf(a);
    short singular = 58;
    EXPECT_EQ(a.inverse1(&out, singular, loose ? 1e-300 : round % 4 == 2 ? 0.0 : -1.0), result);
    EXPECT_EQ(singular, result == 0 ? 58 : -1);
    EXPECT_TRUE(holds(out, n, n, cellsOf(expected)));
    EXPECT_TRUE(holds(a, n, a.pX, before));
    singularTables += result != 0, inverses += result == 0 && round % 5 < 2;
    if (result != 0 || !regular || n == 0) continue;
    EXPECT_LT(residual(a, out), 3.0);
    EXPECT_EQ(a.inverse1(&a, singular, loose), 0);
    EXPECT_TRUE(holds(a, n, n, cellsOf(out)));
  }
  EXPECT_GT(singularTables, 0);
  EXPECT_GT(inverses, 0);
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
