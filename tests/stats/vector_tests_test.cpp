#include "stats/vector_tests.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>

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
