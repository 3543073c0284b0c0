#include "numerics/scalar.h"

#include <algorithm>
#include <string>
#include <vector>

#include "support/bits.h"
#include "support/random.h"

using namespace kav;

namespace {

using Limits = std::numeric_limits<double>;
constexpr double kInf = Limits::infinity();

/// The distance in units of the last place of the exact result.
double ulps(double actual, long double exact) {
  const int exponent = exact == 0.0L ? -1022 : std::max(std::ilogb(exact), -1022);
  return static_cast<double>(std::fabs(actual - exact) / std::ldexp(1.0L, exponent - 52));
}

/// Numbers above 0.0 from every binade and around 1.
std::vector<double> positives() {
  Random random(3);
  std::vector<double> all = {5e-324, Limits::min(), Limits::max(), 1.0 - 0x1p-53, 1.0 + 0x1p-52};
  for (int i = 0; i < 20000; ++i) {
    all.push_back(std::bit_cast<double>(random.bits() % bits::of(kInf)));
    all.push_back(1.0 + std::ldexp(random.uniform(-1.0, 1.0), -2 - random.below(50)));
  }
  return all;
}

}  // namespace

TEST(Scalar, LogarithmsAndExponentialsAreWithinOneUlp) {
  Random random(4);
  std::vector<double> exponents = {-745.13321910194122, -708.39641853226408, 709.78271289338397, -0.0};
  for (const double x : positives()) {
    ASSERT_LT(ulps(scalar::naturalLog(x), std::log(static_cast<long double>(x))), 1.0) << bits::text(x);
    ASSERT_LT(ulps(scalar::Log10(x), std::log10(static_cast<long double>(x))), 1.0) << bits::text(x);
    exponents.push_back(random.uniform(-745.2, random.below(2) == 0 ? -708.0 : 709.78));
    exponents.push_back(std::ldexp(random.uniform(-1.0, 1.0), -random.below(60)));
  }
  for (const double x : exponents) {
    ASSERT_LT(ulps(scalar::exponential(x), std::exp(static_cast<long double>(x))), 1.0) << bits::text(x);
  }
}

TEST(Scalar, PowersAgreeWithProductsQuotientsAndRoots) {
  Random random(5);
  for (int k = 0; k < 20000; ++k) {
    const double x = std::exp2(random.uniform(-60.0, 60.0));
    const std::pair<double, double> powers[] = {{2.0, x * x},
                                                {3.0, x * x * x},
                                                {-1.0, 1.0 / x},
                                                {-2.0, 1.0 / x / x},
                                                {0.25, std::sqrt(std::sqrt(x))},
                                                {-0.5, 1.0 / std::sqrt(x)},
                                                {1.5, scalar::threeHalvesPower(x)},
                                                {0.5, std::sqrt(x)}};
    // Those are rounded once or twice themselves.
    for (const auto& [y, expected] : powers)
      ASSERT_LT(ulps(scalar::power(x, y), expected), 3.0L) << x << ", " << y;
  }
  EXPECT_EQ(scalar::power(-2.385, 0.0), 1.0);
  EXPECT_EQ(scalar::power(-2.385, 1.0), -2.385);
  EXPECT_TRUE(std::isnan(scalar::power(-2.385, 0.618)));
  EXPECT_EQ(scalar::power(0.0, 2.0), 0.0);
  EXPECT_EQ(scalar::power(2.385, 4000.0), HUGE_VAL);
}

TEST(Scalar, PowersOfThreeHalvesAreRoundedOnce) {
  for (const double x : positives()) {
    const long double exact = x * std::sqrt(static_cast<long double>(x));
    // Results below the normal range are rounded a second time.
    const double actual = scalar::threeHalvesPower(x), bound = exact < Limits::min() ? 0.75 : 0.501;
    ASSERT_TRUE(exact < 0x1p1024L ? ulps(actual, exact) <= bound : actual == kInf) << bits::text(x);
  }
  for (double root = 2.0; root < 2e5; root = std::floor(root * 1.6)) {
    EXPECT_EQ(scalar::threeHalvesPower(root * root), root * root * root);
  }
}

TEST(Scalar, EndsAndWholeNumbers) {
  using namespace scalar;
  EXPECT_TRUE(
      bits::equal({naturalLog(1.0), naturalLog(-0.0), naturalLog(kInf), naturalLog(-2.385), naturalLog(NAN)},
                  {0.0, -kInf, kInf, NAN, NAN}));
  EXPECT_TRUE(
      bits::equal({exponential(0.0), exponential(709.78271289338409), exponential(1e308), exponential(-745.2),
                   exponential(-1e308), exponential(kInf), exponential(-kInf), exponential(NAN)},
                  {1.0, kInf, kInf, 0.0, 0.0, kInf, 0.0, NAN}));
  EXPECT_TRUE(bits::equal(
      {threeHalvesPower(0.0), threeHalvesPower(kInf), threeHalvesPower(-2.385), threeHalvesPower(NAN)},
      {0.0, kInf, NAN, NAN}));
  EXPECT_TRUE(bits::equal({Log10(1.0), Log10(0.0), Log10(-0.0), Log10(kInf), Log10(-2.385), Log10(NAN)},
                          {0.0, -kInf, -kInf, kInf, NAN, NAN}));
  const double values[] = {power(NAN, 0.0), power(-2.0, 0.0), power(-2.5, 1.0), power(2.0, 0.5),
                           power(0.0, -2.0)};
  EXPECT_TRUE(bits::equal(std::vector<double>(values, values + 5), {1.0, 1.0, -2.5, std::sqrt(2.0), kInf}));
  EXPECT_TRUE(bits::equal({power(0.0, 2.0), power(-2.0, 2.0), power(-2.0, 0.5)}, {0.0, NAN, NAN}));
  for (int k = -307; k <= 308; ++k) EXPECT_EQ(Log10(std::stod("1e" + std::to_string(k))), k);
  EXPECT_TRUE(bits::equal({FSign(-2.5, 0.0), FSign(2.5, -0.0), FSign(-2.5, -1.0)}, {2.5, -2.5, -2.5}));
  for (const double x : {0.0, -7.0, 0x1p53 - 1.0, -0x1p53 + 1.0}) EXPECT_TRUE(IsLong(x)) << x;
  for (const double x : {2.385, 0x1p53, -0x1p53, kInf, 5e-324}) EXPECT_FALSE(IsLong(x)) << x;
}
