// Random numbers: the same from the same seed on every build. Internal.
#pragma once

#include <cstdint>

namespace kav {

/// A sequence of random numbers, xoshiro256++ (Blackman and Vigna 2021, ACM Transactions on Mathematical
/// Software 47(4), article 36), its 256 bits of state filled from a 32-bit seed by SplitMix64 (Steele, Lea
/// and Flood 2014), as its authors advise. The state lies in the object: the library keeps none between
/// calls.
class RandomNumbers {
 public:
  /// Starts the sequence of a seed. Every seed has its own.
  explicit RandomNumbers(std::int32_t seed);

  /// The seed of a sequence.
  ///
  /// @param seed      in when isGiven, else out: drawn from the system's entropy, so that the sequence can be
  ///                  started again; null counts as not given
  static std::int32_t GetSeed(std::int32_t* seed, bool isGiven);

  /// A draw from 0.0 .. 1.0 (1.0 itself never), a multiple of 2^-53.
  double Random01();

  /// A whole number from 0 .. n-1, every one exactly as likely as the others; n at least 1.
  int below(int n);

  /// A seed for a next call, for fresh draws: a chain of calls comes back to its first seed
  /// only after all 2^32 of them. Null takes nothing.
  void GetSeedUpdate(std::int32_t* next) const;

 private:
  std::uint64_t next();

  std::uint32_t seed_;
  std::uint64_t state_[4];
};

}  // namespace kav
