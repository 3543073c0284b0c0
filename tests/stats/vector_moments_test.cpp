#include "kavoratb1c/stats/vector_moments.h"

#include <climits>
#include <limits>
#include <numeric>
#include <string>
#include <vector>

#include "numerics/scalar.h"
#include "support/bits.h"
#include "support/data.h"
#include "support/random.h"

using namespace kav;

namespace {

const double kNan = std::numeric_limits<double>::quiet_NaN();
const short kOptions[] = {0, -1, 1}, kNone[5000] = {};

/// What leaves a cell out: A all three reasons, B all but a weight of zero, C all but being missing.
enum class Rule { A, B, C };

/// Every statistic as it is defined, step by step and cell by cell through the accessors.
struct Definition {
  Definition(Rule rule, const matrix& x, const matrix& y, int n, const short* exclude, const matrix& weights,
             short unbiased, short biasIsOne) {
    double total = 0.0, count = 0.0, mean = 0.0, meanY = 0.0, xx = 0.0, yy = 0.0, xy = 0.0;
    double squares = 0.0, m2 = 0.0, m3 = 0.0, m4 = 0.0;
    for (int i = 0; i < n; ++i) {
      const double w = weights.getElement(i);
      if (exclude[i] != 0 || (rule != Rule::B && w == 0.0)) continue;
      if (rule != Rule::C && (x.getMissing(i) || y.getMissing(i))) continue;
      total += w;
      count += 1.0;
      const double factor = total == w && w != 0.0 ? 0.0 : w - w * w / total, dy = y.getElement(i) - meanY;
      const double r = w / total, d = x.getElement(i) - mean, d2 = d * d, r2 = r * r;
      m4 +=
          w * (d2 * d2) * (1.0 - 4.0 * r + 6.0 * r2 - 3.0 * (r2 * r)) + 6.0 * r2 * d2 * m2 - 4.0 * r * d * m3;
      m3 += w * (d2 * d) * (1.0 - 3.0 * r + 2.0 * r2) - 3.0 * r * d * m2;
      m2 += (1.0 - r) * w * d2;
      squares += factor * d2;
      xy += factor * dy * d;
      xx += factor * d * d;
      yy += factor * dy * dy;
      mean += r * d;
      meanY += r * dy;
    }
    const double a = total / count, k = biasIsOne == -1 ? 1.0 : a, by = unbiased == -1 ? total - k : total;
    basic = {mean, squares / by, xx == 0.0 || yy == 0.0 ? 0.0 : xy / std::sqrt(xx * yy)};
    if (count == 0.0) basic[2] = kMissing;
    shapes = {mean, kMissing, kMissing, kMissing, kMissing, kMissing};
    if (unbiased == -1 && by == 0.0) return;
    const double var = shapes[1] = m2 / by;
    if (var == 0.0) return;
    const double skewP = shapes[2] = (m3 / total) / scalar::threeHalvesPower(var);
    const double kurtP = shapes[3] = (m4 / total) / (var * var) - 3.0;
    const double divisor = (total - 2.0 * k) * (total - 3.0 * k);
    const double kurt = ((kurtP + 3.0) * (k + total) - 3.0 * (total - k)) * (total - k) / divisor;
    if (!(total - 2.0 * a <= 0.0)) shapes[4] = std::sqrt((total - k) * total) * skewP / (total - 2.0 * k);
    if (!(divisor <= 0.0)) shapes[5] = kurt;
  }

  std::vector<double> basic;   ///< mean, variance, correlation
  std::vector<double> shapes;  ///< mean, variance, skewP, kurtP, skew, kurt
};

std::vector<double> shapesOf(const matrix& x, int n, const short* exclude, const matrix* w, short unbiased,
                             short biasIsOne) {
  std::vector<double> out(6, kNan);
  double* const o = out.data();
  V_MeanVarSkewPKurtP(&x, n, o, o + 1, o + 2, o + 3, o + 4, o + 5, exclude, w, unbiased, biasIsOne);
  return out;
}

std::vector<double> someCells(Random& random, int n, double lower, int spread) {
  std::vector<double> cells;
  for (int i = 0; i < n; ++i) {
    const int kind = random.below(16);
    const double x = std::ldexp(random.uniform(lower, 3.0), random.below(2 * spread + 1) - spread);
    cells.push_back(kind == 0 ? kMissing : kind < 3 ? 0.0 : x);
  }
  return cells;
}

void expectNear(const std::vector<double>& actual, const std::vector<double>& expected) {
  for (std::size_t k = 0; k < expected.size(); ++k) {
    EXPECT_NEAR(actual[k], expected[k], 1e-12 * std::fabs(expected[k])) << k;
  }
}

/// Fuel consumption and number of carburettors of 32 cars.
struct Cars {
  const data::Table table{"reference/mtcars.csv"};
  const matrix mpg{32, 1, table.column(2), false, 0, 0}, carb{32, 1, table.column(12), false, 0, 0},
      ones{32, 1, 1.0};
};

}  // namespace

TEST(VectorMoments, EqualTheirDefinitionBitForBit) {
  Random random(31);
  for (int n : {0, 1, 2, 3, 4, 8, 9, 65, 130}) {
    for (int round = 0; round < 10; ++round) {
      // Rounds differ in who keeps markers, in the weights' spread and sign, and in vectors that end early.
      const auto xCells = someCells(random, n, -2.0, 4), yCells = someCells(random, n, -7.0, 0);
      const auto wCells = someCells(random, n, round == 4 ? -1.0 : 0.1, round == 3 ? 60 : 0);
      const matrix x(round == 6 ? n - 1 : n, 1, xCells.data(), round % 2 == 1, 0, 0);
      const matrix y(n, 1, yCells.data(), round % 2 == 0, 0, 0);
      const matrix w(round == 5 ? n - 2 : n, 1, wCells.data(), false, 0, 0);
      std::vector<short> exclude(static_cast<std::size_t>(n));
      for (short& flag : exclude) flag = static_cast<short>(round < 2 ? 0 : random.below(4) / 3 * -1);
      if (round == 7) exclude.assign(exclude.size(), 1);
      for (int options = 0; options < 9; ++options) {
        const short* const flags = exclude.data();
        const short unbiased = kOptions[options / 3], biasIsOne = kOptions[options % 3];
        SCOPED_TRACE(testing::Message() << n << " cells, round " << round << ", options " << options);
        const auto defined = [&](Rule rule, const matrix& y1) {
          return Definition(rule, x, y1, n, flags, w, unbiased, biasIsOne);
        };
        const std::vector<double> a = defined(Rule::A, x).basic, b = defined(Rule::B, x).basic;
        std::vector<double> all(4, kNan);
        EXPECT_EQ(V_MeanVar(&x, n, &all[0], &all[1], flags, &w, unbiased, biasIsOne), -1);
        EXPECT_EQ(V_MeanStdev(&x, n, &all[2], &all[3], flags, &w, unbiased, biasIsOne), -1);
        all.insert(all.end(), {V_Var(&x, n, flags, &w, unbiased, biasIsOne),
                               V_Stdev(&x, n, flags, &w, unbiased, biasIsOne),
                               CorrelPearson(&x, &y, n, flags, &w, unbiased, biasIsOne)});
        EXPECT_TRUE(bits::equal(
            all, {a[0], a[1], a[0], std::sqrt(a[1]), b[1], std::sqrt(b[1]), defined(Rule::A, y).basic[2]}));
        EXPECT_TRUE(bits::equal(shapesOf(x, n, flags, &w, unbiased, biasIsOne), defined(Rule::C, x).shapes));
      }
    }
  }
}

TEST(VectorMoments, CertifiedSets) {
  const struct {
    const char* name;
    double mean, stdev, error;
  } sets[] = {{"Lew", -177.435, 277.3321680443161357649225, 1e-15},
              {"Lottery", 518.9587155963302752293578, 291.6997274709690842392437, 1e-15},
              {"Mavro", 2.001855999999999973226750, 4.291234540030854092852462e-4, 1e-12},
              {"NumAcc1", 10000002.0, 1.0, 0.0},
              {"NumAcc3", 1000000.200000000011583383, 0.1000000000349245965480974, 3.16e-12},
              {"PiDigits", 4.5348, 2.867339060288708072461076, 1.26e-15}};
  for (const auto& set : sets) {
    const data::Table table(std::string("strd/") + set.name + ".csv");
    const int n = table.n;
    const matrix x(n, 1, table.column(1), false, 0, 0), ones(n, 1, 1.0);
    std::vector<double> actual(2);
    V_MeanStdev(&x, n, &actual[0], &actual[1], kNone, &ones, -1, 0);
    EXPECT_NEAR(actual[0], set.mean, 1e-14 * std::fabs(set.mean)) << set.name;
    EXPECT_NEAR(actual[1], set.stdev, set.error * set.stdev) << set.name;
  }
}

// Expected values were computed elsewhere from the repeated rows, or from the weighted sums as they stand.
TEST(VectorMoments, WeightedReferenceValues) {
  const Cars cars;
  const matrix &x = cars.mpg, &w = cars.carb, &ones = cars.ones;
  double mean, var;
  V_MeanVar(&x, 32, &mean, &var, kNone, &w, -1, -1);
  expectNear(
      {mean, var, V_Var(&x, 32, kNone, &w, 0, 0), V_Var(&x, 32, kNone, &w, -1, 0),
       CorrelPearson(&x, &w, 32, kNone, &ones, -1, 0)},
      {18.243333333333336, 26.768999999999995, 26.471566666666671, 27.325488172043009, -0.55092507390245882});
}

// Neither scale nor denominator matters to a correlation.
TEST(VectorMoments, ConstantsVaryByExactlyNothingAndMultiplesTogether) {
  Random random(12);
  for (const double scale : {-1e120, -1e-5, -1e-120}) {
    const matrix x(40, 1, 2.385);
    matrix w(40, 1, 0.0), y(40, 1, 0.0);
    for (int i = 0; i < 40; ++i) {
      w.values[i] = random.uniform(0.01, 5.0);
      y.values[i] = scale * w.values[i];
    }
    EXPECT_TRUE(bits::equal(V_Var(&x, 40, kNone, &w, -1, 0), 0.0));
    EXPECT_EQ(shapesOf(x, 40, kNone, &w, -1, 0)[4], kMissing);
    EXPECT_TRUE(bits::equal(CorrelPearson(&w, &x, 40, kNone, &w, 0, 0), 0.0));
    EXPECT_EQ(CorrelPearson(&w, &w, 40, kNone, &w, 0, 0), 1.0);
    EXPECT_NEAR(CorrelPearson(&y, &w, 40, kNone, &w, -1, -1), -1.0, 1e-14);
  }
}

TEST(VectorMoments, FlagsAndWeightsAreNeededForCells) {
  const matrix w(2, 1, 1.0), x(2, 1, 2.385);
  for (const short* flags : {kNone, static_cast<const short*>(nullptr)}) {
    const matrix* const weights = flags == nullptr ? &w : nullptr;
    std::vector<double> all = shapesOf(x, 2, flags, weights, -1, 0);
    all.insert(all.end(), {V_Var(&x, 2, flags, weights, -1, 0), V_Stdev(&x, 2, flags, weights, -1, 0),
                           CorrelPearson(&x, &x, 2, flags, weights, -1, 0), kNan, kNan, kNan});
    EXPECT_EQ(V_MeanVar(&x, 2, &all[9], &all[10], flags, weights, -1, 0), 0);
    EXPECT_EQ(V_MeanStdev(&x, 2, nullptr, &all[11], flags, weights, -1, 0), 0);
    EXPECT_TRUE(bits::equal(all, std::vector<double>(12, kMissing)));
  }
  std::vector<double> none = {kNan, 2.385, V_Var(nullptr, INT_MIN, nullptr, nullptr, -1, -1)};
  EXPECT_EQ(V_MeanVar(nullptr, -1, &none[0], &none[1], nullptr, nullptr, 0, 0), -1);
  EXPECT_TRUE(bits::equal(none, {0.0, kNan, 0.0 / -1.0}));
}

// Deviations from the mean in two passes, and the usual formulas of the sample's shape.
TEST(VectorMoments, ShapesAgreeWithTwoPasses) {
  const Cars cars;
  const double n = 32.0, mean = std::accumulate(cars.mpg.values, cars.mpg.values + 32, 0.0) / n;
  double m[5] = {};
  for (int i = 0; i < 32; ++i) {
    for (int order : {2, 3, 4}) m[order] += std::pow(cars.mpg.values[i] - mean, order) / n;
  }
  const double skewP = m[3] / std::pow(m[2], 1.5), kurtP = m[4] / (m[2] * m[2]) - 3.0;
  const double skew = skewP * std::sqrt(n * (n - 1.0)) / (n - 2.0);
  const double kurt = ((n + 1.0) * kurtP + 6.0) * (n - 1.0) / ((n - 2.0) * (n - 3.0));
  expectNear(shapesOf(cars.mpg, 32, kNone, &cars.ones, 0, 0), {mean, m[2], skewP, kurtP, skew, kurt});
}
