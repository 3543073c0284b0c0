#include "kavoratb1c/decomp/eigen.h"

#include <numbers>
#include <numeric>

#include "definitions/eigenvalues.h"
#include "kavoratb1c/decomp/singular_values.h"
#include "support/test_matrices.h"

using namespace kav;

using test_matrices::residual;

TEST(Eigen, EqualsItsDefinitionBitForBit) {
  Random random(72);
  int round = 0;
  for (const int n : {1, 2, 3, 5, 8, 13, 16, 17, 31, 33, 50}) {
    for (const auto& type : test_matrices::kTypes) {
      SCOPED_TRACE(testing::Message() << type.name << ", " << n << ", round " << ++round);
      const bool flags = round % 5 == 0;
      const int rows = n + round % 3, sort = flags ? 0 : round % 2;
      const auto a = test_matrices::make(type, rows, rows), lower = copyOf(*a);
      for (int k = 0; k < rows * rows; ++k) lower->values[k] = k / rows > k % rows ? kMissing : a->values[k];
      const auto before = copyOf(*lower);
      matrix values(n, 1, 4.75), vectors(n, n, 4.75), d(n, 1, 0.0), z(n, n, 0.0), *madeD = &values,
                                                                                  *madeZ = &vectors;
      for (int k = 0; k < n * n; ++k) vectors.missing[k] = z.missing[k] = flags && random.below(20) == 0;
      byDefinition(z, n, n, [&](int i, int j) { return a->vbget(std::max(i, j), std::min(i, j)); });
      const int status = definitions::eigenvalues(definitions::Elements{z}, n, d.values);
      EXPECT_EQ(M_Eigen(lower.get(), madeD, madeZ, n, sort), status);
      std::vector<int> order(static_cast<std::size_t>(n));
      std::iota(order.begin(), order.end(), 0);
      const auto larger = [&](int i, int j) { return d.values[i] > d.values[j]; };
      if (sort != 0 && status == 0) std::stable_sort(order.begin(), order.end(), larger);
      for (int k = 0; k < n; ++k) {
        const int from = order[static_cast<std::size_t>(k)];
        EXPECT_TRUE(bits::equal(values.values[k], d.values[from]));
        EXPECT_TRUE(bits::equal(firstOf(vectors.values + n * k, n), firstOf(z.values + n * from, n)));
      }
      EXPECT_TRUE(bits::equal(cellsOf(*lower), cellsOf(*before)));
    }
  }
}

TEST(Eigen, GivesOrthonormalVectorsThatTheTableOnlyStretches) {
  for (const int n : {0, 1, 2, 3, 5, 10, 50}) {
    for (const auto& type : test_matrices::kTypes) {
      if (!type.symmetric) continue;
      SCOPED_TRACE(testing::Message() << type.name << ", " << n);
      const auto table = test_matrices::make(type, n, n);
      matrix values(n, 1, 4.75), vectors(n, n, 4.75), *madeD = &values, *madeZ = &vectors;
      // Pascal's table goes from 1 to 1e28: one of its values needs more steps than there are.
      const bool wide = n == 50 && type.name == std::string("Pascal");
      EXPECT_EQ(M_Eigen(table.get(), madeD, madeZ, n, 1), wide ? -1 : 0);
      if (wide) continue;
      const auto a = [&](int i, int j) { return table->vbget(i, j); };
      const auto z = [&](int i, int j) { return vectors.vbget(i, j); };
      const auto d = [&](int k, int) { return values.vbget(k, 1); };
      const auto stretched = [&](int i, int j) { return z(i, j) * d(j, 1); };
      const double norm = residual(n, n, 0, a, a, a), most = 60.0 * n * kEpsilon * norm;
      EXPECT_LE(residual(n, n, n, a, z, stretched), most);
      EXPECT_LT(test_matrices::deviationFromOrthonormal(vectors), 60.0);
      EXPECT_LE(std::fabs(residual(n, 1, 0, d, d, d) - norm), most);
      double trace = 0.0;
      for (int k = 1; k <= n; ++k) {
        trace += d(k, 1) - a(k, k);
        EXPECT_TRUE(k == 1 || d(k, 1) <= d(k - 1, 1));
        const double closed = 2.0 - 2.0 * std::cos((n + 1 - k) * std::numbers::pi / (n + 1));
        EXPECT_TRUE(std::string("second differences") != type.name || std::fabs(d(k, 1) - closed) <= most);
      }
      EXPECT_LE(std::fabs(trace), most);
    }
  }
}

TEST(Eigen, EndsForCellsThatAreNotFinite) {
  for (const double x : {std::nan(""), HUGE_VAL}) {
    for (const int k : {1, 2, 3, 6, 7, 11}) {
      matrix a(4, 4, 1.0), values(4, 1, 0.0), vectors(4, 4, 0.0), *d = &values, *z = &vectors;
      a.setElement(k, x);
      EXPECT_EQ(M_Eigen(&a, d, z, 4, 1), -1) << x << " in cell " << k;
    }
  }
}

TEST(Eigen, EqualsPublishedValues) {
  // Correlations of the four measures of the data set iris.
  const double cells[] = {
      1, -0.11756978413300206, 0.8717537758865832,  0.81794112627157578, -0.11756978413300206,
      1, -0.42844010433053969, -0.3661259325364391, 0.8717537758865832,  -0.42844010433053969,
      1, 0.96286543140279601,  0.81794112627157578, -0.3661259325364391, 0.96286543140279601,
      1};
  const double values[] = {2.9184978165319944, 0.91403047146806926, 0.14675687557131503,
                           0.020714836428619429};
  const double first[] = {0.52106591467011998, 0.26934744250594223, 0.58041309579629452, 0.56485653577936124};
  matrix r(4, 4, cells, true, 0, 0), found(4, 1, 0.0), vectors(4, 4, 0.0), singular(4, 1, 0.0), *d = &found,
                                                                                                *z = &vectors;
  EXPECT_EQ(M_Eigen(&r, d, z, 4, 1), 0);
  int info = -7;
  M_SVDecomp(&r, 4, 4, &singular, nullptr, 1, nullptr, 1, 0, info);
  for (int k = 0; k < 4; ++k) {
    EXPECT_NEAR(found.values[k], values[k], 1e-12 * values[k]);
    EXPECT_NEAR(singular.values[k], values[k], 1e-12 * values[k]);
    EXPECT_NEAR(std::fabs(vectors.values[k]), first[k], 1e-9);
  }
}
