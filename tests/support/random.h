// Numbers for tests: the same sequence on every build, high in entropy.
#pragma once

#include <cstdint>

/// SplitMix64 (Steele, Lea and Flood 2014).
class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed) {}

  std::uint64_t bits() {
    std::uint64_t z = state_ += 0x9E3779B97F4A7C15u;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
    return z ^ (z >> 31);
  }

  /// Uniform in [lower, upper).
  double uniform(double lower, double upper) {
    return lower + (upper - lower) * static_cast<double>(bits() >> 11) * 0x1p-53;
  }

  /// 0 .. count - 1.
  int below(int count) { return static_cast<int>(bits() % static_cast<std::uint64_t>(count)); }

 private:
  std::uint64_t state_;
};
