#include "kavoratb1c/algebra/covariance.h"

#include <utility>

#include "support/data.h"
#include "support/tables.h"

using namespace kav;

namespace {

using definitions::WeightedUpdate;

using C = matrix*&;

double correlationOf(double covariance, double varianceA, double varianceB, bool diagonal) {
  if (covariance == kMissing) return kMissing;
  if (std::fabs(varianceA * varianceB) - 1e-12 <= 0.0) return 0.0;
  return diagonal ? 1.0 : covariance / std::sqrt(varianceA * varianceB);
}

/// Cells of a vector or table, the marker where one is flagged.
std::vector<double> markedCellsOf(const matrix& m) {
  std::vector<double> cells = cellsOf(m);
  m.copyMatTo(cells.data());
  return cells;
}

}  // namespace

TEST(Covariance, EqualsItsDefinitionBitForBitWithAndWithoutMissingCells) {
  Random random(530);
  const int rowCounts[] = {0, 1, 2, 3, 64, 255, 256, 257, 600}, columnCounts[] = {1, 2, 4, 7, 8, 9, 17, 40};
  for (int round = 0; round < 144; ++round) {
    SCOPED_TRACE(round);
    const int n = rowCounts[round % 9], p = columnCounts[round % 8], h = p / 2, q = p - h;
    matrix table(n + random.below(2), p, 0.0), r(p, p, 8.1), m(p, 1, 8.1), s(p, 1, 8.1), v(p, 1, 8.1);
    fillColumns(table, random, round / 9 % 2 * 2);
    matrix *a = &table, *result = &r, *means = &m, *stdevs = &s, *variances = &v;
    const auto owner = randomWeights(random, n);
    const matrix* weights = owner.get();
    const std::vector<short> flags = randomFlags(random, n);
    const short* rows = random.below(2) == 0 ? nullptr : flags.data();
    const auto option = [&] { return static_cast<short>(random.below(3) - 1); };
    const short u = option(), f = option(), correlation = option(), centre = option(), standardize = option();

    const auto pair = [&](int i, int j) {
      return WeightedUpdate(table, i, j, n, weights, [&, i, j](int k) {
        return (rows == nullptr || rows[k] == 0) && !table.getMissing(k, i) && !table.getMissing(k, j);
      });
    };
    const auto covariance = [&](int i, int j) {
      const WeightedUpdate sums = pair(i, j);
      return sums.count == 0.0 ? kMissing : sums.products / sums.divisor(u, f);
    };
    matrix own(p, 1, 0.0), expectedM(p, 1, kMissing), expectedS(p, 1, kMissing), expectedV(p, 1, kMissing);
    for (int j = 0; j < p; ++j) {
      const WeightedUpdate sums = pair(j, j);
      own.values[j] = covariance(j, j);
      if (sums.count > 0.0) expectedM.values[j] = sums.meanA;
      if (sums.count == 0.0 || sums.divisor(u, f) <= 0.0) continue;
      expectedS.values[j] = std::sqrt(expectedV.values[j] = own.values[j]);
    }
    std::vector<double> expected;
    for (int k = 0; k < p * p; ++k) {
      const int i = std::min(k % p, k / p), j = std::max(k % p, k / p);
      const double c = covariance(i, j), r2 = correlationOf(c, own.values[i], own.values[j], i == j);
      expected.push_back(correlation == 0 ? c : r2);
    }
    EXPECT_EQ(M_CovCorr(a, n, p, result, correlation, rows, weights, u, f), 0);
    EXPECT_TRUE(bits::equal(markedCellsOf(r), expected));
    for (int k = 0; k < p * p; ++k) EXPECT_EQ(r.missing[k], r.values[k] == kMissing);

    // The first columns with the others, whose covariances the table holds.
    matrix right(table.nX, q, table.values + table.nX * h, true, 0, 0), r3(h, q, 8.1), *result3 = &r3;
    std::copy_n(table.missing + table.nX * h, table.nX * q, right.missing);
    const auto determination = static_cast<short>(random.below(2));
    M_CorrMatMat(a, n, h, &right, q, result3, rows, weights, correlation, determination, u, f);
    for (int k = 0; k < h * q && (correlation != 0 || determination == 0); ++k) {
      const double c = expected[static_cast<std::size_t>(k % h + p * (h + k / h))];
      EXPECT_TRUE(bits::equal(r3.values[k], determination == 0 || c == kMissing ? c : c * c));
    }

    const auto cells = copyOf(table);
    for (int k = 0; k < table.nX * p && (centre == kTrue || standardize == kTrue); ++k) {
      const double mean = expectedM.values[k / table.nX], sd = expectedS.values[k / table.nX];
      if (k % table.nX >= n) continue;
      const double d = cells->values[k] - (mean == kMissing ? 0.0 : mean);
      cells->setElement(k, standardize != kTrue ? d : sd > 0.0 ? d / sd : 0.0);
    }
    M_CovCorrAndMeanStDevVar(a, n, p, result, means, stdevs, variances, correlation, rows, weights, u, f,
                             centre, standardize);
    EXPECT_TRUE(bits::equal(markedCellsOf(r), expected));
    EXPECT_TRUE(bits::equal(markedCellsOf(m), cellsOf(expectedM)));
    EXPECT_TRUE(bits::equal(markedCellsOf(s), cellsOf(expectedS)));
    EXPECT_TRUE(bits::equal(markedCellsOf(v), cellsOf(expectedV)));
    EXPECT_TRUE(bits::equal(cellsOf(table), cellsOf(*cells)));
  }
}

TEST(Covariance, ScatterEqualsItsDefinition) {
  const double cells[] = {2.385, -7.7, 0.3, 9.1, 5.5, -3.1}, groups[] = {4.5, -1.0, 4.5};
  const double powersOfTwo[] = {0.5, 0.0, 4.0};  // the order of the factors shows in no bit
  const matrix a(3, 2, cells, true, 0, 0), w(3, 1, powersOfTwo, true, 0, 0), g(3, 1, groups, true, 0, 0);
  for (const double wanted : {4.5, -1.0, 7.7}) {
    const auto scatter = [&](int i, int j) {
      double sum = 0.0;
      for (int k = 1; k <= 3; ++k) {
        const double weight = wanted == -1.0 || g.vbget(k, 1) == wanted ? w.vbget(k, 1) : 0.0;
        sum += weight * a.vbget(k, i) * a.vbget(k, j);
      }
      return sum;
    };
    WorkerCheck{3, 2}("scatter", {kP, kP}, scatter,
                      [&](int i, int j, C c) { M_Inertie_W(&a, i, j, &w, &g, wanted, c); });
  }
}

TEST(Covariance, CorrelationsOfATableWithMissingCells) {
  matrix r(3, 3, 8.1), *correlations = &r;
  const double covariances[] = {4.0, 1.0, kMissing, 1.0, kMissing, 2.0, 3.0, 2.0, 9.0};
  const matrix c(3, 3, covariances, true, 0, 0);
  M_CorrMatFromCovMat(&c, 3, correlations);
  EXPECT_TRUE(holds(r, 3, 3, {1.0, kMissing, kMissing, kMissing, kMissing, kMissing, 0.5, kMissing, 1.0}));
  EXPECT_EQ(flagsOf(r), "011111010");
}

TEST(Covariance, RefillsItsResultWithoutCells) {
  const WorkerCheck expect = {3, 2};
  matrix t(3, 2, 2.385), *a = &t, *m[3] = {};
  const auto covCorr = [&](int i, int j, C c) { M_CovCorr(a, i, j, c, 0, nullptr, a, 0, 0); };
  const auto matMat = [&](int i, int j, C c) { M_CorrMatMat(a, i, j, a, 2, c, nullptr, a, 1, 0, 0, 0); };
  const auto all = [&](int i, int j, C c) {
    M_CovCorrAndMeanStDevVar(a, i, j, c, m[0], m[1], m[2], 1, nullptr, a, 0, 0, -1, -1);
    for (matrix*& made : m) delete std::exchange(made, nullptr);
  };
  expect.withoutCells({kP, kP}, covCorr, kMissing);
  expect.withoutCells({kP, kTwo}, matMat, kMissing);
  expect.withoutCells({kP, kP}, all, kMissing);
  EXPECT_TRUE(holds(t, 3, 2, std::vector<double>(6, 2.385)));
}

TEST(Covariance, EqualsPublishedValues) {
  const data::Table irises("reference/iris.csv"), mtcars("reference/mtcars.csv"),
      quality("reference/airquality.csv");
  matrix iris(150, 4, irises.column(1), false, 0, 0), *x = &iris;
  const matrix cars(32, 11, mtcars.column(2), false, 0, 0),
      carburettors(32, 1, mtcars.column(12), true, 0, 0);
  const matrix air(153, 6, quality.column(1), false, 0, 0);
  Made<matrix> r[7], m, s, v;
  M_CovCorrAndMeanStDevVar(x, 150, 4, r[0], m, s, v, 0, nullptr, nullptr, -1, -1, 0, -1);
  M_CorrMatFromCovMat(r[0], 4, r[1]);
  M_CovCorr(&cars, 32, 11, r[2], 0, nullptr, &carburettors, -1, -1);
  M_CovCorr(&cars, 32, 11, r[3], 0, nullptr, &carburettors, 0, 0);
  M_CovCorr(&cars, 32, 11, r[4], 0, nullptr, &carburettors, -1, 0);
  M_CovCorr(&air, 153, 6, r[5], 0, nullptr, nullptr, -1, -1);
  M_CovCorr(&air, 153, 6, r[6], 1, nullptr, nullptr, -1, -1);
  // Of the data sets iris, mtcars (weights: carb) and airquality; deviations over each column's own rows.
  const struct {
    const matrix* table;
    int i, j;
    double expected;
  } values[] = {{r[0].held, 1, 2, -0.042434004474272931}, {r[0].held, 3, 4, 1.2956093959731543},
                {r[1].held, 1, 3, 0.8717537758865832},    {r[1].held, 4, 4, 1.0},
                {s.held, 3, 1, 1.7652982332594664},       {&iris, 1, 1, -0.89767387919676622},
                {&iris, 2, 2, -0.13153881205025958},      {r[2].held, 1, 3, -528.31225842696631},
                {r[3].held, 1, 2, -6.9552592592592593},   {r[4].held, 1, 1, 27.325488172043009},
                {r[5].held, 1, 2, 1056.5834561834563},    {r[5].held, 3, 1, -70.938530734632693},
                {r[6].held, 2, 1, 0.35565179642139194},   {r[6].held, 1, 4, 0.69985189821563121}};
  for (const auto& c : values)
    EXPECT_NEAR(c.table->vbget(c.i, c.j), c.expected, 1e-12 * std::fabs(c.expected)) << c.expected;
}
