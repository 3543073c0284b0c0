// Square tables of many kinds in containers of many shapes, and residuals of products of tables.
#pragma once

#include <cmath>

#include "numerics/thresholds.h"
#include "support/test_matrices.h"

using namespace kav;

namespace square {

/// Containers are as large as the block, larger, a column short, a row short so that columns overlap, or as
/// large with flagged cells, the same ones in each of a size.
inline constexpr int kExact = 0, kLarger = 1, kColumnShort = 2, kRowShort = 3, kFlagged = 4, kShapes = 5;

inline std::unique_ptr<matrix> container(int n, int p, int shape, double v) {
  const int rows = n + 3 * (shape == kLarger) - (shape == kRowShort), more = 2 * (shape == kLarger);
  auto m = std::make_unique<matrix>(rows, p + more - (shape == kColumnShort), v);
  Random random(static_cast<std::uint64_t>(n + p));
  for (int k = 0; k < n * p && shape == kFlagged; ++k) m->setMissing(k, random.below(n * p / 3 + 1) == 0);
  return m;
}

/// check(n, shape, table, random) around the blocks in which tables are worked on, large ones mostly as fast
/// paths take them: any, ties, zeros, graded, with cells or a column of no numbers; dominant diagonals with
/// a row and column of zeros, or a negative cell, first, in the middle and last; tables by name.
template <class Check>
void forAllTables(std::uint64_t seed, Check check) {
  Random random(seed);
  const double inf = std::numeric_limits<double>::infinity(), notNumbers[] = {inf, -inf, NAN};
  for (const int n : {0, 1, 2, 3, 5, 11, 12, 13, 16, 17, 24, 25, 33, 48, 49, 50, 97}) {
    for (int round = 0; round < 12 * kShapes; ++round) {
      const int kind = round / kShapes, shape = round % kShapes, broken = kind % 3 * n / 2 - kind % 3 / 2;
      if (n > 17 && shape != (n + kind) % 2 && (shape < 2 || random.below(10) > 0)) continue;
      SCOPED_TRACE(testing::Message() << n << ", kind " << kind << ", shape " << shape);
      const auto m = container(n, n, shape, 0.0);
      for (int k = 0; k < addressing::cellCount(*m); ++k) {
        const int i = k % m->nX, j = k / m->nX;
        const bool unusual = random.below(n * n + 1) == 0, here = i == broken || j == broken;
        const double any = random.uniform(-1.0, 1.0), dominant = i == j ? n + any : any;
        const double kinds[] = {9.0 * any,
                                random.below(5) - 2.0,
                                (i + j) % 3 == 0 ? -0.0 : 0.0,
                                dominant * std::pow(10.0, (i + j) % 7 - 3),
                                unusual ? notNumbers[random.below(3)] : dominant,
                                j == n / 2 ? NAN : dominant,
                                here ? 0.0 : dominant,
                                here && i == j ? -1.0 : dominant};
        m->values[k] = kinds[kind < 6 ? kind : kind < 9 ? 6 : 7];
      }
      check(n, shape, *m, random);
    }
    for (const auto& type : test_matrices::kTypes) {
      SCOPED_TRACE(testing::Message() << n << ", " << type.name);
      if (n < 18 || random.below(8) == 0) check(n, kExact, *test_matrices::make(type, n, n), random);
    }
  }
}

inline std::unique_ptr<matrix> cells(int rows, int columns, std::vector<double> byColumns) {
  return std::make_unique<matrix>(rows, columns, byColumns.data(), true, 0, 0);
}

inline testing::AssertionResult same(const matrix& actual, const matrix& expected) {
  return holds(actual, expected.nX, expected.pX, cellsOf(expected));
}

/// Sums of binomials of the row and the column, and binomials themselves below the diagonal: whole numbers.
inline std::unique_ptr<matrix> pascalsTable(int n) {
  auto a = std::make_unique<matrix>(n, n, 1.0);
  byDefinition(*a, n, n, [&](int i, int j) {
    return i == 1 || j == 1 ? 1.0 : a->vbget(i - 1, j) + a->vbget(i, j - 1);
  });
  return a;
}

inline std::unique_ptr<matrix> binomials(int n) {
  const auto pascal = pascalsTable(n);
  auto a = std::make_unique<matrix>(n, n, 0.0);
  byDefinition(*a, n, n, [&](int i, int j) { return i < j ? 0.0 : pascal->vbget(i - j + 1, j); });
  return a;
}

inline auto at(const matrix& m) {
  return [&m](int i, int j) { return m.vbget(i, j); };
}

inline auto transposed(const matrix& m) {
  return [&m](int i, int j) { return m.vbget(j, i); };
}

inline double identity(int i, int j) { return i == j ? 1.0 : 0.0; }

/// The largest cell of left.right - target over n, the largest cells of both and the machine epsilon; 0.0
/// where those are zero or not finite.
template <class Left, class Right, class Target>
double residual(int n, Left left, Right right, Target target) {
  double largest[3] = {};
  const auto take = [&](int of, double x) {
    largest[of] = std::max(largest[of], std::isnan(x) ? HUGE_VAL : std::fabs(x));
  };
  for (int k = 0; k < n * n; ++k) {
    const int i = k % n + 1, j = k / n + 1;
    double cell = -target(i, j);
    for (int l = 1; l <= n; ++l) cell += left(i, l) * right(l, j);
    take(0, left(i, j));
    take(1, right(i, j));
    take(2, cell);
  }
  const double scale = n * largest[0] * largest[1] * kEpsilon;
  return scale > 0.0 && scale < HUGE_VAL ? largest[2] / scale : 0.0;
}

}  // namespace square
