#pragma once

#include <cmath>
#include <utility>
#include <vector>

#include "definitions/cells.h"

namespace definitions {

/// Gauss-Jordan elimination with full pivoting: a becomes its inverse, b (n x m) the solutions.
///
/// @return 0, or -2 at the first pivot of 0.0
template <class Table>
int eliminate(const Table& a, int n, const Table& b, int m) {
  std::vector<int> uses(static_cast<std::size_t>(n));
  std::vector<std::pair<int, int>> pivots;
  int* const used = uses.data();
  for (int pass = 0; pass < n; ++pass) {
    int row = pass, c = pass;  // where NaN leaves no candidate
    double most = 0.0;
    for (int i = 0; i < n; ++i) {
      for (int j = 0; j < n && used[i] != 1; ++j) {
        if (used[j] != 0 || !(std::fabs(a(i, j)) >= most)) continue;
        most = std::fabs(a(i, j));
        row = i;
        c = j;
      }
    }
    ++used[c];
    pivots.emplace_back(row, c);
    for (int j = 0; j < n && row != c; ++j) exchange(a, row, j, c, j);
    for (int j = 0; j < m && row != c; ++j) exchange(b, row, j, c, j);
    if (a(c, c) == 0.0) return -2;
    const double reciprocal = 1.0 / a(c, c);
    a(c, c) = 1.0;
    for (int j = 0; j < n; ++j) a(c, j) *= reciprocal;
    for (int j = 0; j < m; ++j) b(c, j) *= reciprocal;
    for (int i = 0; i < n; ++i) {
      if (i == c) continue;
      const double factor = a(i, c);
      a(i, c) = 0.0;
      for (int j = 0; j < n; ++j) a(i, j) -= factor * a(c, j);
      for (int j = 0; j < m; ++j) b(i, j) -= factor * b(c, j);
    }
  }
  for (; !pivots.empty(); pivots.pop_back()) {
    const auto [j, k] = pivots.back();
    for (int i = 0; i < n && j != k; ++i) exchange(a, i, j, i, k);
  }
  return 0;
}

/// Sweeps a packed table of q variables on variable k.
template <class Table>
void sweep(const Packed<Table>& s, int q, int k) {
  const double d = s(k, k), sign = d < 0.0 ? -1.0 : 1.0;
  s(k, k) = -1.0 / d;
  for (int i = 0; i < q; ++i) {
    const double a = s(i, k);
    if (i != k) s(i, k) = a / std::fabs(d);
    for (int j = 0; j <= i; ++j) {
      const double cell = s(i, j) - a * s(j, k) * sign;
      if (i != k && j != k) s(i, j) = std::fabs(cell) < 1e-12 ? 0.0 : cell;
    }
  }
}

}  // namespace definitions
