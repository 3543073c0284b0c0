#include "kavoratb1c/algebra/covariance.h"

#include <fstream>
#include <sstream>
#include <utility>

#include "kavoratb1c/algebra/similarities.h"
#include "support/tables.h"

using namespace kav;

namespace {

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

/// Columns of a file from the given one on, empty cells missing.
std::vector<double> read(const char* name, int rows, int firstColumn, int columns) {
  std::vector<double> cells(static_cast<std::size_t>(rows * columns), kMissing);
  std::ifstream in(std::string(KAV_TEST_DATA "/reference/") + name);
  std::string line, field;
  std::getline(in, line);
  for (int i = 0; i < rows && std::getline(in, line); ++i) {
    std::istringstream fields(line);
    for (int j = -firstColumn; j < columns && std::getline(fields, field, ','); ++j) {
      if (j >= 0 && !field.empty()) cells[static_cast<std::size_t>(i + rows * j)] = std::stod(field);
    }
  }
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

TEST(Covariance, ScatterAndDistancesEqualTheirDefinition) {
  const double cells[] = {2.385, -7.7, 0.3, 9.1, 5.5, -3.1}, groups[] = {4.5, -1.0, 4.5};
  const double powersOfTwo[] = {0.5, 0.0, 4.0};  // the order of the factors shows in no bit
  const matrix a(3, 2, cells, true, 0, 0), w(3, 1, powersOfTwo, true, 0, 0), g(3, 1, groups, true, 0, 0);
  const WorkerCheck expect = {3, 2, 0};
  const auto total = [](int count, auto term) {
    double sum = 0.0;
    for (int k = 1; k <= count; ++k) sum += term(k);
    return sum;
  };
  for (double wanted : {4.5, -1.0, 7.7}) {
    const auto weight = [&](int k) {
      return wanted == -1.0 || g.vbget(k, 1) == wanted ? w.vbget(k, 1) : 0.0;
    };
    const auto scatter = [&](int i, int j) {
      return total(3, [&](int k) { return weight(k) * a.vbget(k, i) * a.vbget(k, j); });
    };
    expect("pp scatter", scatter, [&](int i, int j, C c) { M_Inertie_W(&a, i, j, &w, &g, wanted, c); });
  }
  const auto term = [&](int k, double d) { return w.vbget(k, 1) * (d * d); };
  const auto rows = [&](int i, int j) {
    return total(2, [&](int k) { return term(k, a.vbget(i, k) - a.vbget(j, k)); });
  };
  const auto columns = [&](int i, int j) {
    return total(3, [&](int k) { return term(k, a.vbget(k, i) - a.vbget(k, j)); });
  };
  expect("nn rows", rows, [&](int i, int j, C c) { M_EuclidDist2(&a, i, j, c, &w, -1); });
  expect("pp columns", columns, [&](int i, int j, C c) { M_EuclidDist2(&a, i, j, c, &w, 0); });
}

TEST(Covariance, SquareTablesAreRecognizedTransformedAndMadeSymmetric) {
  const double similarity[] = {5.5, 2.385, 1.25, 3.5, 7.25, -0.5, 0.75, 4.5, 6.0};
  for (int type : {-1, 0, 1, 2, 3}) {
    matrix t(3, 3, similarity, true, 0, 0), before(3, 3, similarity, true, 0, 0);
    for (matrix* m : {&t, &before}) m->setElement(0, 2, kMissing), m->setMissing(1, true);
    M_Symmetrize(&t, 3, type);
    for (int k = 0; k < 9; ++k) {
      const double own = before.values[k], mirror = before.values[k / 3 + 3 * (k % 3)];
      const double mean = own == kMissing || mirror == kMissing ? kMissing : (own + mirror) / 2.0;
      const bool takes = (type == 1 && k % 3 > k / 3) || (type == 2 && k % 3 < k / 3);
      EXPECT_EQ(t.values[k], before.missing[k] ? own : type == 0 ? mean : takes ? mirror : own) << k;
    }
  }
  matrix t(3, 3, similarity, true, 0, 0), zero(3, 3, 0.0), negative(2, 2, 0.0), *s = &t;
  EXPECT_EQ(M_CheckIfSimOrDissim(s, 3, 0), 1);
  M_TransformSimToDissim(s, 3);
  EXPECT_TRUE(holds(t, 3, 3, {0.0, 2.0, 4.75, 2.0, 0.0, 2.75, 4.75, 2.75, 0.0}));
  EXPECT_EQ(M_CheckIfSimOrDissim(s, 3, 1), 0);
  for (int apriori : {0, 1}) EXPECT_EQ(M_CheckIfSimOrDissim(&zero, 3, apriori), apriori);
  t.setElement(0, 2, -2.385);
  EXPECT_EQ(M_CheckIfSimOrDissim(s, 3, 1), -1);  // positive and negative about a diagonal of 0
  negative.setElement(1, 0, -2.385);
  EXPECT_EQ(M_CheckIfSimOrDissim(&negative, 2, 0), 1);
}

TEST(Covariance, SquareTablesWithMissingCells) {
  const double similarity[] = {5.5, 2.385, 1.25, kMissing, 7.25, -0.5, 0.75, 4.5, 6.0};
  matrix t(3, 3, similarity, true, 0, 0), *s = &t, zero(3, 3, 0.0), r(3, 3, 8.1), *correlations = &r;
  t.setMissing(1, 1, true);  // and so it stays
  M_TransformSimToDissim(s, 3);
  EXPECT_TRUE(holds(t, 3, 3, {0.0, kMissing, 4.75, kMissing, 7.25, kMissing, 4.75, kMissing, 0.0}));
  zero.setMissing(2, true);
  EXPECT_EQ(M_CheckIfSimOrDissim(&zero, 3, 1), -1);
  zero.setMissing(2, false), zero.setElement(2, kMissing);
  EXPECT_EQ(M_CheckIfSimOrDissim(&zero, 3, 1), -1);
  const double covariances[] = {4.0, 1.0, kMissing, 1.0, kMissing, 2.0, 3.0, 2.0, 9.0};
  const matrix c(3, 3, covariances, true, 0, 0);
  M_CorrMatFromCovMat(&c, 3, correlations);
  EXPECT_TRUE(holds(r, 3, 3, {1.0, kMissing, kMissing, kMissing, kMissing, kMissing, 0.5, kMissing, 1.0}));
  EXPECT_EQ(flagsOf(r), "011111010");
}

TEST(Covariance, PreparesItsResultWithoutCells) {
  const WorkerCheck expect = {3, 2, 0};
  matrix t(3, 2, 2.385), *a = &t, *m[3] = {};
  const auto covCorr = [&](int i, int j, C c) { M_CovCorr(a, i, j, c, 0, nullptr, a, 0, 0); };
  const auto matMat = [&](int i, int j, C c) { M_CorrMatMat(a, i, j, a, 2, c, nullptr, a, 1, 0, 0, 0); };
  const auto all = [&](int i, int j, C c) {
    M_CovCorrAndMeanStDevVar(a, i, j, c, m[0], m[1], m[2], 1, nullptr, a, 0, 0, -1, -1);
    for (matrix*& made : m) delete std::exchange(made, nullptr);
  };
  expect.withoutCells("pp ", covCorr, kMissing);
  expect.withoutCells("p2 ", matMat, kMissing);
  expect.withoutCells("pp ", all, kMissing);
  EXPECT_TRUE(holds(t, 3, 2, std::vector<double>(6, 2.385)));
}

TEST(Covariance, EqualsPublishedValues) {
  matrix iris(150, 4, read("iris.csv", 150, 0, 4).data(), false, 0, 0), *x = &iris;
  const matrix cars(32, 11, read("mtcars.csv", 32, 1, 11).data(), false, 0, 0),
      carburettors(32, 1, cars.values + 320, true, 0, 0);
  const matrix air(153, 6, read("airquality.csv", 153, 0, 6).data(), false, 0, 0), ones(4, 1, 1.0);
  matrix *r[8] = {}, *m = nullptr, *s = nullptr, *v = nullptr;
  M_EuclidDist2(&iris, 5, 4, r[0], &ones, -1);
  M_CovCorrAndMeanStDevVar(x, 150, 4, r[1], m, s, v, 0, nullptr, nullptr, -1, -1, 0, -1);
  M_CorrMatFromCovMat(r[1], 4, r[2]);
  M_CovCorr(&cars, 32, 11, r[3], 0, nullptr, &carburettors, -1, -1);
  M_CovCorr(&cars, 32, 11, r[4], 0, nullptr, &carburettors, 0, 0);
  M_CovCorr(&cars, 32, 11, r[5], 0, nullptr, &carburettors, -1, 0);
  M_CovCorr(&air, 153, 6, r[6], 0, nullptr, nullptr, -1, -1);
  M_CovCorr(&air, 153, 6, r[7], 1, nullptr, nullptr, -1, -1);
  // Of the data sets iris, mtcars (weights: carb) and airquality; deviations over each column's own rows.
  const struct {
    const matrix* table;
    int i, j;
    double expected;
  } values[] = {{r[0], 1, 2, 0.53851648071345015 * 0.53851648071345015},
                {r[1], 1, 2, -0.042434004474272931},
                {r[1], 3, 4, 1.2956093959731543},
                {r[2], 1, 3, 0.8717537758865832},
                {r[2], 4, 4, 1.0},
                {s, 3, 1, 1.7652982332594664},
                {&iris, 1, 1, -0.89767387919676622},
                {&iris, 2, 2, -0.13153881205025958},
                {r[3], 1, 3, -528.31225842696631},
                {r[4], 1, 2, -6.9552592592592593},
                {r[5], 1, 1, 27.325488172043009},
                {r[6], 1, 2, 1056.5834561834563},
                {r[6], 3, 1, -70.938530734632693},
                {r[7], 2, 1, 0.35565179642139194},
                {r[7], 1, 4, 0.69985189821563121}};
  for (const auto& c : values)
    EXPECT_NEAR(c.table->vbget(c.i, c.j), c.expected, 1e-12 * std::fabs(c.expected)) << c.expected;
  for (const matrix* made : {r[0], r[1], r[2], r[3], r[4], r[5], r[6], r[7], m, s, v}) delete made;
}
