#include "core/matrix.h"

#include <emmintrin.h>

#include <algorithm>
#include <numeric>

#include "core/addressing.h"
#include "core/storage.h"

namespace {

constexpr matrix::Room kNoRoom{nullptr, 0};

/// Cells converted between two looks for a missing one: few enough to stay in the first-level cache.
constexpr std::int64_t kStride = 512;

bool noneArrivesMissing(const double* a, std::int64_t count) {
  const __m128d threshold = _mm_set1_pd(kMissingOnArrival);
  __m128d present = _mm_castsi128_pd(_mm_set1_epi32(-1));
  std::int64_t k = 0;
  for (; k + 2 <= count; k += 2) present = _mm_and_pd(present, _mm_cmpgt_pd(_mm_loadu_pd(a + k), threshold));
  return _mm_movemask_pd(present) == 3 && std::none_of(a + k, a + count, arrivesMissing);
}

void storeFlaggingMissing(matrix& m, const double* a, std::int64_t begin, std::int64_t end) {
  for (std::int64_t k = begin; k < end; ++k) {
    if (arrivesMissing(a[k])) {
      const auto column = k / m.nX;
      m.values[k] = 0.0;
      m.missing[k] = true;
      --m.counts[column];
      m.weightcorr[column] -= 1.0;
    } else {
      m.values[k] = a[k];
    }
  }
}

/// Missing cells are rare: a stretch without one is copied as it stands.
void convertDoubles(matrix& m, const double* a, std::int64_t count) {
  for (std::int64_t begin = 0; begin < count; begin += kStride) {
    const std::int64_t end = std::min(begin + kStride, count);
    if (noneArrivesMissing(a + begin, end - begin)) {
      std::copy(a + begin, a + end, m.values + begin);
    } else {
      storeFlaggingMissing(m, a, begin, end);
    }
  }
}

/// The first count cells of a new container from a, the others 0.0.
void store(matrix& m, const double* a, std::int64_t count, bool keepAll) {
  if (keepAll) {
    std::copy_n(a, count, m.values);
  } else {
    convertDoubles(m, a, count);
  }
  std::fill(m.values + count, m.values + addressing::cellCount(m), 0.0);
}

/// Cells up to which copying costs less than finding out whether it can be avoided.
constexpr std::int64_t kFew = 64;

/// Cells beyond which a size may be a mistake: nothing of the array is read before memory for a copy has been
/// had.
constexpr std::int64_t kMany = std::int64_t{1} << 24;

/// The array itself when its cells can serve as they stand, else null.
double* usableInPlace(const double* a, std::int64_t count, bool keepAll) {
  // Records of a 32-bit macro host may lie on any 4-byte boundary.
  const bool aligned = reinterpret_cast<std::uintptr_t>(a) % alignof(double) == 0;
  const bool asItStands =
      aligned && a != nullptr && count > kFew && count <= kMany && (keepAll || noneArrivesMissing(a, count));
  return asItStands ? const_cast<double*>(a) : nullptr;
}

template <class Integer>
void convertIntegers(matrix& m, const Integer* a) {
  if (a == nullptr) {
    std::fill_n(m.values, addressing::cellCount(m), 0.0);
  } else {
    std::copy_n(a, addressing::cellCount(m), m.values);
  }
}

}  // namespace

matrix::matrix(Room room, int rows, int columns, double* elsewhere)
    : nX(rows), pX(columns), normalized(0), descValid(0), descMode(0), sumOfWeights(std::max(rows, 0)) {
  storage::allocate(*this, room, elsewhere);
  const storage::Sizes& built = storage::builtSizes(*this);
  std::fill_n(weights, built.rows, 1.0);
  std::fill_n(counts, built.columns, std::max(rows, 0));
  std::fill_n(weightcorr, built.columns, std::max(rows, 0) - 1.0);
}

matrix::matrix(int rows, int columns) : matrix(rows, columns, 0.0) {}

matrix::matrix(int rows, int columns, int v) : matrix(rows, columns, static_cast<double>(v)) {}

matrix::matrix(int rows, int columns, double v) : matrix(kNoRoom, rows, columns, v) {}

matrix::matrix(int rows, int columns, const int* a) : matrix(kNoRoom, rows, columns, a) {}

matrix::matrix(int rows, int columns, const short* a) : matrix(kNoRoom, rows, columns, a) {}

matrix::matrix(int rows, int columns, const double* a, bool keepAll, int srcRows, int srcCols)
    : matrix(kNoRoom, rows, columns) {
  store(*this, a, a == nullptr ? 0 : addressing::cellsSupplied(rows, columns, srcRows, srcCols), keepAll);
}

matrix::matrix(Room room, int rows, int columns, double v) : matrix(room, rows, columns) {
  std::fill_n(values, addressing::cellCount(*this), v);
}

matrix::matrix(Room room, int rows, int columns, const int* a) : matrix(room, rows, columns) {
  convertIntegers(*this, a);
}

matrix::matrix(Room room, int rows, int columns, const short* a) : matrix(room, rows, columns) {
  convertIntegers(*this, a);
}

matrix::matrix(Room room, int rows, int columns, const double* a, bool keepAll, Own)
    : matrix(room, rows, columns) {
  store(*this, a, a == nullptr ? 0 : addressing::cellCount(*this), keepAll);
}

matrix::matrix(Room room, int rows, int columns, const double* a, bool keepAll)
    : matrix(room, rows, columns, usableInPlace(a, addressing::cellCount(rows, columns), keepAll)) {
  if (values != a) store(*this, a, a == nullptr ? 0 : addressing::cellCount(*this), keepAll);
}

matrix::matrix(int rows, const matrix* src) : matrix(kNoRoom, rows, src->pX) {
  const std::int64_t taken = std::min(addressing::cellCount(*this), addressing::cellCount(*src));
  std::copy_n(src->values, taken, values);
  std::fill(values + taken, values + addressing::cellCount(*this), kOutside);
  for (std::int64_t k = 0; k < taken; ++k) missing[k] = src->missing[k] || isMarker(src->values[k]);

  const int columns = std::min(storage::describedColumns(*this), storage::describedColumns(*src));
  std::copy_n(src->counts, columns, counts);
  std::copy_n(src->weightcorr, columns, weightcorr);
  std::copy_n(src->weights, std::min(storage::weightedRows(*this), storage::weightedRows(*src)), weights);
  sumOfWeights = src->sumOfWeights;
  if (src->normalized == 1) {
    std::copy_n(src->normu, columns, normu);
    std::copy_n(src->norsigma, columns, norsigma);
    normalized = 1;
  }
}

matrix::~matrix() { storage::release(*this); }

// Shallow on purpose, see the header.
matrix& matrix::operator=(const matrix& other) = default;

void matrix::weighting(const double* w) {
  if (w == nullptr) return;
  const int rows = storage::weightedRows(*this);
  std::copy_n(w, rows, weights);
  sumOfWeights = std::accumulate(w, w + rows, 0.0);
}

double matrix::getNorMu(int j) const {
  return normalized == 1 && j >= 0 && j < storage::describedColumns(*this) ? normu[j] : kOutside;
}

double matrix::getNorSigma(int j) const {
  return normalized == 1 && j >= 0 && j < storage::describedColumns(*this) ? norsigma[j] : kOutside;
}

double matrix::getWeightcorr(int j) const {
  if (j < 0 || j >= storage::describedColumns(*this)) return kOutside;
  return weightcorr[j] == 0.0 ? 1.0 : weightcorr[j];
}
