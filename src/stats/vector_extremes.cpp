#include "kavoratb1c/stats/vector_extremes.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

#include "access/results.h"
#include "access/screening.h"
#include "access/usable.h"
#include "numerics/scalar.h"
#include "numerics/scratch.h"
#include "sort/ordering.h"

using namespace kav;

namespace {

struct Extremes {
  explicit Extremes(double start) : min(start), max(start) {}

  void seeLow(double x) {
    if (x < min) min = x;
  }
  void seeHigh(double x) {
    if (x > max) max = x;
  }

  double min;
  double max;
};

/// Many cells at a time.
class GroupedExtremes {
 public:
  /// Sees whole stretches from row i on, up to one of which a row is flagged, excluded or as low as the
  /// marker. NaN replaces nothing, since the processor then gives the second operand.
  ///
  /// @return the first row not seen
  template <int rows>
  int see(const double* x, const bool* flags, const short* exclude, int i, int n) {
    __m128d low = min_, high = max_;
    while (n - i >= rows && screening::allUsed<rows>(flags + i, exclude == nullptr ? nullptr : exclude + i)) {
      __m128d lowA = low, lowB = low, highA = high, highB = high;
      // Left to itself the compiler keeps a loop here that takes twice the time.
#pragma GCC unroll 16
      for (int k = 0; k < rows; k += 4) {
        const __m128d a = _mm_loadu_pd(x + i + k), b = _mm_loadu_pd(x + i + k + 2);
        lowA = _mm_min_pd(a, lowA);
        lowB = _mm_min_pd(b, lowB);
        highA = _mm_max_pd(a, highA);
        highB = _mm_max_pd(b, highB);
      }
      const __m128d lowest = _mm_min_pd(lowA, lowB);
      if (_mm_movemask_pd(_mm_cmple_pd(lowest, _mm_set1_pd(kMissing))) != 0) break;
      low = lowest;
      high = _mm_max_pd(highA, highB);
      i += rows;
    }
    min_ = low;
    max_ = high;
    return i;
  }

  void tell(Extremes& to) const {
    to.seeLow(_mm_cvtsd_f64(min_));
    to.seeLow(_mm_cvtsd_f64(_mm_unpackhi_pd(min_, min_)));
    to.seeHigh(_mm_cvtsd_f64(max_));
    to.seeHigh(_mm_cvtsd_f64(_mm_unpackhi_pd(max_, max_)));
  }

 private:
  __m128d min_ = _mm_set1_pd(HUGE_VAL);
  __m128d max_ = _mm_set1_pd(-HUGE_VAL);
};

/// @param exclude  null excludes nothing
Extremes extremesOf(const matrix* x, int n, const short* exclude) {
  const usable::Cells cells(x, n);
  const usable::Present present(cells);
  const usable::NotExcludedIfGiven used(exclude);
  int start = 0;
  while (start < n && !used(start)) ++start;
  if (start >= n) return Extremes(kMissing);

  Extremes extremes(cells[start]);
  GroupedExtremes grouped;
  const auto see = [&](int begin, int end) {
    for (int i = begin; i < end; ++i) {
      if (!used(i) || !present(i)) continue;
      extremes.seeLow(cells[i]);
      extremes.seeHigh(cells[i]);
    }
  };
  // Many rows at a time begin where a container's cells are aligned.
  const int aligned = start + std::min(screening::kGroup - start % screening::kGroup, n - start);
  see(start + 1, aligned);
  for (int i = aligned; i < n;) {
    i = grouped.see<screening::kStretch>(cells.values(), cells.flags(), exclude, i, n);
    // What stopped it lies in the next stretch.
    const int end = i + std::min(screening::kStretch, n - i);
    while (i < end) {
      i = grouped.see<screening::kGroup>(cells.values(), cells.flags(), exclude, i, end);
      const int last = i + std::min(screening::kGroup, end - i);
      see(i, last);
      i = last;
    }
  }
  grouped.tell(extremes);

  // Of zeros that differ in sign the first one stands, whichever group it came from.
  const auto firstZero = [&] {
    int k = start;
    while (cells[k] != 0.0 || !used(k) || (k > start && !present(k))) ++k;
    return cells[k];
  };
  if (extremes.min == 0.0) extremes.min = firstZero();
  if (extremes.max == 0.0) extremes.max = firstZero();
  return extremes;
}

template <class Replaces>
double firstExtreme(const matrix* x, int n, int* position, Replaces replaces) {
  const usable::Cells cells(x, n);
  int found = 0;
  double extreme = kMissing;
  usable::forEach(n, usable::Present(cells), [&](int i) {
    if (found != 0 && !replaces(cells[i], extreme)) return;
    extreme = cells[i];
    found = i + 1;
  });
  results::give(position, found);
  return extreme;
}

}  // namespace

double V_Min(const matrix* x, int n, const short* exclude) {
  return usable::given(n, exclude) ? extremesOf(x, n, exclude).min : kMissing;
}

double V_Max(const matrix* x, int n, const short* exclude) { return extremesOf(x, n, exclude).max; }

void V_MinMax(const matrix* x, int n, double* min, double* max, const short* exclude) {
  const Extremes extremes = usable::given(n, exclude) ? extremesOf(x, n, exclude) : Extremes(kMissing);
  results::give(min, extremes.min);
  results::give(max, extremes.max);
}

int V_MaxInt(const matrix* x, int n, const short* exclude) {
  const double max = V_Max(x, n, exclude);
  return isMarker(max) ? 0 : scalar::truncateToInt(max);
}

double V_MaxAndMaxPos(const matrix* x, int n, int* position) {
  return firstExtreme(x, n, position, std::greater<double>());
}

double V_MinAndMinPos(const matrix* x, int n, int* position) {
  return firstExtreme(x, n, position, std::less<double>());
}

double V_TimeIntervalSize(const matrix* x, int n, short sort) {
  const usable::Cells cells(x, n);
  Scratch<double> times(static_cast<std::size_t>(std::max(n, 0)));
  int count = 0;
  usable::forEach(n, usable::Present(cells), [&](int i) { times[count++] = cells[i]; });
  if (sort == kTrue) ordering::sortAscending(times.data(), count);
  double smallest = std::numeric_limits<double>::infinity();
  for (int k = 1; k < count; ++k) {
    const double difference = times[k] - times[k - 1];
    if (difference > 0.0 && difference < smallest) smallest = difference;
  }
  return std::isinf(smallest) ? kMissing : smallest;
}
