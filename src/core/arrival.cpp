#include "core/arrival.h"

#include <emmintrin.h>
#include <algorithm>
#include <bit>

#include "core/addressing.h"

namespace kav::arrival {

static_assert(std::bit_cast<std::uint64_t>(kMissing) == 0xFFEFFFFFFFFFFFE2,
              "the marker of the spreadsheet side");

namespace {

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

/// Missing cells are rare: a stretch without one is copied unchanged.
void storeFlagging(matrix& m, const double* a, std::int64_t count) {
  for (std::int64_t begin = 0; begin < count; begin += kStride) {
    const std::int64_t end = std::min(begin + kStride, count);
    if (noneArrivesMissing(a + begin, end - begin)) {
      std::copy(a + begin, a + end, m.values + begin);
    } else {
      storeFlaggingMissing(m, a, begin, end);
    }
  }
}

template <class Integer>
void storeIntegers(matrix& m, const Integer* a) {
  if (a == nullptr) {
    std::fill_n(m.values, addressing::cellCount(m), 0.0);
  } else {
    std::copy_n(a, addressing::cellCount(m), m.values);
  }
}

}  // namespace

void store(matrix& m, const double* a, std::int64_t count, bool keepAll) {
  const std::int64_t given = a == nullptr ? 0 : count;
  if (keepAll) {
    std::copy_n(a, given, m.values);
  } else {
    storeFlagging(m, a, given);
  }
  std::fill(m.values + given, m.values + addressing::cellCount(m), 0.0);
}

void store(matrix& m, const int* a) { storeIntegers(m, a); }

void store(matrix& m, const short* a) { storeIntegers(m, a); }

double* usableInPlace(const double* a, std::int64_t count, bool keepAll) {
  // Up to a few cells copying costs less than finding out whether it can be avoided. Beyond many a size may
  // be a mistake: nothing of the array is read before memory for a copy has been had.
  constexpr std::int64_t kFew = 64, kMany = std::int64_t{1} << 24;
  // Records of a 32-bit macro host may lie on any 4-byte boundary.
  const bool aligned = reinterpret_cast<std::uintptr_t>(a) % alignof(double) == 0;
  const bool unchanged =
      aligned && a != nullptr && count > kFew && count <= kMany && (keepAll || noneArrivesMissing(a, count));
  return unchanged ? const_cast<double*>(a) : nullptr;
}

}  // namespace kav::arrival
