// Scalar functions with one meaning, and the same bits, on every build. Internal.
//
// The runtimes' own logarithms, exponentials and powers differ in the last bit from system to system, so
// those are written out here.
#pragma once

#include <cmath>
#include <limits>

namespace kav::scalar {

/// A double as a 32-bit integer, truncated toward zero. NaN and values outside the range give -2147483648,
/// which is what the processor's own conversion gives; the language leaves those cases undefined.
inline int truncateToInt(double x) {
  constexpr int lowest = std::numeric_limits<int>::min();
  return x > -2147483649.0 && x < 2147483648.0 ? static_cast<int>(x) : lowest;
}

/// Square root; NaN below 0.0.
inline double sqr(double x) { return std::sqrt(x); }

/// Whether x is a whole number that a double tells from its neighbours: finite and below 2^53.
inline bool IsLong(double x) { return std::fabs(x) < 0x1p53 && x == std::floor(x); }

/// Natural logarithm, to less than one unit in the last place; -infinity for 0.0, NaN below.
double naturalLog(double x);

/// Exponential, to less than one unit in the last place.
double exponential(double x);

/// Logarithm to base 10, to less than one unit in the last place, exact for powers of ten; -infinity for 0.0,
/// NaN below.
double Log10(double x);

/// x to the power y, to less than two units in the last place; below 0.0 NaN, unless y is 0 or 1.
double power(double x, double y);

/// |a| with the sign of b.
inline double FSign(double a, double b) { return std::copysign(a, b); }

/// x to the power 1.5, correctly rounded but for rare ties and for results below the normal range; NaN below
/// 0.0.
double threeHalvesPower(double x);

}  // namespace kav::scalar
