#include "numerics/scalar.h"

#include <array>

namespace kav::scalar {

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

/// Exponents whose exponentials are far from overflow.
constexpr double kMostExponent = 700.0;

/// ln 2 in two parts: the high one has 32 bits, so its products with exponents are exact.
constexpr double kLn2High = 0x1.62e42fee00000p-1;
constexpr double kLn2Low = 0x1.a39ef35793c76p-33;
constexpr double kLog2E = 0x1.71547652b82fep+0;

/// The same of log10(2), and log10(e).
constexpr double kLog10Of2High = 0x1.3441350800000p-2;
constexpr double kLog10Of2Low = 0x1.f79fef311f12bp-34;
constexpr double kLog10EHigh = 0x1.bcb7b1526e50ep-2;
constexpr double kLog10ELow = 0x1.95355baaafad3p-57;

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

namespace {

/// A logarithm of a positive finite number, as k ln 2 + (f - less).
struct Logarithm {
  double k, f, less;
};

// x = 2^k (1 + f) with 1 + f between the roots of 1/2 and 2. With s = f / (2 + f),
//
//     log(1 + f) = 2 (s + s^3/3 + s^5/5 + ...) = f - (f^2/2 - s (f^2/2 + 2 (s^2/3 + s^4/5 + ...))),
//
// the second form because f is exact and what is taken off it is small.
//
// @param lowOf2  the low part of ln 2, or 0.0 where that is added elsewhere
Logarithm logarithmOf(double x, double lowOf2) {
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
  return {k, f, half - (s * (half + z * polynomial(kLogSeries, z)) + k * lowOf2)};
}

}  // namespace

double naturalLog(double x) {
  if (std::isnan(x) || x < 0.0) return kNaN;
  if (x == 0.0) return -kInfinity;
  if (x == kInfinity) return x;
  const Logarithm log = logarithmOf(x, kLn2Low);
  return log.k * kLn2High - (log.less - log.f);
}

// The natural logarithm of the significand in two parts, times 1/ln 10 in two parts; what rounding takes off
// is added to the small parts, and they last.
double Log10(double x) {
  if (std::isnan(x) || x < 0.0) return kNaN;
  if (x == 0.0) return -kInfinity;
  if (x == kInfinity) return x;
  const Logarithm log = logarithmOf(x, 0.0);
  const double high = log.f - log.less;
  const double low = (log.f - high) - log.less;
  const double product = high * kLog10EHigh;
  const double rest =
      productError(high, kLog10EHigh) + high * kLog10ELow + low * kLog10EHigh + log.k * kLog10Of2Low;
  const double whole = log.k * kLog10Of2High;
  const double sum = whole + product;
  const double lost =
      std::fabs(whole) > std::fabs(product) ? (whole - sum) + product : (product - sum) + whole;
  return sum + (lost + rest);
}

// Where it can be, the exponential of y ln x with the logarithm in two parts, and of what rounding takes off
// the product the first term.
double power(double x, double y) {
  if (y == 0.0) return 1.0;
  if (y == 1.0) return x;
  if (y == 0.5) return sqr(x);
  if (!(x > 0.0) || x == kInfinity) return exponential(y * naturalLog(x));
  const Logarithm log = logarithmOf(x, kLn2Low);
  const double part = log.f - log.less;
  const double whole = log.k * kLn2High;
  const double high = whole + part;
  const double lost = std::fabs(whole) > std::fabs(part) ? (whole - high) + part : (part - high) + whole;
  const double low = lost + ((log.f - part) - log.less);
  const double product = y * high;
  const double result = exponential(product);
  if (!(std::fabs(product) < kMostExponent)) return result;
  return result + result * (productError(y, high) + y * low);
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

}  // namespace kav::scalar
