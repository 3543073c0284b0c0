#include "kavoratb1c/stats/vector_sums.h"

#include <climits>
#include <limits>
#include <vector>

#include "support/bits.h"
#include "support/random.h"

using namespace kav;

namespace {

const double kNan = std::numeric_limits<double>::quiet_NaN();

/// The sums as they are defined, cell by cell through the accessors.
double sumByDefinition(const matrix& x, int n, const short* exclude, const matrix* w) {
  double sum = 0.0;
  for (int i = 0; i < n; ++i) {
    if (exclude != nullptr && exclude[i] != 0) continue;
    sum += x.getElement(i) * (w == nullptr ? 1.0 : w->getElement(i));
  }
  return sum;
}

double meanByDefinition(const matrix& x, int n, const short* exclude, const matrix& w) {
  double sum = 0.0;
  double total = 0.0;
  for (int i = 0; i < n; ++i) {
    if (exclude[i] != 0 || x.getMissing(i) || w.getElement(i) == 0.0) continue;
    total += w.getElement(i);
    sum += x.getElement(i) * w.getElement(i);
  }
  return sum / total;
}

/// Cells with everything that a macro array may hold.
std::vector<double> mixedCells(Random& random, int n) {
  std::vector<double> cells;
  for (int i = 0; i < n; ++i) {
    const int kind = random.below(20);
    cells.push_back(kind == 0   ? kMissing
                    : kind == 1 ? -0.0
                    : kind == 2 ? 0.0
                    : kind == 3 ? -1.7E+306
                                : random.uniform(-1e3, 1e3));
  }
  return cells;
}

}  // namespace

TEST(VectorSums, EqualTheirDefinitionBitForBit) {
  Random random(20);
  for (int n : {0, 1, 2, 3, 7, 8, 9, 63, 64, 65, 511, 512, 513, 1200}) {
    for (int round = 0; round < 8; ++round) {
      SCOPED_TRACE("n = " + std::to_string(n) + ", round " + std::to_string(round));
      // Rounds differ in what is missing, in who keeps markers, and in vectors that end before n.
      const std::vector<double> cells = mixedCells(random, n), weightCells = mixedCells(random, n);
      const bool keepAll = round % 2 == 1;
      const matrix x(round == 2 ? n - 1 : n, 1, cells.data(), keepAll, 0, 0);
      const matrix w(round == 3 ? n - 1 : n, 1, weightCells.data(), keepAll, 0, 0);
      std::vector<short> exclude(static_cast<std::size_t>(n) + 1);
      for (short& flag : exclude) flag = static_cast<short>(round < 4 ? 0 : random.below(3) - 1);

      EXPECT_TRUE(bits::equal(V_Sum(&x, n, exclude.data(), &w), sumByDefinition(x, n, exclude.data(), &w)));
      EXPECT_TRUE(bits::equal(V_Sum(&x, n, nullptr, &w), sumByDefinition(x, n, nullptr, &w)));
      EXPECT_TRUE(
          bits::equal(V_Sum(&x, n, exclude.data(), nullptr), sumByDefinition(x, n, exclude.data(), nullptr)));
      EXPECT_TRUE(bits::equal(V_Sum2(&x, n), sumByDefinition(x, n, nullptr, nullptr)));
      EXPECT_TRUE(bits::equal(V_Mean(&x, n, exclude.data(), &w), meanByDefinition(x, n, exclude.data(), w)));
    }
  }
}

TEST(VectorSums, SumTakesMissingCellsByTheirValueAndMeanLeavesThemOut) {
  const double cells[] = {2.385, kMissing, 4.5}, ones[] = {1.0, 1.0, 1.0};
  const short none[3] = {};
  const matrix flagged(3, 1, cells, false, 0, 0), kept(3, 1, cells, true, 0, 0), w(3, 1, ones, true, 0, 0);
  EXPECT_EQ(V_Sum(&flagged, 3, none, &w), 6.885);
  EXPECT_EQ(V_Sum(&kept, 3, none, &w), kMissing);
  EXPECT_EQ(V_Mean(&flagged, 3, none, &w), 6.885 / 2.0);
  EXPECT_EQ(V_Mean(&kept, 3, none, &w), 6.885 / 2.0);
}

TEST(VectorSums, VectorsThatEndEarlyReadMinusOne) {
  const double cells[] = {2.0, 4.0}, weightCells[] = {3.0};
  const short none[4] = {};
  const matrix x(2, 1, cells, true, 0, 0), w(1, 1, weightCells, true, 0, 0);
  EXPECT_EQ(V_Sum2(&x, 4), 4.0);
  EXPECT_EQ(V_Sum(&x, 2, none, &w), 2.0 * 3.0 - 4.0);
  EXPECT_EQ(V_Mean(&x, 3, none, &w), (2.0 * 3.0 - 4.0 + 1.0) / (3.0 - 1.0 - 1.0));
  EXPECT_EQ(V_Sum2(nullptr, 2), -2.0);
}

TEST(VectorSums, MeanOfNothingIsNotANumber) {
  const double cell = 2.385, zero = 0.0, minusZero = -0.0;
  const short excluded = 1;
  const short used = 0;
  const matrix x(1, 1, &cell, true, 0, 0), none(1, 1, &zero, true, 0, 0),
      negative(1, 1, &minusZero, true, 0, 0);
  const matrix one(1, 1, 1.0);
  EXPECT_TRUE(std::isnan(V_Mean(&x, 0, nullptr, nullptr)));
  EXPECT_TRUE(std::isnan(V_Mean(&x, INT_MIN, &used, &one)));
  EXPECT_TRUE(std::isnan(V_Mean(&x, 1, &excluded, &one)));
  EXPECT_TRUE(std::isnan(V_Mean(&x, 1, &used, &none)));
  EXPECT_TRUE(std::isnan(V_Mean(&x, 1, &used, &negative)));
}

TEST(VectorSums, MeanNeedsFlagsAndWeights) {
  const matrix x(2, 1, 2.385), w(2, 1, 1.0);
  const short none[2] = {};
  EXPECT_EQ(V_Mean(&x, 2, nullptr, &w), kMissing);
  EXPECT_EQ(V_Mean(&x, 2, none, nullptr), kMissing);
}

TEST(VectorSums, RowOfWeightZeroIsAnAbsentRow) {
  Random random(7);
  std::vector<double> all, allWeights, present, presentWeights;
  for (int i = 0; i < 300; ++i) {
    all.push_back(random.uniform(-50.0, 80.0));
    allWeights.push_back(random.below(4) == 0 ? 0.0 : random.uniform(0.1, 3.0));
    if (allWeights.back() == 0.0) continue;
    present.push_back(all.back());
    presentWeights.push_back(allWeights.back());
  }
  const std::vector<short> none(all.size());
  const auto mean = [&](const std::vector<double>& x, const std::vector<double>& w) {
    const int n = static_cast<int>(x.size());
    const matrix cells(n, 1, x.data(), false, 0, 0), weights(n, 1, w.data(), false, 0, 0);
    return V_Mean(&cells, n, none.data(), &weights);
  };
  EXPECT_TRUE(bits::equal(mean(all, allWeights), mean(present, presentWeights)));
}

// A weight of zero would add nothing to finite cells even if the row were used.
TEST(VectorSums, WeightZeroLeavesOutWhatCannotBeMultipliedByIt) {
  const double infinity = std::numeric_limits<double>::infinity();
  const double cells[] = {2.385, infinity, 4.5}, weightCells[] = {1.0, 0.0, 1.0};
  const short none[3] = {};
  const matrix x(3, 1, cells, false, 0, 0), w(3, 1, weightCells, false, 0, 0);
  EXPECT_EQ(V_Mean(&x, 3, none, &w), 6.885 / 2.0);
  EXPECT_TRUE(std::isnan(V_Sum(&x, 3, none, &w)));
}

TEST(VectorSums, NotANumberGoesThrough) {
  const double cells[] = {2.385, kNan}, weightCells[] = {1.0, kNan};
  const short none[2] = {};
  const matrix x(2, 1, cells, true, 0, 0), ones(2, 1, 1.0), w(2, 1, weightCells, true, 0, 0);
  EXPECT_TRUE(std::isnan(V_Sum2(&x, 2)));
  EXPECT_TRUE(std::isnan(V_Mean(&x, 2, none, &ones)));
  EXPECT_TRUE(std::isnan(V_Mean(&ones, 2, none, &w)));
}

TEST(VectorSums, OtherSumsAndCountsEqualTheirDefinition) {
  Random random(21);
  for (int round = 0; round < 60; ++round) {
    const int n = round % 3 == 0 ? 65 : round / 5;
    const std::vector<double> xCells = mixedCells(random, n), yCells = mixedCells(random, n);
    const std::vector<short> none(xCells.size());
    matrix x(n, 1, xCells.data(), round % 2 == 0, 0, 0), y(n - round % 2, 1, yCells.data(), false, 0, 0);
    x.setMissing(random.below(n + 1), true);  // keeps its value
    const double value = round % 4 < 2 ? 0.0 : -1.0;
    const int from = random.below(n + 4) - 2, to = random.below(n + 4) - 1;
    // SumSq, SumSqW, DiffSq, ProductTrV1V2, SumFromTo, MeanAbs, NbIf, SumIf, NbMissing, NbTrueFromTo
    std::vector<double> sums(10);
    double total = 0.0;
    for (int i = 0; i < n; ++i) {
      const double a = x.getElement(i), b = y.getElement(i);
      const bool present = !x.getMissing(i), inRange = i + 1 >= from && i + 1 <= to;
      const bool met = present && !y.getMissing(i) && b == value, weighted = present && b != 0.0;
      const double terms[] = {present ? a * a : 0.0,
                              present ? b * (a * a) : 0.0,
                              (a - b) * (a - b),
                              a * b,
                              inRange ? a : 0.0,
                              weighted ? std::fabs(a) * b : 0.0,
                              present && a == value ? 1.0 : 0.0,
                              met ? a : 0.0,
                              a <= kMissing || !present ? 1.0 : 0.0,
                              inRange && a != 0.0 ? 1.0 : 0.0};
      for (std::size_t k = 0; k < 10; ++k) sums[k] += terms[k];
      if (weighted) total += b;
    }
    sums[5] /= total;
    if (n < 1) sums[7] = kMissing;
    const int missing = V_NbMissing(&x, n), nonZero = V_NbTrueFromTo(&x, n, from, to);
    EXPECT_TRUE(
        bits::equal({V_SumSq(&x, n), V_SumSqW(&x, n, &y), V_DiffSq(&x, n, &y), V_ProductTrV1V2(&x, n, &y),
                     V_SumFromTo(&x, n, from, to), V_MeanAbs(&x, n, none.data(), &y), V_NbIf(&x, n, value),
                     V_SumIf(&x, n, &y, value), missing + 0.0, nonZero + 0.0},
                    sums));
    EXPECT_EQ(V_NbNonMissing(&x, n), n - missing);
  }
  const double cells[] = {2.5, 99.0, 4.5, kMissing, 8.0}, groups[] = {4.0, 6.0, 4.0, 4.0, 4.0};
  const matrix x(5, 1, cells, false, 0, 0), group(5, 1, groups, false, 0, 0);
  EXPECT_EQ(V_MeanIf(&x, 5, &group, 4.0), 5.0);
  EXPECT_DOUBLE_EQ(V_VarIf(&x, 5, &group, 4.0, 1), 7.75);
  EXPECT_EQ(V_VarIf(&x, 5, &group, 6.0, 0), kMissing);
  EXPECT_EQ(V_VarIf(&x, 5, &group, 6.0, -1), 0.0);
}
