#include "kavoratb1c/decomp/cholesky.h"

#include <algorithm>
#include <vector>

#include "access/block.h"
#include "access/checked_elements.h"
#include "access/results.h"
#include "decomp/kept.h"
#include "kernels/kernels.h"
#include "numerics/plain_elements.h"
#include "numerics/scalar.h"
#include "numerics/scratch.h"

using namespace kav;

namespace {

constexpr int kNotPositive = -1;

/// Sizes from which rows of L are computed side by side.
constexpr int kFewRows = 12;

/// As it is defined, column by column of L.
template <class Cells>
int decompose(const block::Values& a, int n, const Cells& l) {
  for (int i = 0; i < n; ++i) {
    for (int j = i; j < n; ++j) {
      double s = a.column(j)[i];
      for (int k = i - 1; k >= 0; --k) s -= l(i, k) * l(j, k);
      if (j == i) {
        if (s < 0.0) return kNotPositive;
        l.set(i, i, scalar::sqr(s));
      } else {
        if (l(i, i) == 0.0) return kNotPositive;
        l.set(j, i, s / l(i, i));
      }
    }
  }
  return 0;
}

/// The same by panels of rows side by side: of a panel each column in turn takes off its terms, from the
/// nearest one down, with the row of L that belongs to it.
class RowPanels {
 public:
  RowPanels(const block::Values& a, int n, const elements::Plain& l)
      : a_(a), n_(n), l_(l), kernel_(kernels::best()), columns_(n) {
    const auto cells = static_cast<std::size_t>(n);
    rows_.resize(cells * (cells + 1) / 2);
    panel_.resize(cells * static_cast<std::size_t>(kernel_.sides));
  }

  int decompose() {
    for (int first = 0; first < n_; first += kernel_.sides) decomposeRows(first);
    return status_;
  }

 private:
  /// A row of L as later panels read it.
  double* row(std::ptrdiff_t i) { return rows_.data() + i * (i + 1) / 2; }
  double* panel(std::ptrdiff_t k) { return panel_.data() + k * kernel_.sides; }

  void decomposeRows(int first) {
    const int used = std::min(kernel_.sides, n_ - first);
    for (int i = 0; i < std::min(columns_, first + used); ++i) {
      // Rows above the diagonal are computed along, but to no use.
      double* cells = panel(i);
      for (int t = 0; t < kernel_.sides; ++t)
        cells[t] = t < used && first + t >= i ? a_.column(first + t)[i] : 0.0;
      const int ownRow = i - first;
      if (ownRow < 0) {
        takeOff(i, row(i), 1);
        divide(i, cells, row(i)[i], first, 0, used);
      } else {
        takeOff(i, panel(0) + ownRow, kernel_.sides);
        if (!root(i, cells, first, ownRow, used)) break;
      }
    }
    for (int t = 0; t < used; ++t) {
      for (int k = 0; k <= std::min(first + t, columns_ - 1); ++k) row(first + t)[k] = panel(k)[t];
    }
  }

  /// Off column i of the panel: factor k times its column k, k = i-1 down to 0.
  void takeOff(std::ptrdiff_t i, const double* factors, std::ptrdiff_t step) {
    if (i == 0) return;
    kernel_.subtractRows({panel(i), factors + step * (i - 1), -step, panel(i - 1), -kernel_.sides, i});
  }

  void divide(int i, double* cells, double by, int first, int begin, int used) {
    for (int t = begin; t < used; ++t) cells[t] /= by;
    std::copy(cells + begin, cells + used, l_.column(i) + first + begin);
  }

  /// The diagonal cell, and those below it. Where there is no root the columns before are completed, no more.
  bool root(int i, double* cells, int first, int ownRow, int used) {
    if (cells[ownRow] < 0.0) return stop(i);
    cells[ownRow] = scalar::sqr(cells[ownRow]);
    l_.set(i, i, cells[ownRow]);
    if (cells[ownRow] == 0.0 && i + 1 < n_) return stop(i);
    divide(i, cells, cells[ownRow], first, ownRow + 1, used);
    return true;
  }

  bool stop(int column) {
    columns_ = column;
    status_ = kNotPositive;
    return false;
  }

  const block::Values& a_;
  int n_;
  elements::Plain l_;
  const kernels::Table& kernel_;
  int columns_;  ///< that can be computed
  int status_ = 0;
  std::vector<double> rows_, panel_;
};

int decomposeInMemory(const block::Values& a, int n, double* l, std::ptrdiff_t stride) {
  const elements::Plain cells(l, stride);
  return n < kFewRows ? decompose(a, n, cells) : RowPanels(a, n, cells).decompose();
}

}  // namespace

int M_CholDecomp(const matrix* a, int n, matrix*& l) {
  results::refill(l, n, n);
  if (n < 1) return 0;
  const block::Values cells(a, n, n);
  if (!block::isPlain(l, n, n)) return decompose(cells, n, elements::Checked(l));
  l->descValid = 0;
  return decomposeInMemory(cells, n, l->values, l->nX);
}

int M_CholDecompCleaned(const matrix* a, int n, const matrix* excluded, matrix*& l) {
  const std::vector<int> kept = kept::variables(excluded, n);
  const auto m = static_cast<int>(kept.size());
  matrix small(m, m), factor(m, m, 0.0);
  kept::extract(a, n, kept, small);
  const int status = decomposeInMemory(block::Values(&small, m, m), m, factor.values, m);
  if (status == 0) kept::scatter(factor, kept, n, l);
  return status;
}
