#pragma once

#include <cmath>

#include "definitions/cells.h"

namespace definitions {

/// a = l . l', of a the upper triangle is read. Returns 0, or -1 where a is not positive definite.
template <class Table, class Factor>
int cholesky(const Table& a, int n, const Factor& l) {
  for (int i = 0; i < n; ++i) {
    for (int j = i; j < n; ++j) {
      double sum = a(i, j);
      for (int k = i - 1; k >= 0; --k) sum -= l(i, k) * l(j, k);
      if (j == i ? sum < 0.0 : l(i, i) == 0.0) return -1;
      l(j, i) = j == i ? std::sqrt(sum) : sum / l(i, i);
    }
  }
  return 0;
}

/// The inverse of a triangular table. Returns 0, or -1 at the first cell of the diagonal below the tolerance.
template <class Table, class Inverse>
int invertTriangular(const Table& t, int n, bool lower, const Inverse& inverse, double tolerance) {
  for (int i = 0; i < n; ++i) {
    if (std::fabs(t(i, i)) < tolerance) return -1;
    inverse(i, i) = 1.0 / t(i, i);
  }
  for (int i = 0; i < n; ++i) {
    for (int j = lower ? 0 : i + 1; j < (lower ? i : n); ++j) {
      double sum = 0.0;
      for (int k = j; k < i; ++k) sum += t(i, k) * inverse(k, j);
      for (int k = i; k < j; ++k) sum += inverse(i, k) * t(k, j);
      inverse(i, j) = -sum / t(std::max(i, j), std::max(i, j));
    }
  }
  return 0;
}

}  // namespace definitions
