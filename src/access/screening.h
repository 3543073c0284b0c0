// Looking at many rows at once: in most stretches nothing is missing or excluded. Internal.
#pragma once

#include <emmintrin.h>
#include <cstddef>
#include <cstdint>

#include "kavoratb1c/marker.h"

namespace kav::screening {

/// Rows of a stretch and of a group.
inline constexpr int kStretch = 64;
inline constexpr int kGroup = 8;

/// Whether none of the given rows, a multiple of a group, is flagged or excluded.
///
/// @param exclude  null excludes nothing
template <int rows>
bool allUsed(const bool* flags, const short* exclude) {
  static_assert(rows % kGroup == 0);
  const auto load = [](const void* from) { return _mm_loadu_si128(static_cast<const __m128i*>(from)); };
  __m128i any = _mm_setzero_si128();
  if constexpr (rows % 16 == 0) {
    for (int k = 0; k < rows; k += 16) any = _mm_or_si128(any, load(flags + k));
  } else {
    for (int k = 0; k < rows; k += kGroup) {
      any = _mm_or_si128(any,
                         _mm_loadl_epi64(static_cast<const __m128i*>(static_cast<const void*>(flags + k))));
    }
  }
  for (int k = 0; k < rows && exclude != nullptr; k += kGroup) any = _mm_or_si128(any, load(exclude + k));
  return _mm_movemask_epi8(_mm_cmpeq_epi8(any, _mm_setzero_si128())) == 0xFFFF;
}

/// Whether any of n flags is set. The C library's search is a loop over bytes on some systems.
inline bool anyFlagged(const bool* flags, std::ptrdiff_t n) {
  static_assert(sizeof(bool) == 1);
  std::ptrdiff_t k = 0;
  for (; n - k >= kStretch; k += kStretch) {
    if (!allUsed<kStretch>(flags + k, nullptr)) return true;
  }
  for (; k < n; ++k) {
    if (flags[k]) return true;
  }
  return false;
}

/// Whether a cell counts as missing where missing ones are counted.
inline bool countsAsMissing(double x, bool flag) { return x <= kMissing || flag; }

/// Whether any cell is flagged or holds the marker.
inline bool anyMissing(const double* x, const bool* flags, std::ptrdiff_t n) {
  if (anyFlagged(flags, n)) return true;
  const __m128d marker = _mm_set1_pd(kMissing);
  __m128d any = _mm_setzero_pd();
  std::ptrdiff_t i = 0;
  for (; n - i >= 2; i += 2) any = _mm_or_pd(any, _mm_cmpeq_pd(_mm_loadu_pd(x + i), marker));
  return _mm_movemask_pd(any) != 0 || (i < n && isMarker(x[i]));
}

inline int countMissing(const double* x, const bool* flags, int n) {
  const __m128d marker = _mm_set1_pd(kMissing);
  int missing = 0;
  int i = 0;
  for (; n - i >= kGroup; i += kGroup) {
    __m128d any = _mm_cmple_pd(_mm_loadu_pd(x + i), marker);
    for (int k = 2; k < kGroup; k += 2) {
      any = _mm_or_pd(any, _mm_cmple_pd(_mm_loadu_pd(x + i + k), marker));
    }
    if (_mm_movemask_pd(any) == 0 && allUsed<kGroup>(flags + i, nullptr)) continue;
    for (int k = i; k < i + kGroup; ++k) missing += countsAsMissing(x[k], flags[k]) ? 1 : 0;
  }
  for (; i < n; ++i) missing += countsAsMissing(x[i], flags[i]) ? 1 : 0;
  return missing;
}

}  // namespace kav::screening
