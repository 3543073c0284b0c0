#include "kavoratb1c/sampling/indicators.h"

#include <algorithm>

#include "access/results.h"
#include "numerics/range.h"
#include "sampling/draws.h"

using namespace kav;

void GenerateIndicator(matrix*& x, int n, int from, int to) {
  const Range ones(n, from, to);
  results::refilled(x, n, 1, 1, [&](block::Target& target) {
    std::fill_n(target.data(), n, 0.0);
    std::fill(target.data() + ones.begin, target.data() + ones.end, 1.0);
  });
}

void GenerateRandomIndicator(matrix*& x, int n, int ones, int* seed, short seedIsGiven, int* nextSeed) {
  RandomNumbers random = started(seed, seedIsGiven);
  int wanted = withoutReplacement(n, ones);
  results::refilled(x, n, 1, 1, [&](block::Target& target) {
    for (int i = 0; i < n; ++i) {
      const bool taken = random.below(n - i) < wanted;
      target[i] = taken ? 1.0 : 0.0;
      wanted -= taken ? 1 : 0;
    }
  });
  random.GetSeedUpdate(nextSeed);
}
