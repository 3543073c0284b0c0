#include "kavoratb1c/stats/vector_tests.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <vector>

using namespace kav;

TEST(VectorTests, ConstantMeansExactlyEqual) {
  const double cells[] = {2.385, 2.385, std::nextafter(2.385, 3.0)}, zeros[] = {0.0, -0.0},
               nans[] = {NAN, NAN};
  const matrix x(3, 1, cells, true, 0, 0), zero(2, 1, zeros, true, 0, 0), nan(2, 1, nans, true, 0, 0);
  EXPECT_EQ(V_IsConstant(&x, 2), -1);
  EXPECT_EQ(V_IsConstant(&x, 3), 0);
  EXPECT_EQ(V_IsConstant(&zero, 2), -1);
  EXPECT_EQ(V_IsConstant(&nan, 2), 0);
}

TEST(VectorTests, FewerThanTwoCellsAreConstant) {
  const double nan = NAN;
  const matrix x(1, 1, &nan, true, 0, 0);
  for (int n : {1, 0, -1, INT_MIN}) EXPECT_EQ(V_IsConstant(&x, n), -1) << n;
}

TEST(VectorTests, MissingCellsAreComparedByValue) {
  const double cells[] = {0.0, kMissing};
  const matrix flagged(2, 1, cells, false, 0, 0), kept(2, 1, cells, true, 0, 0);
  EXPECT_EQ(V_IsConstant(&flagged, 2), -1);
  EXPECT_EQ(V_IsConstant(&kept, 2), 0);
}

TEST(VectorTests, CellsPastTheEndReadMinusOne) {
  const matrix x(2, 1, -1.0), y(2, 1, 3.5);
  EXPECT_EQ(V_IsConstant(&x, 4), -1);
  EXPECT_EQ(V_IsConstant(&y, 3), 0);
}

TEST(VectorTests, CellsAndTheirOrder) {
  const struct {
    std::vector<double> cells;
    short is01, weights, countWeights, indicator, notNegative, positive, sorted, strictlySorted;
  } cases[] = {{{0, 1, 1}, -1, -1, -1, -1, -1, 0, -1, 0},
               {{0, -0.0}, -1, 0, 0, 0, -1, 0, -1, 0},
               {{0.5, 1, 7}, 0, -1, 0, 0, -1, -1, -1, -1},
               {{-1, 3}, 0, -1, -1, 0, 0, 0, -1, -1},
               {{1, kMissing, 2}, 0, 0, 0, 0, 0, 0, -1, -1},
               {{0x1p60}, 0, -1, 0, 0, -1, -1, -1, -1},
               {{NAN}, 0, 0, 0, 0, 0, 0, -1, -1},
               {{}, -1, 0, 0, 0, -1, -1, -1, -1}};
  for (const auto& c : cases) {
    const int n = static_cast<int>(c.cells.size());
    const matrix x(n, 1, c.cells.data(), true, 0, 0);
    EXPECT_EQ(V_Is01(&x, n), c.is01);
    EXPECT_EQ(V_IsWeights(&x, n), c.weights);
    EXPECT_EQ(V_IsCWeights(&x, n), c.countWeights);
    EXPECT_EQ(V_IsIndicator(&x, n), c.indicator);
    EXPECT_EQ(V_IsPositive(&x, n, 1), c.notNegative);
    EXPECT_EQ(V_IsPositive(&x, n, -1), c.positive);
    EXPECT_EQ(V_IsSorted(&x, n, 1), c.sorted);
    EXPECT_EQ(V_IsSorted(&x, n, -1), c.strictlySorted);
  }
}

TEST(VectorTests, Bounds) {
  const double cells[] = {0.5, 2.385, kMissing, 4.5}, bounds[] = {0.6, 4.5, 9.0, 4.6};
  const matrix x(4, 1, cells, false, 0, 0), w(4, 1, bounds, false, 0, 0);
  EXPECT_EQ(V_IsInInterval(&x, 2, 0.5, 2.385, 1, 0), -1);
  EXPECT_EQ(V_IsInInterval(&x, 2, 0.4, 2.385, -1, 0), 0);
  EXPECT_EQ(V_IsInInterval(&x, 4, 0.4, 4.6, -1, 1), 0);
  EXPECT_EQ(V_IsInInterval(&x, 4, 0.4, 4.6, -1, -1), -1);
  EXPECT_EQ(V_V1inferiorV2(&x, 2, &w), -1);
  EXPECT_EQ(V_V1inferiorV2(&x, 3, &w), 0);
  EXPECT_EQ(V_V1GreaterThanMatCols(&w, 2, &w, 1), 0);
}
