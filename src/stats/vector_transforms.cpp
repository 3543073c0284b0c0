#include "kavoratb1c/stats/vector_transforms.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <memory>
#include <new>

#include "access/results.h"
#include "access/usable.h"
#include "kavoratb1c/stats/vector_moments.h"
#include "kavoratb1c/stats/vector_sums.h"
#include "numerics/scalar.h"

using namespace kav;

namespace {

/// target[i] = of(i) for all n cells.
template <class Of>
void fill(matrix* target, int n, Of of) {
  block::Target cells(target, n);
  for (int i = 0; i < n; ++i) cells[i] = of(i);
  cells.store();
}

/// target[i] = of(x[i]) where the cell is present and not excluded, the marker elsewhere.
template <class Of>
void fillUsable(const matrix* x, int n, const short* exclude, matrix* target, Of of) {
  const usable::Cells cells(x, n);
  const bool given = usable::given(n, exclude);
  const usable::PresentNotExcluded use(cells, exclude);
  fill(target, n, [&](int i) { return given && use(i) ? of(cells[i]) : kMissing; });
}

void norm(matrix* x, int n, double sumOfSquares, double value) {
  const double length = scalar::sqr(sumOfSquares);
  const block::Values cells(x, n);
  fill(x, n, [&](int i) { return cells[i] / length * value; });
}

void standardize(const matrix* x, int n, const short* exclude, const matrix* w, short unbiased,
                 matrix* target) {
  double mean, deviation;
  const bool known = V_MeanStdev(x, n, &mean, &deviation, exclude, w, unbiased, kFalse) == kTrue;
  const bool varies = deviation > 0.0;
  fillUsable(x, n, known ? exclude : nullptr, target,
             [&](double cell) { return varies ? (cell - mean) / deviation : 0.0; });
}

void rescale(const matrix* x, int n, double lower, double upper, const short* exclude, matrix* target) {
  double min = std::numeric_limits<double>::infinity();
  double max = -min;
  if (usable::given(n, exclude)) {
    const usable::Cells cells(x, n);
    usable::forEach(n, usable::PresentNotExcluded(cells, exclude), [&](int i) {
      min = std::min(min, cells[i]);
      max = std::max(max, cells[i]);
    });
  }
  fillUsable(x, n, exclude, target, [&](double cell) {
    if (min == max) return lower;
    return cell == max ? upper : lower + (cell - min) / (max - min) * (upper - lower);
  });
}

void replace(const matrix* x, int n, double from, double to, matrix* target) {
  const block::Values cells(x, n);
  fill(target, n, [&](int i) { return cells[i] == from ? to : cells[i]; });
}

void multiply(const matrix* x, int n, const matrix* y, matrix* target) {
  const block::Values a(x, n), b(y, n);
  fill(target, n, [&](int i) { return a[i] * b[i]; });
}

}  // namespace

void V_PlusVal(matrix* x, int n, double value, const short* exclude) {
  if (usable::given(n, exclude)) {
    fillUsable(x, n, exclude, x, [&](double cell) { return cell + value; });
  }
}

void V_Norm(matrix* x, int n) { norm(x, n, V_SumSq(x, n), 1.0); }

void V_NormW(matrix* x, int n, const matrix* w) { norm(x, n, V_SumSqW(x, n, w), 1.0); }

void V_NormToVal(matrix* x, int n, double value) { norm(x, n, V_SumSq(x, n), value); }

void V_NormToValW(matrix* x, int n, double value, const matrix* w) { norm(x, n, V_SumSqW(x, n, w), value); }

void V_Standardize(const matrix* x, int n, const short* exclude, const matrix* w, short unbiased,
                   matrix*& out) {
  results::keep(out, n, 1);
  standardize(x, n, exclude, w, unbiased, out);
}

void V_Standardize2(matrix* x, int n, const short* exclude, const matrix* w, short unbiased) {
  standardize(x, n, exclude, w, unbiased, x);
}

void V_Rescale(const matrix* x, int n, double lower, double upper, const short* exclude, matrix*& out) {
  results::keep(out, n, 1);
  rescale(x, n, lower, upper, exclude, out);
}

void V_Rescale2(matrix* x, int n, double lower, double upper, const short* exclude) {
  rescale(x, n, lower, upper, exclude, x);
}

void V_ReplaceVal(const matrix* x, int n, double from, double to, matrix*& out) {
  results::keep(out, n, 1);
  replace(x, n, from, to, out);
}

void V_ReplaceVal2(matrix* x, int n, double from, double to) { replace(x, n, from, to, x); }

void V_ProductV1V2(const matrix* x, int n, const matrix* y, matrix*& out) {
  results::keep(out, n, 1);
  multiply(x, n, y, out);
}

void V_ProductV1V22(matrix* x, int n, const matrix* y) { multiply(x, n, y, x); }

void V_ProductV1TrV2(const matrix* x, int n, const matrix* y, matrix*& out) {
  const block::Values a(x, n), b(y, n);
  results::keep(out, n, n);
  block::Target table(out, n, n);
  for (int j = 0; j < n; ++j) {
    double* column = table.column(j);
    for (int i = 0; i < n; ++i) column[i] = a[i] * b[j];
  }
  table.store();
}

void V_ProductHorizV1V2(const matrix* x, int p1, const matrix* y, int p2, matrix*& out, int p) {
  const auto size = static_cast<int>(std::clamp<std::int64_t>(p, 0, addressing::cellCount(p1, p2)));
  const block::Values a(x, p1), b(y, p2);
  results::keep(out, size, 1);
  fill(out, size, [&](int k) { return a[k / p2] * b[k % p2]; });
}

void V_ProductHorizV1V22(matrix*& x, int* p1, const matrix* y, int p2) {
  if (p1 == nullptr || *p1 < 1 || p2 < 1) return;
  const std::int64_t cells = addressing::cellCount(*p1, p2);
  if (cells > std::numeric_limits<int>::max()) throw std::bad_alloc();
  const auto size = static_cast<int>(cells);
  matrix* product = nullptr;
  V_ProductHorizV1V2(x, *p1, y, p2, product, size);
  const std::unique_ptr<matrix> owner(product);
  results::keep(x, size, 1);
  product->copyMatTo(x);
  *p1 = size;
}
