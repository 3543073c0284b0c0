// The inverse by LU decomposition. Every cell subtracts its terms one by one in ascending order, whichever
// loop is outside: panels of columns are decomposed by columns, and the rest is updated by products of tables
// that go on from what the cells hold.

#include <algorithm>
#include <cmath>
#include <vector>

#include "core/block.h"
#include "core/matrix.h"
#include "core/scratch.h"
#include "core/thresholds.h"
#include "kernels/kernels.h"

namespace {

/// Pivots up to this absolute value are zero. Only the sign of the tolerance counts; callers rely on it.
double pivotThreshold(double tol) { return tol > 0.0 ? 1e-8 : kEpsilon; }

/// Columns that are decomposed before the others follow.
constexpr int kPanel = 48;

class LuDecomposition {
 public:
  LuDecomposition(const matrix& a, double tol)
      : n_(std::max(a.nX, 0)),
        cells_(addressing::elementsInMemory<double>(n_, n_)),
        places_(static_cast<std::size_t>(n_)),
        minusOnes_(kPanel, -1.0),
        tiny_(pivotThreshold(tol)) {
    const block::Values source(&a, n_, n_);
    for (int j = 0; j < n_; ++j) std::copy_n(source.column(j), n_, column(j));
    singular_ = !decompose();
  }

  bool isSingular() const { return singular_; }

  /// The inverse by the element rule.
  void invertInto(matrix& out) const {
    const std::vector<double> u = upperByRows();
    const std::vector<double> y = inverseOfLower();
    const kernels::Table& kernel = kernels::best();
    Scratch<double> x(static_cast<std::size_t>(std::ptrdiff_t{n_} * kernel.sides));
    for (int first = 0; first < n_; first += kernel.sides) {
      const int count = std::min(kernel.sides, n_ - first);
      for (int i = 0; i < n_; ++i) {
        double* row = x.data() + std::ptrdiff_t{kernel.sides} * i;
        std::copy_n(y.data() + std::ptrdiff_t{n_} * i + first, count, row);
        std::fill(row + count, row + kernel.sides, 0.0);
      }
      kernel.backSubstitute(u.data(), n_, x.data());
      for (int c = 0; c < count; ++c) {
        const int target = places_[static_cast<std::size_t>(first) + static_cast<std::size_t>(c)];
        for (int i = 0; i < n_; ++i) out.setElement(i, target, x[std::ptrdiff_t{kernel.sides} * i + c]);
      }
    }
  }

 private:
  double* column(int j) { return cells_.data() + std::ptrdiff_t{n_} * j; }
  const double* column(int j) const { return cells_.data() + std::ptrdiff_t{n_} * j; }

  bool decompose() {
    std::vector<double> scale(static_cast<std::size_t>(n_));
    for (int i = 0; i < n_; ++i) {
      double big = 0.0;
      for (int j = 0; j < n_; ++j) big = std::max(big, std::fabs(column(j)[i]));
      if (big == 0.0) return false;
      scale[static_cast<std::size_t>(i)] = 1.0 / big;
      places_[static_cast<std::size_t>(i)] = i;
    }
    for (int begin = 0; begin < n_; begin += kPanel) {
      const int end = std::min(begin + kPanel, n_);
      if (!decomposePanel(begin, end, scale)) return false;
      for (int j = end; j < n_; ++j) subtractColumns(begin, end, j, end);
      subtractPanel(begin, end);
    }
    return true;
  }

  /// Columns begin .. end-1, from row begin on; what the columns before take off has been taken.
  bool decomposePanel(int begin, int end, std::vector<double>& scale) {
    for (int j = begin; j < end; ++j) {
      double* a = column(j);
      subtractColumns(begin, j, j, n_);
      const int pivot = pivotRow(a, scale, j);
      if (pivot != j) {
        for (int k = 0; k < n_; ++k) std::swap(column(k)[pivot], column(k)[j]);
        std::swap(places_[static_cast<std::size_t>(pivot)], places_[static_cast<std::size_t>(j)]);
        scale[static_cast<std::size_t>(pivot)] = scale[static_cast<std::size_t>(j)];
      }
      if (std::fabs(a[j]) <= tiny_) return false;
      for (int i = j + 1; i < n_; ++i) a[i] /= a[j];
    }
    return true;
  }

  /// Takes columns begin .. end-1 off column j, each below its diagonal and above row last.
  void subtractColumns(int begin, int end, int j, int last) {
    double* a = column(j);
    for (int k = begin; k < end; ++k) {
      const double* factors = column(k);
      for (int i = k + 1; i < last; ++i) a[i] -= factors[i] * a[k];
    }
  }

  /// Takes a panel off everything below and to the right of it.
  void subtractPanel(int begin, int end) {
    if (end >= n_) return;
    add({column(begin) + end, 1, n_}, {column(end) + begin, 1, n_}, n_ - end, n_ - end, end - begin,
        column(end) + end);
  }

  /// c -= a . b, continuing c's sums; the depth is at most a panel's.
  void add(const kernels::View& a, const kernels::View& b, int rows, int columns, int depth,
           double* c) const {
    const kernels::Product product = {a, b, minusOnes_.data(), 1, rows, columns, depth, c, n_, false, true};
    Scratch<double> scratch(kernels::productScratch(product));
    kernels::best().product(product, scratch.data());
  }

  /// Of equal candidates the last; the diagonal where NaN leaves none.
  static int pivotRow(const double* a, const std::vector<double>& scale, int j) {
    int pivot = j;
    double big = 0.0;
    for (std::size_t i = static_cast<std::size_t>(j); i < scale.size(); ++i) {
      const double candidate = scale[i] * std::fabs(a[i]);
      if (candidate >= big) {
        big = candidate;
        pivot = static_cast<int>(i);
      }
    }
    return pivot;
  }

  /// U row after row, as back substitution reads it.
  std::vector<double> upperByRows() const {
    std::vector<double> rows(cells_.size());
    for (int j = 0; j < n_; ++j) {
      for (int i = 0; i <= j; ++i) rows[static_cast<std::size_t>(std::ptrdiff_t{n_} * i + j)] = column(j)[i];
    }
    return rows;
  }

  /// The inverse of L, row after row. Cell (i, c) starts at 0.0, 1.0 on the diagonal, and takes off
  /// L(i, k) y(k, c) for k = c .. i-1. Where L is finite the terms before k = c would not change it.
  std::vector<double> inverseOfLower() const {
    std::vector<double> y(cells_.size());
    const bool finite = std::all_of(cells_.begin(), cells_.end(), [](double x) { return std::isfinite(x); });
    const int step = finite ? kPanel : n_;
    for (int begin = 0; begin < n_; begin += step) {
      const int end = std::min(begin + step, n_);
      double* rows = y.data() + std::ptrdiff_t{n_} * begin;
      for (int k = 0; k < begin; k += kPanel) {
        add({y.data() + std::ptrdiff_t{n_} * k, 1, n_}, {column(k) + begin, n_, 1}, begin, end - begin,
            std::min(kPanel, begin - k), rows);
      }
      for (int i = begin; i < end; ++i) {
        double* row = y.data() + std::ptrdiff_t{n_} * i;
        row[i] = 1.0;
        for (int k = begin; k < i; ++k) {
          const double factor = column(k)[i];
          const double* known = y.data() + std::ptrdiff_t{n_} * k;
          for (int c = 0; c <= k; ++c) row[c] -= factor * known[c];
        }
      }
    }
    return y;
  }

  int n_;
  std::vector<double> cells_;
  std::vector<int> places_;
  std::vector<double> minusOnes_;
  double tiny_;
  bool singular_;
};

}  // namespace

int matrix::inverse1(matrix* out, short& singular, double tol) const {
  const LuDecomposition lu(*this, tol);
  if (lu.isSingular()) {
    singular = kTrue;
    return -1;
  }
  if (out != nullptr) lu.invertInto(*out);
  return 0;
}
