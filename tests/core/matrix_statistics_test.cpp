#include <cmath>

#include "support/tables.h"

using namespace kav;

TEST(MatrixColumns, StatisticsAndNormalizationEqualTheirDefinition) {
  Random random(61);
  for (int round = 0; round < 80; ++round) {
    const int n = random.below(30), p = 1 + random.below(4);
    const short mode = round % 2 == 0 ? kTrue : kFalse;
    matrix m(n, p, 0.0);
    fillColumns(m, random, 2);
    for (int i = 0; i < n && round % 3 != 0; ++i) m.weights[i] = random.uniform(0.1, 4.0);
    if (n > 4 && round % 5 == 0) m.weights[n - 1] = 0.0;
    std::vector<double> statistics, normalization, cells = cellsOf(m);
    for (int j = 0; j < p; ++j) {
      definitions::WeightedUpdate sums;
      for (int i = 0; i < n; ++i) {
        if (!m.getMissing(i, j)) sums.add(m.getElement(i, j), m.getElement(i, j), m.weights[i]);
      }
      const bool none = sums.count == 0.0;
      const auto add = [&](std::vector<double>& to, short unbiased, double ofNone, double unknown) {
        const double divisor = none ? n - 1.0 : sums.divisor(unbiased, kFalse);
        const bool known = !none && divisor > 0.0;
        to.insert(to.end(),
                  {none ? ofNone : sums.meanA, known ? std::sqrt(sums.squares / divisor) : unknown, divisor});
      };
      add(statistics, mode, kMissing, kMissing);
      add(normalization, kTrue, 0.0, 0.0);
      const double mean = normalization.end()[-3], sigma = normalization.end()[-2];
      for (int k = n * j; k < n * (j + 1); ++k) {
        double& x = cells[static_cast<std::size_t>(k)];
        if (!m.missing[k]) x = (x - mean) / (sigma == 0.0 ? 1.0 : sigma);
      }
    }
    const auto columns = [&](const double* a, const double* b) {
      std::vector<double> all;
      for (int j = 0; j < p; ++j) all.insert(all.end(), {a[j], b[j], m.weightcorr[j]});
      return all;
    };
    EXPECT_EQ(m.calcDescStat(mode), 0);
    EXPECT_TRUE(bits::equal(columns(m.descmu, m.descsigma), statistics)) << round;
    for (const int expected : {0, -1}) {  // a second time refused
      EXPECT_EQ(m.Normalize(), expected);
      EXPECT_TRUE(bits::equal(columns(m.normu, m.norsigma), normalization)) << round;
      EXPECT_TRUE(holds(m, n, p, cells)) << round;
    }
    EXPECT_EQ(m.normalized, 1);
  }
}

TEST(MatrixColumns, KeepStatisticsUntilAWriteOrAnotherMode) {
  const double cells[] = {1.25, 3.75, 2.5, 7.0, 7.0, 7.0};
  matrix m(3, 2, cells, true, 0, 0);
  EXPECT_EQ(m.getDescMu(0, -1), 2.5);
  EXPECT_EQ(m.getDescSigma(0, -1), 1.25);
  EXPECT_EQ(m.getDescSigma(1, -1), 0.0);
  m.descmu[0] = 58.5;
  EXPECT_EQ(m.getDescMu(0, -1), 58.5);
  for (const int j : {-1, 2}) EXPECT_EQ(m.getDescMu(j, -1), -1.0) << m.getDescSigma(j, -1);
  EXPECT_EQ(m.getDescMu(0, 0), 2.5);
  EXPECT_EQ(m.descMode, 0);
  EXPECT_EQ(m.getWeightcorr(0), 3.0);
  EXPECT_EQ(m.descValid, 1);
  m.setElement(1, 4.5);
  EXPECT_EQ(m.descValid, 0);
  EXPECT_EQ(m.getDescMu(0, 0), 2.75);
  m.setMissing(1, true);
  m.setElement(1, 58.5);  // dropped, but the statistics are stale
  EXPECT_EQ(m.getDescMu(0, 0), 1.875);
}

TEST(MatrixColumns, AreScaledWhereCellsHaveNoFlag) {
  const double cells[] = {3.0, 2.5, -4.0, 0.0, 0.0, 0.0};
  matrix m(3, 2, cells, true, 0, 0);
  m.values[1] = 12.0;
  m.setMissing(1, true);
  EXPECT_EQ(m.VInnerProd(0), 169.0);
  EXPECT_EQ(m.Normalize(0), 0);
  EXPECT_EQ(m.Normalize(1), 0);
  EXPECT_TRUE(holds(m, 3, 2, {3.0 / 13.0, 12.0, -4.0 / 13.0, 0.0, 0.0, 0.0}));
  matrix rows(3, 2, 2.5);
  rows.setMissing(4, true);
  const double factors[] = {-1.5, 3.0, 7.0};
  EXPECT_EQ(rows.weighting(factors, 2), 0.0);
  EXPECT_EQ(rows.SProd(2, 0.5), 0.0);
  EXPECT_TRUE(holds(rows, 3, 2, {-3.75, 7.5, 1.25, -3.75, 2.5, 1.25}));
  EXPECT_EQ(rows.sumOfWeights, 3.0);
}
