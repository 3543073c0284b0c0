// Sorting by keys of 32 bits, in three stable passes from the low digit up. Internal.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace kav::radix {

inline constexpr int kDigitBits = 11;
inline constexpr int kPasses = 3;
inline constexpr std::size_t kBuckets = std::size_t{1} << kDigitBits;

/// The leading half of a double's bits, so mapped that integers order as numbers do: sign, exponent and 20
/// bits of the significand. -0.0 comes before 0.0; NaN has no place.
inline std::uint32_t lead(double x) {
  const auto bits = static_cast<std::uint32_t>(std::bit_cast<std::uint64_t>(x) >> 32);
  const auto negative = static_cast<std::uint32_t>(-static_cast<std::int32_t>(bits >> 31));
  return bits ^ (negative | 0x80000000u);
}

/// Stable, and without memory.
template <class Item, class Less>
void insertionSort(Item* begin, Item* end, Less less) {
  for (Item* i = begin; i != end; ++i) {
    const Item item = *i;
    Item* place = i;
    for (; place != begin && less(item, place[-1]); --place) *place = place[-1];
    *place = item;
  }
}

/// Sorts count items.
///
/// @param items scratch  count each; both are overwritten
/// @param keyOf          key of an item
/// @return whichever of the two arrays holds the result
template <class Item, class KeyOf>
Item* sort(Item* items, Item* scratch, std::size_t count, KeyOf keyOf) {
  constexpr auto digit = [](std::uint32_t key, int pass) {
    return static_cast<std::size_t>(key >> (pass * kDigitBits)) % kBuckets;
  };
  std::array<std::array<std::uint32_t, kBuckets>, kPasses> places{};
  for (std::size_t i = 0; i < count; ++i) {
    const std::uint32_t key = keyOf(items[i]);
    for (int pass = 0; pass < kPasses; ++pass) ++places[static_cast<std::size_t>(pass)][digit(key, pass)];
  }
  for (int pass = 0; pass < kPasses && count > 0; ++pass) {
    auto& place = places[static_cast<std::size_t>(pass)];
    // All items in one bucket: nothing to move.
    if (place[digit(keyOf(items[0]), pass)] == count) continue;
    std::uint32_t begin = 0;
    for (std::uint32_t& bucket : place) {
      const std::uint32_t size = bucket;
      bucket = begin;
      begin += size;
    }
    for (std::size_t i = 0; i < count; ++i) scratch[place[digit(keyOf(items[i]), pass)]++] = items[i];
    std::swap(items, scratch);
  }
  return items;
}

/// Completes a sort by the leading part of a key: sorts, stably, each run of items that agree in it.
///
/// @param agree  whether two items agree in the leading part
/// @param less   the order of the whole keys
template <class Item, class Agree, class Less>
void sortRuns(Item* items, std::size_t count, Agree agree, Less less) {
  constexpr std::size_t kShort = 24;
  for (std::size_t begin = 0, end; begin < count; begin = end) {
    end = begin + 1;
    while (end < count && agree(items[begin], items[end])) ++end;
    if (end - begin > kShort) {
      if (!std::is_sorted(items + begin, items + end, less))
        std::stable_sort(items + begin, items + end, less);
      continue;
    }
    insertionSort(items + begin, items + end, less);
  }
}

}  // namespace kav::radix
