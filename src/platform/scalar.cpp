#include "platform/scalar.h"

#include <array>

namespace scalar {

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

/// ln 2 in two parts: the high one has 32 bits, so its products with exponents are exact.
constexpr double kLn2High = 0x1.62e42fee00000p-1;
constexpr double kLn2Low = 0x1.a39ef35793c76p-33;
constexpr double kLog2E = 0x1.71547652b82fep+0;

/// 2/3, 2/5 ... 2/21
constexpr auto kLogSeries = [] {
  std::array<double, 10> series{};
  for (std::size_t k = 0; k < series.size(); ++k) series[k] = 2.0 / (2.0 * static_cast<double>(k) + 3.0);
  return series;
}();

/// 1/2!, 1/3! ... 1/13!
constexpr auto kExpSeries = [] {
  std::array<double, 12> series{};
  double factorial = 1.0;
  for (std::size_t k = 0; k < series.size(); ++k) {
    factorial *= static_cast<double>(k) + 2.0;
    series[k] = 1.0 / factorial;
  }
  return series;
}();

/// c[0] + x c[1] + x^2 c[2] ...
template <std::size_t N>
double polynomial(const std::array<double, N>& c, double x) {
  double sum = c[N - 1];
  for (std::size_t k = N - 1; k > 0; --k) sum = sum * x + c[k - 1];
  return sum;
}

/// What rounding takes off a * b (Dekker 1971, Numerische Mathematik 18, 224-242).
double productError(double a, double b) {
  constexpr double splitter = 0x1p27 + 1.0;
  const auto high = [](double x) {
    const double scaled = splitter * x;
    return scaled - (scaled - x);
  };
  const double aHigh = high(a), aLow = a - aHigh;
  const double bHigh = high(b), bLow = b - bHigh;
  return ((aHigh * bHigh - a * b) + aHigh * bLow + aLow * bHigh) + aLow * bLow;
}

}  // namespace

// x = 2^k (1 + f) with 1 + f between the roots of 1/2 and 2. With s = f / (2 + f),
//
//     log(1 + f) = 2 (s + s^3/3 + s^5/5 + ...) = f - (f^2/2 - s (f^2/2 + 2 (s^2/3 + s^4/5 + ...))),
//
// the second form because f is exact and what is taken off it is small.
double naturalLog(double x) {
  if (std::isnan(x) || x < 0.0) return kNaN;
  if (x == 0.0) return -kInfinity;
  if (x == kInfinity) return x;
  int exponent;
  double significand = std::frexp(x, &exponent);
  if (significand < 0x1.6a09e667f3bcdp-1) {
    significand *= 2.0;
    --exponent;
  }
  const double k = exponent;
  const double f = significand - 1.0;
  const double s = f / (2.0 + f);
  const double z = s * s;
  const double half = 0.5 * f * f;
  return k * kLn2High - ((half - (s * (half + z * polynomial(kLogSeries, z)) + k * kLn2Low)) - f);
}

// x = k ln 2 + r; exp(r) by its series, the remainder of r added last.
double exponential(double x) {
  if (std::isnan(x)) return x;
  if (x > 710.0) return kInfinity;
  if (x < -746.0) return 0.0;
  const double k = std::floor(x * kLog2E + 0.5);
  const double high = x - k * kLn2High;
  const double low = k * kLn2Low;
  const double r = high - low;
  const double remainder = (high - r) - low;
  return std::ldexp(1.0 + (r + (r * r * polynomial(kExpSeries, r) + remainder)), static_cast<int>(k));
}

// The root's rounding error is found from its square and taken along.
double threeHalvesPower(double x) {
  if (!(x > 0.0)) return x == 0.0 ? 0.0 : kNaN;
  if (x == kInfinity) return x;
  int exponent;
  double significand = std::frexp(x, &exponent);
  if (exponent % 2 != 0) {
    significand *= 2.0;
    --exponent;
  }
  const double root = std::sqrt(significand);
  const double rootError = ((significand - root * root) - productError(root, root)) / (2.0 * root);
  const double power = significand * root + (productError(significand, root) + significand * rootError);
  return std::ldexp(power, exponent / 2 * 3);
}

}  // namespace scalar
