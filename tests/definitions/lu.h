#pragma once

#include <cmath>
#include <utility>
#include <vector>

#include "definitions/cells.h"

namespace definitions {

/// Crout's method with scaled partial pivoting, in place; exchanged(j, row) tells which row came to place j.
///
/// @param tiny  pivots up to that size are none; below 0.0 a pivot of 0.0 becomes 1e-20, and cells are
///              multiplied by the reciprocal of the pivot where they are otherwise divided by it
/// @return 0; -1 for a row of zeros or without a pivot; 1 where NaN leaves no pivot to choose
template <class Table, class Exchanged>
int luFactors(const Table& a, int n, double& parity, Exchanged exchanged, double tiny = -1.0) {
  std::vector<double> scales;
  parity = 1.0;
  for (int i = 0; i < n; ++i) {
    double most = 0.0;
    for (int j = 0; j < n; ++j) most = std::max(most, std::fabs(a(i, j)));
    if (most == 0.0) return -1;
    scales.push_back(1.0 / most);
  }
  double* const scale = scales.data();
  for (int j = 0; j < n; ++j) {
    int pivot = -1;
    double most = 0.0;
    for (int i = 0; i < n; ++i) {
      double sum = a(i, j);
      for (int k = 0; k < std::min(i, j); ++k) sum -= a(i, k) * a(k, j);
      a(i, j) = sum;
      const double size = scale[i] * std::fabs(a(i, j));
      if (i < j || !(size >= most)) continue;
      most = size;
      pivot = i;
    }
    if (pivot < 0 && tiny < 0.0) return 1;
    if (pivot < 0) pivot = j;
    if (pivot != j) {
      for (int k = 0; k < n; ++k) exchange(a, pivot, k, j, k);
      scale[pivot] = scale[j];
      parity = -parity;
    }
    exchanged(j, pivot);
    if (tiny >= 0.0 && std::fabs(a(j, j)) <= tiny) return -1;
    if (a(j, j) == 0.0) a(j, j) = 1e-20;
    const double reciprocal = 1.0 / a(j, j);
    for (int i = j + 1; i < n; ++i) {
      if (tiny < 0.0) {
        a(i, j) *= reciprocal;
      } else {
        a(i, j) /= a(j, j);
      }
    }
  }
  return 0;
}

/// By one substitution for each unit vector, from its cell of 1 on; a becomes its factors. Returns 0, or -1.
template <class Table, class Inverse>
int invert(const Table& a, int n, const Inverse& inverse, double tiny) {
  std::vector<int> rows;
  std::vector<double> solution(static_cast<std::size_t>(n));
  double parity, *const x = solution.data();
  for (int i = 0; i < n; ++i) rows.push_back(i);
  const auto exchanged = [row = rows.data()](int j, int pivot) { std::swap(row[j], row[pivot]); };
  if (luFactors(a, n, parity, exchanged, tiny) != 0) return -1;
  for (int c = 0; c < n; ++c) {
    const auto first = static_cast<int>(std::find(rows.begin(), rows.end(), c) - rows.begin());
    for (int i = 0; i < n; ++i) {
      x[i] = i == first ? 1.0 : 0.0;
      for (int k = first; k < i; ++k) x[i] -= a(i, k) * x[k];
    }
    for (int i = n - 1; i >= 0; --i) {
      for (int k = i + 1; k < n; ++k) x[i] -= a(i, k) * x[k];
      x[i] /= a(i, i);
      inverse(i, c) = x[i];
    }
  }
  return 0;
}

}  // namespace definitions
