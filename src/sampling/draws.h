// What all random draws share. Internal.
#pragma once

#include <algorithm>

#include "kavoratb1c/marker.h"
#include "numerics/random.h"

namespace kav {

/// The random numbers of a call: from the caller's seed when it is given, else from one that the system gives
/// and the caller receives.
inline RandomNumbers started(int* seed, short seedIsGiven) {
  return RandomNumbers(RandomNumbers::GetSeed(seed, seedIsGiven == kTrue));
}

/// Rows of a sample that takes every row once at most.
inline int withoutReplacement(int n, int size) { return std::clamp(size, 0, std::max(n, 0)); }

}  // namespace kav
