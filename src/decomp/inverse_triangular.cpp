#include "kavoratb1c/decomp/inverse_triangular.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "access/block.h"
#include "access/checked_elements.h"
#include "access/results.h"

using namespace kav;

namespace {

/// As it is defined, cell by cell.
template <class Cells>
void invert(const block::Values& t, int n, bool lower, const Cells& inverse) {
  const auto at = [&](int i, int j) { return t.column(j)[i]; };
  for (int i = 0; i < n; ++i) {
    for (int j = lower ? 0 : i + 1; j < (lower ? i : n); ++j) {
      const int begin = lower ? j : i, end = lower ? i : j;
      double sum = 0.0;
      for (int k = begin; k < end; ++k) sum += lower ? at(i, k) * inverse(k, j) : inverse(i, k) * at(k, j);
      inverse.set(i, j, -sum / at(end, end));
    }
  }
}

/// The same of an upper triangle, column by column, the sums of a column side by side. The lower one is its
/// mirror: products of two factors are the same either way round.
///
/// @param t      t(k, j) for k <= j
/// @param cells  the inverse, n x n, its diagonal given
template <class Triangle>
void invertUpper(Triangle t, int n, double* cells) {
  std::vector<double> sums(static_cast<std::size_t>(n));
  const auto column = [=](int j) { return cells + std::ptrdiff_t{n} * j; };
  for (int j = 1; j < n; ++j) {
    std::fill(sums.begin(), sums.end(), 0.0);
    for (int k = 0; k < j; ++k) {
      const double factor = t(k, j);
      const double* known = column(k);
      for (int i = 0; i <= k; ++i) sums[static_cast<std::size_t>(i)] += known[i] * factor;
    }
    for (int i = 0; i < j; ++i) column(j)[i] = -sums[static_cast<std::size_t>(i)] / t(j, j);
  }
}

}  // namespace

int M_InverseTriang(const matrix* t, int n, short lower, matrix*& inverse, double tolerance) {
  results::keepAny(inverse, n, n);
  if (n < 1) return 0;
  const block::Values cells(t, n, n);
  for (int i = 0; i < n; ++i) {
    const double diagonal = cells.column(i)[i];
    if (std::fabs(diagonal) < tolerance) return -1;
    inverse->setElement(i, i, 1.0 / diagonal);
  }
  if (!block::isPlain(inverse, n, n)) {
    invert(cells, n, lower != 0, elements::Checked(inverse));
    return 0;
  }
  matrix upper(n, n);
  for (int i = 0; i < n; ++i) upper.values[(std::ptrdiff_t{n} + 1) * i] = inverse->getElement(i, i);
  if (lower != 0) {
    invertUpper([&](int k, int j) { return cells.column(k)[j]; }, n, upper.values);
  } else {
    invertUpper([&](int k, int j) { return cells.column(j)[k]; }, n, upper.values);
  }
  for (int j = 1; j < n; ++j) {
    const double* column = upper.values + std::ptrdiff_t{n} * j;
    for (int i = 0; i < j; ++i) {
      if (lower != 0) {
        inverse->setElement(j, i, column[i]);
      } else {
        inverse->setElement(i, j, column[i]);
      }
    }
  }
  return 0;
}
