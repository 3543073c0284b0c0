#include "numerics/random.h"

#include <bit>

#include "platform/entropy.h"

namespace kav {

namespace {

std::uint64_t splitMix64(std::uint64_t& state) {
  state += 0x9E3779B97F4A7C15u;
  std::uint64_t z = state;
  z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
  z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
  return z ^ (z >> 31);
}

/// Odd, so that its multiples are all seeds; near the golden section of 2^32, so that they lie apart.
constexpr std::uint32_t kSeedStep = 0x9E3779B9;

/// Bits of a draw.
constexpr int kBits = 53;

}  // namespace

RandomNumbers::RandomNumbers(std::int32_t seed) : seed_(static_cast<std::uint32_t>(seed)) {
  std::uint64_t state = seed_;
  for (std::uint64_t& word : state_) word = splitMix64(state);
}

std::int32_t RandomNumbers::GetSeed(std::int32_t* seed, bool isGiven) {
  if (seed == nullptr) return entropy();
  if (!isGiven) *seed = entropy();
  return *seed;
}

double RandomNumbers::Random01() { return static_cast<double>(next() >> (64 - kBits)) * 0x1p-53; }

int RandomNumbers::below(int n) {
  // Draws beyond the last whole multiple of n would favour the lowest numbers.
  constexpr std::uint64_t draws = std::uint64_t{1} << kBits;
  const auto count = static_cast<std::uint64_t>(n);
  std::uint64_t draw = 0;
  do {
    draw = static_cast<std::uint64_t>(Random01() * 0x1p53);
  } while (draw >= draws - count && draw >= draws - draws % count);
  return static_cast<int>(draw % count);
}

void RandomNumbers::GetSeedUpdate(std::int32_t* next) const {
  if (next != nullptr) *next = static_cast<std::int32_t>(seed_ + kSeedStep);
}

std::uint64_t RandomNumbers::next() {
  const std::uint64_t result = std::rotl(state_[0] + state_[3], 23) + state_[0];
  const std::uint64_t shifted = state_[1] << 17;
  state_[2] ^= state_[0];
  state_[3] ^= state_[1];
  state_[1] ^= state_[2];
  state_[0] ^= state_[3];
  state_[2] ^= shifted;
  state_[3] = std::rotl(state_[3], 45);
  return result;
}

}  // namespace kav
