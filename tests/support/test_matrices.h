// Tables by name that are hard on decompositions, and how far products are from what they should be.
#pragma once

#include <cmath>

#include "numerics/thresholds.h"
#include "support/tables.h"

using namespace kav;

namespace test_matrices {

/// A cell to be made, 0-based, of a square table of n rows; in the lower triangle of a symmetric one.
struct Cell {
  double band(double own, double beside) const { return i == j ? own : i == j + 1 ? beside : 0.0; }
  static double random(int k) { return Random(static_cast<std::uint64_t>(k)).uniform(-1.0, 1.0); }
  double random() const { return random(1000 * i + j); }
  double randomWithout(int row) const { return i == row || j == row ? 0.0 : random(); }
  /// Of both signs, from 1 down to 1 / condition.
  double value(int k, double condition) const {
    return (k % 2 == 0 ? 1.0 : -1.0) * std::pow(condition, n < 2 ? 0.0 : -1.0 * k / (n - 1));
  }
  /// With those eigenvalues, reflected about a random direction.
  double similar(double condition) const {
    double squares = 0.0, form = 0.0;
    for (int k = 0; k < n; ++k) squares += random(k) * random(k);
    for (int k = 0; k < n; ++k) form += 2.0 * random(k) * random(k) / squares * value(k, condition);
    const double sum = value(i, condition) + value(j, condition) - form;
    return band(value(i, condition), 0.0) - 2.0 * random(i) * random(j) / squares * sum;
  }
  double choices(int k) const { return k == 0 ? 1.0 : choices(k - 1) * (i + k) / k; }
  int i, j, n;
};

struct Type {
  const char* name;
  double (*cell)(Cell);
  bool symmetric = true;
};

inline const Type kTypes[] = {
    {"zero", [](Cell) { return 0.0; }},
    {"identity", [](Cell c) { return c.band(1.0, 0.0); }},
    {"diagonal, clustered", [](Cell c) { return c.band(1.0 + 1e-15 * (c.i % 7), 0.0); }},
    {"diagonal, graded", [](Cell c) { return c.band(std::fabs(c.value(c.i, 1e14)), 0.0); }},
    {"diagonal, of both signs", [](Cell c) { return c.band(c.value(c.i, 10.0), 0.0); }},
    {"Hilbert", [](Cell c) { return 1.0 / (1 + c.i + c.j); }},
    {"Pascal", [](Cell c) { return c.choices(c.j); }},
    {"second differences", [](Cell c) { return c.band(2.0, -1.0); }},
    {"random symmetric", [](Cell c) { return c.random(); }},
    {"condition 1", [](Cell c) { return c.similar(1.0); }},
    {"condition 1e4", [](Cell c) { return c.similar(1e4); }},
    {"condition 1e8", [](Cell c) { return c.similar(1e8); }},
    {"condition 1e14", [](Cell c) { return c.similar(1e14); }},
    {"near overflow", [](Cell c) { return 1e303 * c.random(); }},
    {"near underflow", [](Cell c) { return 1e-290 * c.random(); }},
    {"rank deficient", [](Cell c) { return (c.i + 1.0) * (c.j + 1.0) + (c.i % 3 - 1) * (c.j % 3 - 1); }},
    {"zero row first", [](Cell c) { return c.randomWithout(0); }},
    {"zero row in the middle", [](Cell c) { return c.randomWithout(c.n / 2); }},
    {"zero row last", [](Cell c) { return c.randomWithout(c.n - 1); }},
    {"permuted", [](Cell c) { return c.i + c.j == c.n - 1 ? 1.0 : 0.0; }},
    {"all equal", [](Cell) { return -2.5; }},
    {"one pair off the diagonal", [](Cell c) { return c.i - c.j == c.n - 1 ? 3.0 : c.band(1.0, 0.0); }},
    {"random", [](Cell c) { return c.random(); }, false},
};

/// The corner of the type's square table, the same every time.
inline std::unique_ptr<matrix> make(const Type& type, int rows, int columns) {
  auto a = std::make_unique<matrix>(rows, columns, 0.0);
  byDefinition(*a, rows, columns, [&](int i, int j) {
    if (type.symmetric && i < j) std::swap(i, j);
    return type.cell({i - 1, j - 1, std::max(rows, columns)});
  });
  return a;
}

/// Frobenius norm of c - a.b for tables with such cells, 1-based, a having `depth` columns.
template <class A, class B, class C>
double residual(int rows, int columns, int depth, A a, B b, C c) {
  double norm = 0.0;
  for (int cell = 0; cell < rows * columns; ++cell) {
    const int i = cell % rows + 1, j = cell / rows + 1;
    double x = c(i, j);
    for (int k = 1; k <= depth; ++k) x -= a(i, k) * b(k, j);
    norm = std::hypot(norm, x);
  }
  return norm;
}

/// How far the columns of q are from orthonormal, in units of rounding.
inline double deviationFromOrthonormal(const matrix& q) {
  const auto cell = [&](int i, int j) { return q.vbget(i, j); };
  const auto mirror = [&](int i, int j) { return q.vbget(j, i); };
  const auto unit = [](int i, int j) { return i == j ? 1.0 : 0.0; };
  return residual(q.pX, q.pX, q.nX, mirror, cell, unit) / (std::max(1, q.nX) * kEpsilon);
}

}  // namespace test_matrices
