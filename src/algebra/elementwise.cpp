#include "kavoratb1c/algebra/elementwise.h"

#include <emmintrin.h>
#include <algorithm>

#include "access/results.h"
#include "access/screening.h"
#include "kernels/kernels.h"

using namespace kav;

using results::fill;
using results::fillInto;
using results::into;
using results::refilled;

namespace {

/// Rows whose sums are built side by side: they stay in the first-level cache.
constexpr int kRowsAtOnce = 1024;

/// Columns whose sums are built side by side: their chains of additions overlap.
constexpr int kColumnsAtOnce = 8;

template <class Of>
void sumRows(const matrix* a, int n, int p, matrix* w, Of of) {
  const block::Values cells(a, n, p);
  into(w, n, 1, [&](block::Target& sums) {
    for (std::ptrdiff_t begin = 0; begin < n; begin += kRowsAtOnce) {
      const std::ptrdiff_t end = std::min(begin + kRowsAtOnce, std::ptrdiff_t{n});
      for (std::ptrdiff_t i = begin; i < end; ++i) sums[i] = 0.0;
      for (int j = 0; j < p; ++j) {
        const double* column = cells.column(j);
        for (std::ptrdiff_t i = begin; i < end; ++i) sums[i] += of(column[i]);
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
      sumColumns<kColumnsAtOnce>(cells.column(j), cells.leadingDimension(), n, sums.data() + j, of);
    }
    for (; j < p; ++j) {
      sumColumns<1>(cells.column(j), cells.leadingDimension(), n, sums.data() + j, of);
    }
  });
}

void transpose(const block::Values& from, int n, int p, double s, double* to, std::ptrdiff_t stride) {
  kernels::best().transpose({from.data(), from.leadingDimension(), n, p, s, to, stride});
}

/// The extremes of a column in which every cell counts and no other rule can show: without a marker, without
/// NaN, and not zeros of either sign.
struct PlainExtremes {
  PlainExtremes(const double* column, int n) {
    if (n < 2) return;
    const __m128d marker = _mm_set1_pd(kMissing);
    __m128d low = _mm_loadu_pd(column), high = low, odd = _mm_setzero_pd();
    const auto look = [&](const double* cells) {
      const __m128d x = _mm_loadu_pd(cells);
      odd = _mm_or_pd(odd, _mm_or_pd(_mm_cmpunord_pd(x, x), _mm_cmpeq_pd(x, marker)));
      low = _mm_min_pd(x, low);
      high = _mm_max_pd(x, high);
    };
    for (std::ptrdiff_t i = 0; i + 2 <= n; i += 2) look(column + i);
    // The last cell together with the one before it, which has been looked at.
    look(column + n - 2);
    double lows[2], highs[2];
    _mm_storeu_pd(lows, low);
    _mm_storeu_pd(highs, high);
    least = std::min(lows[0], lows[1]);
    greatest = std::max(highs[0], highs[1]);
    known = _mm_movemask_pd(odd) == 0 && least != 0.0 && greatest != 0.0;
  }

  bool known = false;
  double least = 0.0, greatest = 0.0;
};

/// Extremes of a column by a rule that says which cell replaces which.
template <class Replaces>
void columnExtremes(const matrix* a, int n, int p, matrix* w, double PlainExtremes::*which,
                    Replaces replaces) {
  if (!results::haveCells(n, p)) return;
  const block::Values cells(a, n, p);
  into(w, p, 1, [&](block::Target& extremes) {
    for (int j = 0; j < p; ++j) {
      const double* column = cells.column(j);
      const PlainExtremes plain(column, n);
      if (plain.known) {
        extremes[j] = plain.*which;
        continue;
      }
      std::ptrdiff_t i = 0;
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
  fillInto(c, n, p, [&](int j) { return [x = cells.column(j), s](int i) { return s * x[i]; }; });
}

void M_ScalarsA2(matrix*& a, int n, int p, double s) {
  if (a == nullptr || !results::haveCells(n, p)) return;
  matrix scaled(n, p);
  M_ScalarsA(a, n, p, s, &scaled);
  scaled.copyMatTo(a);
}

void M_ScalarsTrA(const matrix* a, int n, int p, double s, matrix*& c) {
  refilled(c, p, n, 1, [&](block::Target& target) {
    transpose(block::Values(a, n, p), n, p, s, target.data(), target.leadingDimension());
  });
}

void M_APlusVal(const matrix* a, int n, int p, double s, matrix*& c) {
  refilled(c, n, p, 1, [&](block::Target& target) {
    const block::Values cells(a, n, p);
    fill(target, n, p, [&](int j) { return [x = cells.column(j), s](int i) { return x[i] + s; }; });
  });
}

void M_Sums1As2B(const matrix* a, int n, int p, const matrix* b, double s1, double s2, matrix*& c) {
  refilled(c, n, p, 1, [&](block::Target& target) {
    const block::Values x(a, n, p), y(b, n, p);
    fill(target, n, p, [&](int j) {
      return [=, left = x.column(j), right = y.column(j)](int i) { return s1 * left[i] + s2 * right[i]; };
    });
  });
}

void M_ProductByElement(const matrix* a, int n, int p, const matrix* b, matrix* c) {
  const block::Values x(a, n, p), y(b, n, p);
  fillInto(c, n, p, [&](int j) {
    return [left = x.column(j), right = y.column(j)](int i) { return left[i] * right[i]; };
  });
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
  if (a == nullptr || !results::haveCells(n, p)) return 0;
  matrix transposed(p, n, 0.0);
  transpose(block::Values(a, n, p), n, p, 1.0, transposed.values, p);
  transposed.copyMatTo(a);
  return 0;
}

void M_SumByRows(const matrix* a, int n, int p, matrix* w) {
  if (results::haveCells(n, p)) sumRows(a, n, p, w, [](double x) { return x; });
}

void M_SumByCols(const matrix* a, int n, int p, matrix* w) {
  if (results::haveCells(n, p)) sumColumns(a, n, p, w, [](double x) { return x; });
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
  columnExtremes(a, n, p, w, &PlainExtremes::greatest, [](double x, double extreme) { return x > extreme; });
}

void M_Min(const matrix* a, int n, int p, matrix* w) {
  columnExtremes(a, n, p, w, &PlainExtremes::least, [](double x, double extreme) { return x < extreme; });
}

void M_MinMax(const matrix* a, int n, int p, matrix* min, matrix* max, const short* exclude, short option) {
  if (!results::haveCells(n, p)) return;
  const block::Values cells(a, n, p);
  const block::Flags flags(a, n, p);
  block::Target least(min, p), greatest(max, p);
  const bool nothingExcluded = option == kFalse && exclude != nullptr &&
                               std::all_of(exclude, exclude + n, [](short flag) { return flag == 0; });
  for (int j = 0; j < p; ++j) {
    const bool everyRow = option == kTrue ? !screening::anyFlagged(flags.column(j), n) : nothingExcluded;
    if (everyRow) {
      const PlainExtremes plain(cells.column(j), n);
      least[j] = plain.least;
      greatest[j] = plain.greatest;
      // The search below begins at the marker: what lies under it is never the greatest.
      if (plain.known && plain.greatest > kMissing) continue;
    }
    double low = kMissing;
    double high = kMissing;
    for (int i = 0; i < n; ++i) {
      const double x = cells.column(j)[i];
      const bool present = !isMissing(x, flags.column(j)[i]);
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
