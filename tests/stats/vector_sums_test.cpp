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

double meanByDefinition(const matrix& x, int n, const short* exclude, const matrix* w) {
  if (n > 0 && (exclude == nullptr || w == nullptr)) return kMissing;
  double sum = 0.0, total = 0.0;
  for (int i = 0; i < n; ++i) {
    if (exclude[i] != 0 || x.getMissing(i) || w->getElement(i) == 0.0) continue;
    total += w->getElement(i);
    sum += x.getElement(i) * w->getElement(i);
  }
  return sum / total;
}

/// Cells with everything that a macro array may hold.
std::vector<double> mixedCells(Random& random, int n, bool finite = true) {
  std::vector<double> cells;
  for (int i = 0; i < n; ++i) {
    const double unusual[] = {kMissing, -0.0, 0.0, -1.7E+306, HUGE_VAL, kNan};
    const int kind = random.below(20);
    cells.push_back(kind < (finite ? 4 : 6) ? unusual[kind] : random.uniform(-1e3, 1e3));
  }
  return cells;
}

}  // namespace

// What is not finite does not count in a row without weight. Vectors that end early read -1.
TEST(VectorSums, EqualTheirDefinitionBitForBit) {
  Random random(20);
  for (int n : {INT_MIN, 0, 1, 2, 3, 7, 8, 9, 63, 64, 65, 511, 512, 513, 1200}) {
    for (int round = 0; round < 16; ++round) {
      SCOPED_TRACE("n = " + std::to_string(n) + ", round " + std::to_string(round));
      // Rounds differ in what is missing, in who keeps markers, and in vectors that end before n.
      const std::vector<double> cells = mixedCells(random, n, round < 8), weightCells = mixedCells(random, n);
      const bool keepAll = round % 2 == 1;
      const matrix x(n - (n > 0 && round % 8 == 2), 1, cells.data(), keepAll, 0, 0);
      const matrix w(n - (n > 0 && round % 8 == 3), 1, weightCells.data(), keepAll, 0, 0);
      std::vector<short> exclude(cells.size() + 1);
      for (short& flag : exclude) flag = static_cast<short>(round % 8 < 4 ? 0 : random.below(3) - 1);
      for (const short* flags :
           {static_cast<const short*>(exclude.data()), static_cast<const short*>(nullptr)}) {
        for (const matrix* weights : {&w, static_cast<const matrix*>(nullptr)}) {
          EXPECT_TRUE(bits::equal(V_Sum(&x, n, flags, weights), sumByDefinition(x, n, flags, weights)));
          EXPECT_TRUE(bits::equal(V_Mean(&x, n, flags, weights), meanByDefinition(x, n, flags, weights)));
        }
      }
      EXPECT_TRUE(bits::equal(V_Sum2(&x, n), sumByDefinition(x, n, nullptr, nullptr)));
    }
  }
  EXPECT_EQ(V_Sum2(nullptr, 2), -2.0);
}

TEST(VectorSums, ByHand) {
  const double cells[] = {2.385, kMissing, 4.5};
  const short none[3] = {}, all[3] = {1, 1, 1};
  const matrix flagged(3, 1, cells, false, 0, 0), kept(3, 1, cells, true, 0, 0), w(3, 1, 1.0);
  EXPECT_EQ(V_Sum(&flagged, 3, none, &w), 6.885);
  EXPECT_EQ(V_Sum(&kept, 3, none, &w), kMissing);
  EXPECT_EQ(V_Mean(&flagged, 3, none, &w), 6.885 / 2.0);
  EXPECT_EQ(V_Mean(&kept, 3, none, &w), 6.885 / 2.0);
  EXPECT_TRUE(std::isnan(V_Mean(&kept, 3, all, &w)));
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
