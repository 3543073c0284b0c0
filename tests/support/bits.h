// Comparing doubles bit for bit, any NaN equal to any other.
#pragma once

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <vector>

namespace bits {

inline std::uint64_t of(double x) { return std::bit_cast<std::uint64_t>(x); }

/// Signed zeros differ, NaNs do not: which payload survives an operation is the processor's affair.
inline bool same(double a, double b) { return of(a) == of(b) || (std::isnan(a) && std::isnan(b)); }

/// For EXPECT_TRUE: tells value and bits when the two differ.
inline testing::AssertionResult equal(double actual, double expected) {
  if (same(actual, expected)) return testing::AssertionSuccess();
  return testing::AssertionFailure() << std::hexfloat << actual << " (" << std::hex << of(actual)
                                     << ") instead of " << std::hexfloat << expected << " (" << std::hex
                                     << of(expected) << ")";
}

/// The same for whole arrays; tells the first place that differs.
inline testing::AssertionResult equal(const std::vector<double>& actual,
                                      const std::vector<double>& expected) {
  if (actual.size() != expected.size()) {
    return testing::AssertionFailure() << actual.size() << " values instead of " << expected.size();
  }
  for (std::size_t k = 0; k < actual.size(); ++k) {
    if (!same(actual[k], expected[k])) return equal(actual[k], expected[k]) << " at " << k;
  }
  return testing::AssertionSuccess();
}

}  // namespace bits
