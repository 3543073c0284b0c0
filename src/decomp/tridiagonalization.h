// Householder reduction of a symmetric matrix in plain memory to tridiagonal form, several columns at a time.
// Each cell takes the operations of the plain form in eigen.cpp, in their order. Internal.
#pragma once

#include <vector>

#include "numerics/plain_elements.h"

namespace kav::householder {

/// A symmetric matrix reduced to tridiagonal form, and the transformations accumulated.
class Tridiagonalization {
 public:
  /// @param a  n x n, both triangles; becomes the orthogonal matrix
  Tridiagonalization(const elements::Plain& a, int n);

  /// d of the diagonal; e[k] beside d[k - 1] and d[k].
  std::vector<double> d, e;

 private:
  void reduceRow(int i);
  void updateLeading(int size, const double* w, double* product);
  void accumulate(const std::vector<double>& squares);

  /// Of row i, i cells.
  double* reflector(int i) { return rows_.data() + std::ptrdiff_t{n_} * i; }

  elements::Plain a_;
  int n_;
  std::vector<double> rows_;  ///< reflectors, n cells for each
  const double* pending_ =
      nullptr;  ///< reflector that the leading block still has to take off; null: nothing
  std::vector<double> share_, product_;  ///< what of it, and the same in the making
};

}  // namespace kav::householder
