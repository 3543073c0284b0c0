// LU decomposition with implicitly scaled partial pivoting, panel by panel. Internal.
//
// Every cell subtracts its terms one by one in ascending order, whichever loop is outside: panels of columns
// are decomposed by columns, and the rest is updated by matrix products that accumulate into what the cells
// hold.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>
#include <vector>

#include "kernels/kernels.h"
#include "numerics/scratch.h"

namespace kav::lu {

/// Columns that are decomposed before the others follow.
inline constexpr int kPanel = 48;

/// The reciprocals of the rows' largest cells.
///
/// @return false when a row is all 0.0
template <class Cells>
bool rowScales(const Cells& a, int n, double* scales) {
  for (int i = 0; i < n; ++i) {
    double big = 0.0;
    for (int j = 0; j < n; ++j) big = std::max(big, std::fabs(a(i, j)));
    if (big == 0.0) return false;
    scales[i] = 1.0 / big;
  }
  return true;
}

/// The pivot of column j: of equal candidates the last, -1 where NaN leaves none.
template <class Cells>
int pivotRow(const Cells& a, int n, const double* scales, int j) {
  int pivot = -1;
  double big = 0.0;
  for (int i = j; i < n; ++i) {
    const double candidate = scales[i] * std::fabs(a(i, j));
    if (candidate >= big) {
      big = candidate;
      pivot = i;
    }
  }
  return pivot;
}

/// A square matrix, column-major, that subtracts products of its own columns.
class Panels {
 public:
  Panels(double* cells, int n) : cells_(cells), n_(n), minusOnes_(kPanel, -1.0) {}

  double* column(int j) const { return cells_ + std::ptrdiff_t{n_} * j; }

  /// Decomposes the table.
  ///
  /// @param pivotOf  pivotOf(j): the row to exchange with row j, or -1 to give up
  /// @param finish   finish(j): divides column j below its diagonal; false to give up
  template <class PivotOf, class Finish>
  bool decompose(PivotOf pivotOf, Finish finish) {
    for (int begin = 0; begin < n_; begin += kPanel) {
      const int end = begin + std::min(kPanel, n_ - begin);
      for (int j = begin; j < end; ++j) {
        subtractColumns(begin, j, j, n_);
        const int pivot = pivotOf(j);
        if (pivot < 0) return false;
        if (pivot != j) {
          for (int k = 0; k < n_; ++k) std::swap(column(k)[pivot], column(k)[j]);
        }
        if (!finish(j)) return false;
      }
      for (int j = end; j < n_; ++j) subtractColumns(begin, end, j, end);
      if (end == n_) break;
      subtract({column(begin) + end, 1, n_}, {column(end) + begin, 1, n_}, n_ - end, n_ - end, end - begin,
               column(end) + end);
    }
    return true;
  }

  /// c -= a . b, continuing c's sums, whose columns are as far apart as the table's; the depth is at most a
  /// panel's.
  void subtract(const kernels::View& a, const kernels::View& b, int rows, int columns, int depth,
                double* c) const {
    const kernels::Product product = {a, b, minusOnes_.data(), 1, rows, columns, depth, c, n_, false, true};
    Scratch<double> scratch(kernels::productScratch(product));
    kernels::best().product(product, scratch.data());
  }

 private:
  /// Takes columns begin .. end-1 off column j, each below its diagonal and above row last.
  void subtractColumns(int begin, int end, int j, int last) const {
    double* a = column(j);
    for (int k = begin; k < end; ++k) {
      const double* factors = column(k);
      for (int i = k + 1; i < last; ++i) a[i] -= factors[i] * a[k];
    }
  }

  double* cells_;
  int n_;
  std::vector<double> minusOnes_;
};

}  // namespace kav::lu
