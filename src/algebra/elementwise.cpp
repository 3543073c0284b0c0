#include "algebra/elementwise.h"

#include <emmintrin.h>

#include <algorithm>

#include "algebra/result_blocks.h"
#include "core/scratch.h"

using result::fill;
using result::fillInto;
using result::into;
using result::prepared;

namespace {

/// Rows whose sums are built side by side: they stay in the first-level cache.
constexpr int kRowsAtOnce = 1024;

/// Columns whose sums are built side by side: their chains of additions overlap.
constexpr int kColumnsAtOnce = 8;

/// Cells that are transposed at a time, in either direction: those of a cache line.
constexpr int kTransposed = 8;

template <class Of>
void sumRows(const matrix* a, int n, int p, matrix* w, Of of) {
  const block::Values cells(a, n, p);
  into(w, n, 1, [&](block::Target& sums) {
    for (int begin = 0; begin < n; begin += kRowsAtOnce) {
      const int end = begin + std::min(kRowsAtOnce, n - begin);
      for (int i = begin; i < end; ++i) sums[i] = 0.0;
      for (int j = 0; j < p; ++j) {
        const double* column = cells.data() + cells.stride() * j;
        for (int i = begin; i < end; ++i) sums[i] += of(column[i]);
      }
    }
  });
}

/// Sums of some columns, side by side.
template <int columns, class Of>
void sumColumns(const double* cells, std::ptrdiff_t stride, int n, double* sums, Of of) {
  double running[columns] = {};
  for (int i = 0; i < n; ++i) {
    for (int j = 0; j < columns; ++j) running[j] += of(cells[i + stride * j]);
  }
  std::copy_n(running, columns, sums);
}

template <class Of>
void sumColumns(const matrix* a, int n, int p, matrix* w, Of of) {
  const block::Values cells(a, n, p);
  into(w, p, 1, [&](block::Target& sums) {
    int j = 0;
    for (; p - j >= kColumnsAtOnce; j += kColumnsAtOnce) {
      sumColumns<kColumnsAtOnce>(cells.data() + cells.stride() * j, cells.stride(), n, sums.data() + j, of);
    }
    for (; j < p; ++j) {
      sumColumns<1>(cells.data() + cells.stride() * j, cells.stride(), n, sums.data() + j, of);
    }
  });
}

/// to(j, i) = s from(i, j) for 8 x 8 cells: two by two in registers, whole cache lines on both sides.
void transposeTile(const double* from, std::ptrdiff_t stride, __m128d s, double* to,
                   std::ptrdiff_t toStride) {
  for (int i = 0; i < kTransposed; i += 2) {
    for (int j = 0; j < kTransposed; j += 2) {
      const __m128d a = _mm_mul_pd(s, _mm_loadu_pd(from + i + stride * j));
      const __m128d b = _mm_mul_pd(s, _mm_loadu_pd(from + i + stride * (j + 1)));
      _mm_storeu_pd(to + j + toStride * i, _mm_unpacklo_pd(a, b));
      _mm_storeu_pd(to + j + toStride * (i + 1), _mm_unpackhi_pd(a, b));
    }
  }
}

void transpose(const block::Values& from, int n, int p, double s, double* to, std::ptrdiff_t stride) {
  for (int j0 = 0; j0 < p; j0 += kTransposed) {
    for (int i0 = 0; i0 < n; i0 += kTransposed) {
      const int columns = std::min(kTransposed, p - j0), rows = std::min(kTransposed, n - i0);
      const double* cells = from.data() + i0 + from.stride() * j0;
      double* target = to + j0 + stride * i0;
      if (columns == kTransposed && rows == kTransposed) {
        transposeTile(cells, from.stride(), _mm_set1_pd(s), target, stride);
        continue;
      }
      for (int i = 0; i < rows; ++i) {
        for (int j = 0; j < columns; ++j) target[j + stride * i] = s * cells[i + from.stride() * j];
      }
    }
  }
}

/// Extremes of a column by a rule that says which cell replaces which.
template <class Replaces>
void columnExtremes(const matrix* a, int n, int p, matrix* w, Replaces replaces) {
  if (!result::hasCells(n, p)) return;
  const block::Values cells(a, n, p);
  into(w, p, 1, [&](block::Target& extremes) {
    for (int j = 0; j < p; ++j) {
      const double* column = cells.data() + cells.stride() * j;
      int i = 0;
      while (i < n && isMarker(column[i])) ++i;
      double extreme = i < n ? column[i] : kMissing;
      for (++i; i < n; ++i) {
        if (replaces(column[i], extreme) && !isMarker(column[i])) extreme = column[i];
      }
      extremes[j] = extreme;
    }
  });
}

}  // namespace

void M_ScalarsA(const matrix* a, int n, int p, double s, matrix* c) {
  const block::Values cells(a, n, p);
  fillInto(c, n, p, [&](int i, int j) { return s * cells[i + cells.stride() * j]; });
}

void M_ScalarsA2(matrix*& a, int n, int p, double s) {
  if (a == nullptr || !result::hasCells(n, p)) return;
  matrix scaled(n, p);
  M_ScalarsA(a, n, p, s, &scaled);
  scaled.copyMatTo(a);
}

void M_ScalarsTrA(const matrix* a, int n, int p, double s, matrix*& c) {
  prepared(c, p, n, 1, [&](block::Target& target) {
    transpose(block::Values(a, n, p), n, p, s, target.data(), target.stride());
  });
}

void M_APlusVal(const matrix* a, int n, int p, double s, matrix*& c) {
  prepared(c, n, p, 1, [&](block::Target& target) {
    const block::Values cells(a, n, p);
    fill(target, n, p, [&](int i, int j) { return cells[i + cells.stride() * j] + s; });
  });
}

void M_Sums1As2B(const matrix* a, int n, int p, const matrix* b, double s1, double s2, matrix*& c) {
  prepared(c, n, p, 1, [&](block::Target& target) {
    const block::Values x(a, n, p), y(b, n, p);
    fill(target, n, p, [&](int i, int j) { return s1 * x[i + x.stride() * j] + s2 * y[i + y.stride() * j]; });
  });
}

void M_ProductByElement(const matrix* a, int n, int p, const matrix* b, matrix* c) {
  const block::Values x(a, n, p), y(b, n, p);
  fillInto(c, n, p, [&](int i, int j) { return x[i + x.stride() * j] * y[i + y.stride() * j]; });
}

void M_Square(matrix* a, int n, int p) {
  if (a == nullptr) return;
  const std::int64_t cells = addressing::cellCount(*a);
  for (int c = 1; c <= std::min(p, a->pX) && cells > 0; ++c) {
    const std::int64_t begin = addressing::linearIndex(1, c, a->nX);
    const std::int64_t end = std::min<std::int64_t>(begin + n, cells);
    if (begin >= cells) break;
    for (std::int64_t k = std::max<std::int64_t>(begin, 0); k < end; ++k) {
      a->descValid = 0;
      if (!a->missing[k]) a->values[k] *= a->values[k];
    }
  }
}

int M_Transpose(const matrix* a, int n, int p, matrix*& c) {
  M_ScalarsTrA(a, n, p, 1.0, c);
  return 0;
}

int M_Transpose2(matrix*& a, int n, int p) {
  if (a == nullptr || !result::hasCells(n, p)) return 0;
  matrix transposed(p, n, 0.0);
  transpose(block::Values(a, n, p), n, p, 1.0, transposed.values, p);
  transposed.copyMatTo(a);
  return 0;
}

void M_SumByRows(const matrix* a, int n, int p, matrix* w) {
  if (result::hasCells(n, p)) sumRows(a, n, p, w, [](double x) { return x; });
}

void M_SumByCols(const matrix* a, int n, int p, matrix* w) {
  if (result::hasCells(n, p)) sumColumns(a, n, p, w, [](double x) { return x; });
}

void M_SquaredRows(const matrix* a, int n, int p, matrix* w) {
  sumRows(a, n, p, w, [](double x) { return x * x; });
}

void M_SquaredColumns(const matrix* a, int n, int p, matrix* w) {
  sumColumns(a, n, p, w, [](double x) { return x * x; });
}

double M_Trace(const matrix* a, int n) {
  double sum = 0.0;
  for (int i = 0; i < n; ++i) sum += a == nullptr ? kOutside : a->getElement(i, i);
  return sum;
}

void M_Max(const matrix* a, int n, int p, matrix* w) {
  columnExtremes(a, n, p, w, [](double x, double extreme) { return x > extreme; });
}

void M_Min(const matrix* a, int n, int p, matrix* w) {
  columnExtremes(a, n, p, w, [](double x, double extreme) { return x < extreme; });
}

void M_MinMax(const matrix* a, int n, int p, matrix* min, matrix* max, const short* exclude, short option) {
  if (!result::hasCells(n, p)) return;
  const block::Values cells(a, n, p);
  const block::Flags flags(a, n, p);
  block::Target least(min, p), greatest(max, p);
  for (int j = 0; j < p; ++j) {
    double low = kMissing;
    double high = kMissing;
    for (int i = 0; i < n; ++i) {
      const double x = cells[i + cells.stride() * j];
      const bool present = !flags[i + flags.stride() * j] && !isMarker(x);
      const bool used = option == kTrue    ? present
                        : option == kFalse ? exclude != nullptr && exclude[i] == 0
                                           : false;
      if (!used) continue;
      if (x < low || isMarker(low)) low = x;
      if (x > high) high = x;
    }
    least[j] = low;
    greatest[j] = high;
  }
  least.store();
  greatest.store();
}
