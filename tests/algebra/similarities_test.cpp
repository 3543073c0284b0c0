#include "kavoratb1c/algebra/similarities.h"

#include "support/data.h"
#include "support/tables.h"

using namespace kav;

TEST(Similarities, AreRecognizedTransformedAndMadeSymmetric) {
  const double similarity[] = {5.5, 2.385, 1.25, 3.5, 7.25, -0.5, 0.75, 4.5, 6.0};
  for (int type : {-1, 0, 1, 2, 3}) {
    matrix t(3, 3, similarity, true, 0, 0), before(3, 3, similarity, true, 0, 0);
    for (matrix* m : {&t, &before}) {
      m->setElement(0, 2, kMissing);
      m->setMissing(1, true);
    }
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

TEST(Similarities, WithMissingCells) {
  const double similarity[] = {5.5, 2.385, 1.25, kMissing, 7.25, -0.5, 0.75, 4.5, 6.0};
  matrix t(3, 3, similarity, true, 0, 0), *s = &t, zero(3, 3, 0.0);
  t.setMissing(1, 1, true);  // and so it stays
  M_TransformSimToDissim(s, 3);
  EXPECT_TRUE(holds(t, 3, 3, {0.0, kMissing, 4.75, kMissing, 7.25, kMissing, 4.75, kMissing, 0.0}));
  zero.setMissing(2, true);
  EXPECT_EQ(M_CheckIfSimOrDissim(&zero, 3, 1), -1);
  zero.setMissing(2, false);
  zero.setElement(2, kMissing);
  EXPECT_EQ(M_CheckIfSimOrDissim(&zero, 3, 1), -1);
}

TEST(Similarities, DistancesEqualTheirDefinition) {
  using C = matrix*&;
  const double cells[] = {2.385, -7.7, 0.3, 9.1, 5.5, -3.1};
  const double powersOfTwo[] = {0.5, 0.0, 4.0};  // the order of the factors shows in no bit
  const matrix a(3, 2, cells, true, 0, 0), w(3, 1, powersOfTwo, true, 0, 0);
  const auto rows = [&](int i, int j) {
    const double first = a.vbget(i, 1) - a.vbget(j, 1), second = a.vbget(i, 2) - a.vbget(j, 2);
    return w.vbget(1, 1) * (first * first) + w.vbget(2, 1) * (second * second);
  };
  const auto columns = [&](int i, int j) {
    double sum = 0.0;
    for (int k = 1; k <= 3; ++k) {
      const double d = a.vbget(k, i) - a.vbget(k, j);
      sum += w.vbget(k, 1) * (d * d);
    }
    return sum;
  };
  const WorkerCheck expect = {3, 2};
  expect("rows", {kN, kN}, rows, [&](int i, int j, C c) { M_EuclidDist2(&a, i, j, c, &w, -1); });
  expect("columns", {kP, kP}, columns, [&](int i, int j, C c) { M_EuclidDist2(&a, i, j, c, &w, 0); });
}

TEST(Similarities, DistanceOfTwoFlowers) {
  const matrix iris(150, 4, data::Table("reference/iris.csv").column(1), false, 0, 0), ones(4, 1, 1.0);
  matrix* distances = nullptr;
  M_EuclidDist2(&iris, 5, 4, distances, &ones, -1);
  const std::unique_ptr<matrix> own(distances);
  EXPECT_NEAR(own->vbget(1, 2), 0.53851648071345015 * 0.53851648071345015, 1e-13);
}
