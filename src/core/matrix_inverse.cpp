// The inverse by LU decomposition.

#include <algorithm>
#include <cmath>
#include <iterator>
#include <vector>

#include "core/addressing.h"
#include "kavoratb1c/matrix.h"
#include "kernels/kernels.h"
#include "numerics/lu_panels.h"
#include "numerics/plain_elements.h"
#include "numerics/scratch.h"
#include "numerics/thresholds.h"

using namespace kav;

namespace {

/// Pivots up to this absolute value are zero. Only the sign of the tolerance counts; callers rely on it.
double pivotThreshold(double tol) { return tol > 0.0 ? 1e-8 : kEpsilon; }

class LuDecomposition {
 public:
  LuDecomposition(const matrix& a, double tol)
      : n_(std::max(a.nX, 0)),
        cells_(addressing::elementsInMemory<double>(n_, n_)),
        places_(static_cast<std::size_t>(n_)),
        panels_(cells_.data(), n_) {
    copyCells(a);
    singular_ = !decompose(pivotThreshold(tol));
  }

  bool isSingular() const { return singular_; }

  /// The inverse by the element rule.
  void invertInto(matrix& out) const {
    const std::vector<double> u = upperByRows();
    const std::vector<double> y = inverseOfLower();
    const kernels::Table& kernel = kernels::best();
    Scratch<double> x(static_cast<std::size_t>(std::ptrdiff_t{n_} * kernel.sides));
    // Column c of the inverse comes from the unit vector that the exchanges took to place stepOf[c].
    std::vector<int> stepOf(places_.size());
    for (int step = 0; step < n_; ++step) {
      stepOf[static_cast<std::size_t>(places_[static_cast<std::size_t>(step)])] = step;
    }
    for (int first = 0; first < n_; first += kernel.sides) {
      const int count = std::min(kernel.sides, n_ - first);
      for (int i = 0; i < n_; ++i) {
        double* row = x.data() + std::ptrdiff_t{kernel.sides} * i;
        const double* known = y.data() + std::ptrdiff_t{n_} * i;
        std::transform(stepOf.data() + first, stepOf.data() + first + count, row,
                       [=](int step) { return known[step]; });
        std::fill(row + count, row + kernel.sides, 0.0);
      }
      kernel.backSubstitute(u.data(), n_, x.data());
      for (int c = 0; c < count; ++c) {
        for (int i = 0; i < n_; ++i) out.setElement(i, first + c, x[std::ptrdiff_t{kernel.sides} * i + c]);
      }
    }
  }

 private:
  /// A flagged cell counts as 0.0, one outside the container reads -1.0.
  void copyCells(const matrix& a) {
    const auto inside =
        static_cast<std::ptrdiff_t>(std::min<std::int64_t>(addressing::cellCount(a), std::ssize(cells_)));
    std::transform(a.values, a.values + inside, a.missing, cells_.begin(),
                   [](double x, bool flagged) { return flagged ? 0.0 : x; });
    std::fill(cells_.begin() + inside, cells_.end(), kOutside);
  }

  double* column(int j) { return cells_.data() + std::ptrdiff_t{n_} * j; }
  const double* column(int j) const { return cells_.data() + std::ptrdiff_t{n_} * j; }

  bool decompose(double tiny) {
    const elements::Plain a(cells_.data(), n_);
    std::vector<double> scales(places_.size());
    if (!lu::rowScales(a, n_, scales.data())) return false;
    for (int i = 0; i < n_; ++i) places_[static_cast<std::size_t>(i)] = i;
    const auto pivotOf = [&](int j) {
      // The diagonal where NaN leaves no candidate.
      const int pivot = std::max(lu::pivotRow(a, n_, scales.data(), j), j);
      std::swap(places_[static_cast<std::size_t>(pivot)], places_[static_cast<std::size_t>(j)]);
      scales[static_cast<std::size_t>(pivot)] = scales[static_cast<std::size_t>(j)];
      return pivot;
    };
    return panels_.decompose(pivotOf, [&](int j) {
      double* cells = column(j);
      if (std::fabs(cells[j]) <= tiny) return false;
      for (int i = j + 1; i < n_; ++i) cells[i] /= cells[j];
      return true;
    });
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
    const int step = finite ? lu::kPanel : n_;
    for (int begin = 0; begin < n_; begin += step) {
      const int end = std::min(begin + step, n_);
      double* rows = y.data() + std::ptrdiff_t{n_} * begin;
      for (int k = 0; k < begin; k += lu::kPanel) {
        panels_.subtract({y.data() + std::ptrdiff_t{n_} * k, 1, n_}, {column(k) + begin, n_, 1}, begin,
                         end - begin, std::min(lu::kPanel, begin - k), rows);
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
  lu::Panels panels_;
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
