#include "algebra/covariance.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <vector>

#include "support/bits.h"
#include "support/random.h"

namespace {

struct CoMoment {
  double covariance = kMissing, mean = kMissing, divisor = 0.0;
};

/// A pair of columns, 1-based, as it is defined, cell by cell through the accessors.
CoMoment byDefinition(const matrix& a, int ja, int jb, int n, const short* rowFlags, const matrix* weights,
                      short unbiased, short frequencies) {
  double total = 0.0, count = 0.0, products = 0.0, meanA = 0.0, meanB = 0.0;
  for (int i = 1; i <= n; ++i) {
    const double w = weights == nullptr ? 1.0 : weights->vbget(i, 1);
    if ((rowFlags != nullptr && rowFlags[i - 1] != 0) || w == 0.0) continue;
    if (a.getMissing(i - 1, ja - 1) || a.getMissing(i - 1, jb - 1)) continue;
    total += w;
    count += 1.0;
    const double dB = a.vbget(i, jb) - meanB, dA = a.vbget(i, ja) - meanA;
    products += (count == 1.0 ? 0.0 : w - w * w / total) * dB * dA;
    meanA += (w / total) * dA;
    meanB += (w / total) * dB;
  }
  if (count == 0.0) return {};
  const double divisor = unbiased != -1 ? total : frequencies == -1 ? total - 1.0 : total - total / count;
  return {products / divisor, meanA, divisor};
}

double correlationOf(double covariance, double varianceA, double varianceB, bool diagonal) {
  if (covariance == kMissing) return kMissing;
  if (std::fabs(varianceA * varianceB) - 1e-12 <= 0.0) return 0.0;
  return diagonal ? 1.0 : covariance / std::sqrt(varianceA * varianceB);
}

/// Cells of a vector or table, the marker where one is flagged.
std::vector<double> cellsOf(const matrix& m) {
  std::vector<double> cells(m.values, m.values + m.nX * m.pX);
  m.copyMatTo(cells.data());
  return cells;
}

/// Column 1 is constant, column 2 varies by less than correlations see; the others about any mean.
void fill(matrix& a, Random& random, bool missing) {
  for (int j = 0; j < a.pX; ++j) {
    const double scale = j == 2 ? 1e-9 : j == 1 ? 0.0 : 3.1, mean = random.uniform(-1e3, 1e3);
    for (int i = 0; i < a.nX; ++i) {
      const int kind = missing ? random.below(j == 3 ? 2 : 8) : 9;
      a.setElement(i, j, kind == 0 ? kMissing : mean + scale * random.uniform(-1.0, 1.0));
      a.setMissing(i, j, kind == 1);
    }
  }
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
    SCOPED_TRACE("round " + std::to_string(round));
    const int n = rowCounts[round % 9], p = columnCounts[round % 8], kind = random.below(4);
    matrix table(n + random.below(2), p, 0.0), w(n, 1, 1.0), r(p, p, 8.1);
    const auto own = static_cast<std::size_t>(p);
    const auto at = [](int j) { return static_cast<std::size_t>(j - 1); };
    fill(table, random, round / 9 % 2 == 1);
    matrix m(p, 1, 8.1), s(p, 1, 8.1), v(p, 1, 8.1);
    matrix *a = &table, *result = &r, *means = &m, *stdevs = &s, *variances = &v;
    for (int i = 0; i < n && kind > 1; ++i) {
      w.setElement(i, kind == 3 && random.below(4) == 0 ? 0.0 : random.uniform(1.0, 3.1));
    }
    const matrix* weights = kind == 0 ? nullptr : &w;
    std::vector<short> flags(static_cast<std::size_t>(n) + 1);
    for (short& flag : flags) flag = static_cast<short>(random.below(4) == 0 ? random.below(3) - 1 : 0);
    const short* rows = random.below(2) == 0 ? nullptr : flags.data();
    const auto u = static_cast<short>(random.below(3) - 1), f = static_cast<short>(random.below(3) - 1);
    const auto option = [&] { return static_cast<short>(random.below(3) - 1); };
    const short correlation = option(), centre = option(), standardize = option();

    std::vector<std::vector<CoMoment>> pair(own);
    std::vector<double> expected(own * own), expectedMeans, expectedS, expectedV;
    for (int j = 1; j <= p; ++j) {
      for (int i = 1; i <= p; ++i) {
        pair[at(j)].push_back(byDefinition(table, std::min(i, j), std::max(i, j), n, rows, weights, u, f));
      }
      const CoMoment& self = pair[at(j)][at(j)];
      expectedMeans.push_back(self.mean);
      expectedV.push_back(self.divisor > 0.0 ? self.covariance : kMissing);
      expectedS.push_back(self.divisor > 0.0 ? std::sqrt(self.covariance) : kMissing);
    }
    for (std::size_t k = 0; k < own * own; ++k) {
      const std::size_t i = k % own, j = k / own;
      const double c = pair[i][j].covariance, vi = pair[i][i].covariance, vj = pair[j][j].covariance;
      expected[k] = correlation == 0 ? c : correlationOf(c, vi, vj, i == j);
    }
    EXPECT_EQ(M_CovCorr(a, n, p, result, correlation, rows, weights, u, f), 0);
    EXPECT_TRUE(bits::equal(cellsOf(r), expected));
    for (int k = 0; k < p * p; ++k) EXPECT_EQ(r.missing[k], r.values[k] == kMissing);

    // The first columns with the others, whose covariances are a part of the table.
    const int h = p / 2, q = p - h;
    matrix right(table.nX, q, table.values + table.nX * h, true, 0, 0), r3(h, q, 8.1), *result3 = &r3;
    std::copy_n(table.missing + table.nX * h, table.nX * q, right.missing);
    const auto determination = static_cast<short>(random.below(2));
    M_CorrMatMat(a, n, h, &right, q, result3, rows, weights, correlation, determination, u, f);
    for (int k = 0; k < h * q && (correlation != 0 || determination == 0); ++k) {
      const double c = expected[static_cast<std::size_t>(k % h + p * (h + k / h))];
      EXPECT_TRUE(bits::equal(r3.values[k], determination == 0 || c == kMissing ? c : c * c));
    }

    std::vector<double> cells(table.values, table.values + table.nX * p);
    for (int k = 0; k < table.nX * p && (centre == -1 || standardize == -1); ++k) {
      if (table.missing[k] || k % table.nX >= n) continue;
      const std::size_t j = at(k / table.nX + 1);
      double& x = cells[static_cast<std::size_t>(k)];
      x -= expectedMeans[j] == kMissing ? 0.0 : expectedMeans[j];
      if (standardize == -1) x = expectedS[j] > 0.0 ? x / expectedS[j] : 0.0;
    }
    M_CovCorrAndMeanStDevVar(a, n, p, result, means, stdevs, variances, correlation, rows, weights, u, f,
                             centre, standardize);
    EXPECT_TRUE(bits::equal(cellsOf(r), expected));
    EXPECT_TRUE(bits::equal(cellsOf(m), expectedMeans));
    EXPECT_TRUE(bits::equal(cellsOf(s), expectedS));
    EXPECT_TRUE(bits::equal(cellsOf(v), expectedV));
    EXPECT_TRUE(bits::equal({table.values, table.values + table.nX * p}, cells));
  }
}

TEST(Covariance, ScatterAndDistancesEqualTheirDefinition) {
  const double cells[] = {2.385, -7.7, 0.3, 9.1, 5.5, -3.1}, groups[] = {4.5, -1.0, 4.5};
  const double powersOfTwo[] = {0.5, 0.0, 4.0};  // the order of the factors shows in no bit
  const matrix a(3, 2, cells, true, 0, 0), w(3, 1, powersOfTwo, true, 0, 0), g(3, 1, groups, true, 0, 0);
  for (double wanted : {4.5, -1.0, 7.7}) {
    matrix scatter(2, 2, 8.1), *result = &scatter;
    M_Inertie_W(&a, 3, 2, &w, &g, wanted, result);
    for (int k = 0; k < 4; ++k) {
      double sum = 0.0;
      for (int i = 0; i < 3; ++i) {
        const double term = w.getElement(i) * a.getElement(i, k % 2) * a.getElement(i, k / 2);
        sum += wanted == -1.0 || groups[i] == wanted ? term : 0.0;
      }
      EXPECT_TRUE(bits::equal(scatter.values[k], sum)) << wanted;
    }
  }
  matrix rows(3, 3, 8.1), columns(2, 2, 8.1), *byRows = &rows, *byColumns = &columns;
  M_EuclidDist2(&a, 3, 2, byRows, &w, -1);
  M_EuclidDist2(&a, 3, 2, byColumns, &w, 0);
  const double d = 2.385 - 9.1, e = 0.3 + 3.1;
  EXPECT_TRUE(bits::equal(cellsOf(columns), {0.0, 0.5 * (d * d) + 4.0 * (e * e),  //
                                             0.5 * (d * d) + 4.0 * (e * e), 0.0}));
  for (int k = 0; k < 9; ++k) {
    const double x = cells[k % 3] - cells[k / 3];  // the second column has weight 0
    EXPECT_TRUE(bits::equal(rows.values[k], 0.5 * (x * x)));
  }
}

TEST(Covariance, SquareTablesAreRecognizedTransformedAndMadeSymmetric) {
  const double similarity[] = {5.5, 2.385, 1.25, 3.5, 7.25, -0.5, 0.75, 4.5, 6.0};
  for (int type : {0, 1, 2, 3}) {
    matrix t(3, 3, similarity, true, 0, 0);
    M_Symmetrize(&t, 3, type);
    for (int k = 0; k < 9; ++k) {
      const double own = similarity[k], mirror = similarity[k / 3 + 3 * (k % 3)];
      const bool takes = (type == 1 && k % 3 > k / 3) || (type == 2 && k % 3 < k / 3);
      EXPECT_EQ(t.getElement(k), type == 0 ? (own + mirror) / 2.0 : takes ? mirror : own);
    }
  }
  matrix t(3, 3, similarity, true, 0, 0), zero(3, 3, 0.0), negative(2, 2, 0.0), *s = &t;
  EXPECT_EQ(M_CheckIfSimOrDissim(s, 3, 0), 1);
  M_TransformSimToDissim(s, 3);
  EXPECT_TRUE(bits::equal(cellsOf(t), {0.0, 2.0, 4.75, 2.0, 0.0, 2.75, 4.75, 2.75, 0.0}));
  EXPECT_EQ(M_CheckIfSimOrDissim(s, 3, 1), 0);
  for (int apriori : {0, 1}) EXPECT_EQ(M_CheckIfSimOrDissim(&zero, 3, apriori), apriori);
  t.setElement(0, 2, -2.385);
  EXPECT_EQ(M_CheckIfSimOrDissim(s, 3, 1), -1);  // positive and negative about a diagonal of 0
  negative.setElement(1, 0, -2.385);
  EXPECT_EQ(M_CheckIfSimOrDissim(&negative, 2, 0), 1);
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
