// Scalar functions with one meaning on every build. Internal.
#pragma once

#include <limits>

/// A double as a 32-bit integer, truncated toward zero. NaN and values outside the range give -2147483648,
/// which is what the processor's own conversion gives; the language leaves those cases undefined.
inline int truncateToInt(double x) {
  constexpr int lowest = std::numeric_limits<int>::min();
  return x > -2147483649.0 && x < 2147483648.0 ? static_cast<int>(x) : lowest;
}
