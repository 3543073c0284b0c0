#include <cmath>
#include <limits>

#include "core/contents.h"
#include "support/random.h"

using namespace kav;

namespace {

void fill(matrix& m, Random& random) {
  const double specials[] = {kMissing, std::numeric_limits<double>::quiet_NaN()};
  for (int k = 0; k < m.nX * m.pX; ++k) {
    const int kind = random.below(20);
    m.setElement(k, kind < 2 ? specials[kind] : random.uniform(-9.0, 9.0));
    m.setMissing(k, kind == 2 || kind == 3);
  }
  std::vector<double> weights;
  for (int i = 0; i < m.nX; ++i) weights.push_back(random.uniform(0.1, 4.0));
  m.weighting(weights.data());
}

bool isAbsent(const matrix& m, int i, int j) { return m.getMissing(i, j) || std::isnan(m.getElement(i, j)); }

}  // namespace

TEST(MatrixProjection, StepsEqualTheirDefinitionBitForBit) {
  Random random(71);
  for (int round = 0; round < 200; ++round) {
    const int n = 1 + random.below(9), p = 1 + random.below(9), k = random.below(2);
    for (const bool byRow : {true, false}) {
      // Every fourth round t is a row short and reads -1.0 there; now and then a whole line is absent.
      const int results = byRow ? n : p, terms = byRow ? p : n;
      matrix x(n, p, 0.0), t(terms - (round % 4 == 0 && k == 1 && terms > 1), 2, 0.0);
      fill(x, random);
      fill(t, random);
      for (int i = 0; i < t.nX * 2 && round % 2 == 0; ++i) t.values[i] = random.uniform(-9.0, 9.0);
      for (int i = 0; i < n * p && round % 5 == 0; ++i)
        x.missing[i] = x.missing[i] || i % (byRow ? n : p) == 0;
      for (const bool weighted : {false, true}) {
        matrix out(results, 2, 4.75), expected(results, 2, 4.75);
        for (matrix* m : {&out, &expected}) m->setMissing(round % results, k, true);
        for (int r = 0; r < results; ++r) {
          double numerator = 0.0, denominator = 0.0;
          for (int s = 0; s < terms; ++s) {
            const int i = byRow ? r : s, j = byRow ? s : r;
            numerator += x.getElement(i, j) * t.getElement(s, k) * (weighted ? x.weights[i] : 1.0);
            if (s >= t.nX || isAbsent(x, i, j)) continue;
            const double square = t.getElement(s, k) * t.getElement(s, k);
            denominator += square * (weighted && !byRow ? t.weights[s] : 1.0);
          }
          const auto sum =
              weighted && !byRow ? t.VInnerProdWeighted(k, byRow, r, &x) : t.VInnerProd(k, byRow, r, &x);
          EXPECT_TRUE(bits::equal(sum, denominator));
          if (denominator == 0.0 || std::isnan(denominator)) denominator = 1.0;
          expected.setElement(r, k, numerator / denominator);
        }
        const auto step = byRow ? (weighted ? &matrix::GaussProdWeighted : &matrix::GaussProd)
                                : (weighted ? &matrix::transGaussProdWeighted : &matrix::transGaussProd);
        (x.*step)(&t, k, &out);
        EXPECT_TRUE(holds(out, results, 2, cellsOf(expected))) << round << " by row " << byRow << weighted;
      }
    }
  }
}

TEST(MatrixProducts, GiveWhatTheirNamesSay) {
  const double xCells[] = {1.5, -2.0, 0.5, 4.0, 3.0, -1.0}, bCells[] = {2.0, -3.0};
  const double tCells[] = {1.0, 2.0, -4.0}, weights[] = {2.0, 2.0, 4.0};
  matrix x(3, 2, xCells, true, 0, 0);
  const matrix b(2, 1, bCells, true, 0, 0), t(3, 1, tCells, true, 0, 0);
  x.weighting(weights);
  matrix product(3, 1, 9.25), transposed(2, 1, 9.25), columns(3, 2, 9.25), outer(2, 2, 10.0),
      line(3, 2, 9.25);
  product.setMissing(2, true);
  x.matProd(&b, &product);
  EXPECT_TRUE(holds(product, 3, 1, {-9.0, -13.0, 9.25}));
  x.transMatProd(&t, &transposed);
  EXPECT_TRUE(holds(transposed, 2, 1, {-4.5, 14.0}));
  x.matVecProd(&b, 0, &columns, 1);
  EXPECT_TRUE(holds(columns, 3, 2, {9.25, 9.25, 9.25, -9.0, -13.0, 4.0}));
  EXPECT_EQ(x.vecProd(1, &t, 0), 14.0);
  EXPECT_EQ(x.vecProd(0, &b, 0), 3.0 + 6.0 - 0.5);  // b ends early
  x.trans1vecProd(0, &outer);
  EXPECT_TRUE(holds(outer, 2, 2, {14.5, 22.0, 22.0, 42.0}));
  EXPECT_EQ(x.lineSqrSum(1), 13.0);
  EXPECT_EQ(x.VDiff(0, &t, 0), 0.25 + 16.0 + 20.25);
  EXPECT_EQ(x.MDiff(&columns), 7.75 * 7.75 + 11.25 * 11.25 + 8.75 * 8.75 + 169.0 + 256.0 + 25.0);
  EXPECT_EQ(x.calcMu(0), (3.0 - 4.0 + 2.0) / 8.0);
  x.setMissing(5, true);
  EXPECT_EQ(x.calcMu(1), (8.0 + 6.0) / 4.0);
  x.setMissing(5, false);
  x.predictLine(2, &t, &b, 1, &line);
  EXPECT_TRUE(holds(line, 3, 2, {9.25, 9.25, -8.0, 9.25, 9.25, 12.0}));
  x.setMissing(1, true);
  x.subtractResidual(&t, &b, 0);
  EXPECT_TRUE(holds(x, 3, 2, {-0.5, -2.0, 8.5, 7.0, 9.0, -13.0}));
  x.oneMinus();
  x.VSProd(0, 2.0);
  x.transVSProd(1, 0.5);
  EXPECT_TRUE(holds(x, 3, 2, {3.0, -2.0, -15.0, -6.0, -4.0, 14.0}));
  for (int i = 0; i < 3; ++i) x.setMissing(i, true);
  EXPECT_EQ(x.calcMu(0), kMissing);
  const double twoCells[] = {4.0, 2.0}, second[] = {0.0, 1.0};
  matrix weighted(2, 1, twoCells, true, 0, 0);
  weighted.weighting(second);
  EXPECT_EQ(weighted.calcMu(0), 2.0);
}
