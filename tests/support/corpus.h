// A fixed corpus of inputs, and hashes of what the library makes of it: equal bits on every build, or the
// test fails.
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <vector>

#include "kavoratb1c/matrix.h"
#include "support/random.h"

using namespace kav;

/// FNV-1a over the bits of doubles; every NaN counts the same.
class BitHash {
 public:
  BitHash& add(double x) {
    const auto bits = std::isnan(x) ? ~std::uint64_t{0} : std::bit_cast<std::uint64_t>(x);
    for (int shift = 0; shift < 64; shift += 8) {
      hash_ = (hash_ ^ ((bits >> shift) & 0xFF)) * 0x100000001B3u;
    }
    return *this;
  }

  BitHash& add(const matrix& m) {
    for (std::ptrdiff_t k = 0; k < std::ptrdiff_t{m.nX} * m.pX; ++k) add(m.values[k]).add(m.missing[k]);
    return *this;
  }

  std::uint64_t value() const { return hash_; }

 private:
  std::uint64_t hash_ = 0xCBF29CE484222325u;
};

/// Numbers over the whole range of magnitudes that statistics meet, some of them missing, zero or not finite.
inline std::vector<double> corpusCells(std::uint64_t seed, int count) {
  Random random(seed);
  std::vector<double> cells;
  for (int k = 0; k < count; ++k) {
    const double x = random.uniform(-1.0, 1.0) * std::ldexp(1.0, random.below(60) - 30);
    const int kind = random.below(100);
    cells.push_back(kind < 4    ? kMissing
                    : kind < 6  ? 0.0
                    : kind == 6 ? -0.0
                    : kind == 7 ? x * 0x1p-1060
                    : kind == 8 ? -HUGE_VAL
                                : x);
  }
  return cells;
}
