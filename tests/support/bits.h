// Comparing doubles bit for bit, any NaN equal to any other.
#pragma once

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <iomanip>
#include <sstream>
#include <string>
#include <vector>

namespace bits {

inline std::uint64_t of(double x) { return std::bit_cast<std::uint64_t>(x); }

/// Signed zeros differ, NaNs do not: which payload survives an operation is the processor's affair.
inline bool same(double a, double b) { return of(a) == of(b) || (std::isnan(a) && std::isnan(b)); }

/// A double with all its digits and its bits.
inline std::string text(double x) {
  std::ostringstream out;
  out << std::setprecision(17) << x << " (0x" << std::hex << std::setfill('0') << std::setw(16) << of(x)
      << ")";
  return out.str();
}

/// For EXPECT_TRUE: tells values and bits when the two differ.
inline testing::AssertionResult equal(double actual, double expected) {
  if (same(actual, expected)) return testing::AssertionSuccess();
  return testing::AssertionFailure() << text(actual) << " instead of " << text(expected);
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
