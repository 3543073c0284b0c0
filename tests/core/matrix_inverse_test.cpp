#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <utility>

#include "core/contents.h"
#include "support/random.h"

namespace {

using Cell = std::function<double(int, int)>;

void fill(matrix& m, const Cell& cell) {
  for (int j = 0; j < m.pX; ++j) {
    for (int i = 0; i < m.nX; ++i) m.setElement(i, j, cell(i, j));
  }
}

/// Crout's decomposition row by row, then one substitution per unit vector.
int inverseByDefinition(const matrix& source, matrix& out, double tiny) {
  const int n = source.nX;
  matrix lu(n, n, 0.0), scale(n, 1, 0.0), places(n, 1, 0.0), x(n, 1, 0.0);
  source.copyMatTo(&lu);
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
    for (int i = 0; i < n; ++i) {
      x.values[i] = places.values[i] == c ? 1.0 : 0.0;
      for (int k = 0; k < i; ++k) x.values[i] -= a(i, k) * x.values[k];
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
  return largest / (a.nX * normA * normB * std::numeric_limits<double>::epsilon());
}

}  // namespace

TEST(MatrixInverse, EqualsItsDefinitionBitForBit) {
  Random random(51);
  int singularTables = 0;
  for (int round = 0; round < 130; ++round) {
    const int n = round < 120 ? 1 + round / 3 : 96 + round % 10;
    SCOPED_TRACE(testing::Message() << n << ", round " << round);
    // Random cells; few small integers, where pivots tie and rows repeat; rows of very different size.
    matrix a(n, n, 0.0), out(n, n, 4.75), expected(n, n, 4.75);
    const auto size = [&](int i) { return round % 3 == 2 ? std::pow(10.0, i % 7 - 3) : 1.0; };
    fill(a, [&](int i, int) {
      return round % 3 == 1 ? random.below(5) - 2.0 : random.uniform(-9.0, 9.0) * size(i);
    });
    for (matrix* m : {&out, &expected}) m->setMissing(n / 2, n / 3, true);
    const bool loose = round % 2 == 0;
    const int result = inverseByDefinition(a, expected, loose ? 1e-8 : 2.220446049250313e-16);
    const std::vector<double> before = cellsOf(a);
    short singular = 58;
    EXPECT_EQ(a.inverse1(&out, singular, loose ? 1e-300 : round % 4 == 1 ? 0.0 : -1.0), result);
    EXPECT_EQ(singular, result == 0 ? 58 : -1);
    EXPECT_TRUE(holds(out, n, n, cellsOf(expected)));
    EXPECT_TRUE(holds(a, n, n, before));
    singularTables += result != 0;
  }
  EXPECT_GT(singularTables, 0);
}

TEST(MatrixInverse, LeavesASmallResidual) {
  Random random(52);
  const auto cells = [&](int kind, int n) -> Cell {
    if (kind == 0) return [](int i, int j) { return i == j ? 1.0 : 0.0; };
    if (kind == 1) return [](int i, int j) { return i == j ? 2.385 * std::pow(-7.0, i) : 0.0; };
    if (kind == 2) return [](int i, int j) { return 1.0 / (i + j + 1); };
    if (kind == 3) return [&](int, int) { return random.uniform(-5.0, 5.0); };
    if (kind == 4)
      return [&](int i, int j) { return random.uniform(1.0, 2.0) * std::pow(10.0, (i - j) % 4); };
    return [n](int i, int j) { return j == (5 * i + 3) % n ? 1.75 + i : 0.0; };
  };
  for (int kind = 0; kind < 6; ++kind) {
    for (const int n : {2, 3, 4, 6, 7, 8, 24}) {
      if (kind == 2 && n > 8) continue;
      SCOPED_TRACE(testing::Message() << "kind " << kind << ", n = " << n);
      matrix a(n, n, 0.0), out(n, n, 0.0);
      fill(a, cells(kind, n));
      short singular = 0;
      ASSERT_EQ(a.inverse1(&out, singular, 0.0), 0);
      EXPECT_LT(residual(a, out), 3.0);
      ASSERT_EQ(a.inverse1(&a, singular, 0.0), 0);
      EXPECT_TRUE(holds(a, n, n, cellsOf(out)));
    }
  }
}

TEST(MatrixInverse, RefusesSingularTablesAndKeepsTheResult) {
  for (int row = 0; row < 3; ++row) {
    matrix a(3, 3, 0.0), out(3, 3, 4.75);
    fill(a, [&](int i, int j) { return i == row ? 0.0 : 2.385 + (i + 1) * j * j; });
    short singular = 0;
    EXPECT_EQ(a.inverse1(&out, singular, 0.0), -1) << row;
    EXPECT_EQ(singular, -1);
    EXPECT_TRUE(holds(out, 3, 3, std::vector<double>(9, 4.75)));
  }
  // Pivots between the thresholds: first, and last.
  for (int place = 0; place < 2; ++place) {
    for (const double pivot : {1e-9, 1e-8, 1.0000001e-8, 2.220446049250313e-16, 2.3e-16}) {
      matrix a(2, 2, 0.0), out(2, 2, 4.75);
      fill(a, [&](int i, int j) { return i != j ? 0.0 : i == place ? pivot : 4.5; });
      short singular = 0;
      EXPECT_EQ(a.inverse1(&out, singular, 1e-12), pivot > 1e-8 ? 0 : -1) << place << ": " << pivot;
      EXPECT_EQ(a.inverse1(&out, singular, -1e-12), pivot > 2.220446049250313e-16 ? 0 : -1) << pivot;
    }
  }
}

TEST(MatrixInverse, EndsOnNotANumber) {
  for (int place = 0; place < 9; ++place) {
    matrix a(3, 3, 0.0), out(3, 3, 4.75);
    fill(a, [&](int i, int j) { return i + 3 * j == place ? std::nan("") : 2.385 + (i + 1) * j * j - i; });
    short singular = 0;
    const int result = a.inverse1(&out, singular, 0.0);
    bool found = result == -1;
    for (const double cell : cellsOf(out)) found = found || std::isnan(cell);
    EXPECT_TRUE(found) << place;
  }
}
