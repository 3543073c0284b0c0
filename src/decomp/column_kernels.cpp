// Sums and updates of segments of columns, element by element.

#include "kavoratb1c/decomp/column_kernels.h"

#include <cmath>

#include "core/addressing.h"
#include "numerics/norm.h"
#include "numerics/scalar.h"

using namespace kav;

namespace {

/// Cells of a container, one behind the other by a step.
class Segment {
 public:
  Segment(matrix* m, int row, int column, int step)
      : m_(m), row_(row - std::int64_t{1}), column_(column), step_(step) {}

  double operator[](int k) const {
    const std::int64_t row = rowOf(k);
    return m_ == nullptr || row != static_cast<int>(row) ? kOutside
                                                         : m_->getElement(static_cast<int>(row), column_ - 1);
  }
  void set(int k, double x) const {
    const std::int64_t row = rowOf(k);
    if (m_ != nullptr && row == static_cast<int>(row)) m_->setElement(static_cast<int>(row), column_ - 1, x);
  }

 private:
  std::int64_t rowOf(int k) const { return row_ + std::int64_t{k} * step_; }

  matrix* m_;
  std::int64_t row_;
  int column_, step_;
};

/// Only to be read.
Segment segmentOf(const matrix* m, int row, int column, int step) {
  return {const_cast<matrix*>(m), row, column, step};
}

}  // namespace

double ddot(int n, const matrix* x, int stepX, const matrix* y, int stepY, int rowX, int columnX, int rowY,
            int columnY, short) {
  const Segment a = segmentOf(x, rowX, columnX, stepX), b = segmentOf(y, rowY, columnY, stepY);
  double sum = 0.0;
  for (int k = 0; k < n; ++k) sum += a[k] * b[k];
  return sum;
}

void daxpy(int n, double a, const matrix* x, int stepX, matrix* y, int stepY, int rowX, int columnX, int rowY,
           int columnY) {
  const Segment from = segmentOf(x, rowX, columnX, stepX), to(y, rowY, columnY, stepY);
  for (int k = 0; k < n; ++k) to.set(k, to[k] + a * from[k]);
}

void dscal(int n, double a, matrix* x, int step, int row, int column, short) {
  const Segment cells(x, row, column, step);
  for (int k = 0; k < n; ++k) cells.set(k, a * cells[k]);
}

void drot(int n, matrix* x, int stepX, matrix* y, int stepY, double c, double s, int columnX, int columnY) {
  const Segment a(x, 1, columnX, stepX), b(y, 1, columnY, stepY);
  for (int k = 0; k < n; ++k) {
    const double cellX = a[k], cellY = b[k];
    a.set(k, c * cellX + s * cellY);
    b.set(k, c * cellY - s * cellX);
  }
}

void drotg(double& a, double& b, double& c, double& s) {
  const bool larger = std::fabs(a) > std::fabs(b);
  const double roe = larger ? a : b;
  const double scale = std::fabs(a) + std::fabs(b);
  if (scale == 0.0) {
    c = 1.0;
    s = a = b = 0.0;
    return;
  }
  const double x = a / scale, y = b / scale;
  const double r = scalar::FSign(scale * scalar::sqr(x * x + y * y), roe);
  c = a / r;
  s = b / r;
  a = r;
  b = larger ? s : c != 0.0 ? 1.0 / c : 1.0;
}

double DNRM2(int n, const matrix* x, int step, int row, int column, short) {
  const Segment cells = segmentOf(x, row, column, step);
  return step < 1 ? 0.0 : scaledNorm(n, [&](int k) { return cells[k]; });
}

void M_SwapVectors(int n, matrix* x, int stepX, matrix* y, int stepY, int columnX, int columnY) {
  const Segment a(x, 1, columnX, stepX), b(y, 1, columnY, stepY);
  for (int k = 0; k < n; ++k) {
    const double cell = a[k];
    a.set(k, b[k]);
    b.set(k, cell);
  }
}
