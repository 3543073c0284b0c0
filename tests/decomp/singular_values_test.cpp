#include "kavoratb1c/decomp/singular_values.h"

#include "definitions/singular_values.h"
#include "kavoratb1c/decomp/inverses.h"
#include "support/test_matrices.h"

using namespace kav;

namespace {

using definitions::Elements, test_matrices::residual;

/// @return info
int run(matrix& x, int n, int p, matrix& s, matrix* u, matrix* v, int job) {
  int info = -7;
  M_SVDecomp(&x, n, p, &s, u, 1, v, 1, job, info);
  return info;
}

}  // namespace

TEST(SingularValues, EqualTheirDefinitionBitForBit) {
  const std::pair<int, int> sizes[] = {{1, 1},   {2, 2},   {3, 3},   {5, 5},   {8, 8},   {13, 13},
                                       {16, 16}, {17, 17}, {31, 31}, {33, 33}, {50, 50}, {1, 5},
                                       {5, 1},   {40, 17}, {17, 40}, {33, 32}, {1, 2},   {2, 1}};
  const int jobs[] = {0, 1, 10, 11, 20, 21, 30};
  Random random(63);
  int round = 0;
  for (const auto& [n, p] : sizes) {
    for (const auto& type : test_matrices::kTypes) {
      const int job = jobs[++round % 7], margin = round % 3;
      const int widthU = job > 19 ? std::min(n, p) : n, order = std::min(n + 1, p);
      SCOPED_TRACE(testing::Message() << type.name << ", " << n << " x " << p << ", job " << job);
      const auto x = test_matrices::make(type, n + margin, p + margin);
      matrix u(n + margin, widthU + margin, 4.75), v(p + margin, p + margin, 4.75),
          s(order + margin, 1, 4.75);
      for (matrix* m : {x.get(), &u, &v}) {
        for (int k = 0; k < m->nX * m->pX; ++k) m->setMissing(k, round % 5 == 0 && random.below(20) == 0);
      }
      const auto definedX = copyOf(*x), definedU = copyOf(u), definedV = copyOf(v);
      definitions::SingularValues<Elements> defined{n, p, widthU, {*definedX}, {*definedU}, {*definedV}};
      const int info = defined.run();
      // Vectors that are not asked for need no container.
      EXPECT_EQ(run(*x, n, p, s, job > 9 ? &u : nullptr, job % 10 > 0 ? &v : nullptr, job), info);
      for (int k = 1; k <= s.nX; ++k) {
        EXPECT_TRUE(bits::equal(s.vbget(k, 1), k <= order ? defined.s[k - 1] : 4.75)) << k;
      }
      EXPECT_TRUE(bits::equal(cellsOf(*x), cellsOf(*definedX)));
      EXPECT_TRUE(job < 10 || bits::equal(cellsOf(u), cellsOf(*definedU)));
      EXPECT_TRUE(job % 10 == 0 || bits::equal(cellsOf(v), cellsOf(*definedV)));
    }
  }
}

TEST(SingularValues, ReproduceTheTableWithOrthonormalVectors) {
  for (const auto& [n, p] :
       {std::pair(0, 0), {1, 1}, {2, 2}, {3, 3}, {5, 5}, {10, 10}, {50, 50}, {10, 5}, {5, 10}}) {
    for (const auto& type : test_matrices::kTypes) {
      const int least = std::min(n, p);
      SCOPED_TRACE(testing::Message() << type.name << ", " << n << " x " << p);
      const auto table = test_matrices::make(type, n, p), x = copyOf(*table);
      matrix u(n, least, 4.75), v(p, p, 4.75), s(std::min(n + 1, p), 1, 4.75);
      EXPECT_EQ(run(*x, n, p, s, &u, &v, 21), 0);
      const auto a = [&](int i, int j) { return table->vbget(i, j); };
      const auto left = [&](int i, int k) { return u.vbget(i, k) * s.vbget(k, 1); };
      const auto right = [&](int k, int j) { return v.vbget(j, k); };
      // What is below the threshold may be lost, whatever the scale.
      const double scale = std::max(residual(n, p, 0, a, a, a), 1.0);
      EXPECT_LE(residual(n, p, least, left, right, a), 50 * kEpsilon * std::max(n, p) * scale);
      EXPECT_LT(test_matrices::deviationFromOrthonormal(u), 50);
      EXPECT_LT(test_matrices::deviationFromOrthonormal(v), 50);
      for (int k = 1; k <= s.nX; ++k) EXPECT_GE(s.vbget(k, 1), k < s.nX ? s.vbget(k + 1, 1) : 0.0);
    }
  }
}

TEST(SingularValues, NoVectorsAreMadeForAJobBelowZero) {
  const auto table = test_matrices::make(test_matrices::kTypes[5], 5, 4);
  matrix none(5, 4, 4.75), values(4, 1, 4.75);
  run(*copyOf(*table), 5, 4, values, nullptr, nullptr, 0);
  for (const int job : {-1, -10, -20, -11, -121, std::numeric_limits<int>::min()}) {
    matrix s(4, 1, 4.75);
    EXPECT_EQ(run(*copyOf(*table), 5, 4, s, &none, &none, job), 0);
    EXPECT_TRUE(holds(s, 4, 1, cellsOf(values)) && holds(none, 5, 4, std::vector<double>(20, 4.75))) << job;
  }
}

// Variances of 1 to 1e8 need more steps than there are, their correlations do not; the inverse does not tell.
TEST(SingularValues, OfGradedMatricesMayNotBeFound) {
  constexpr int n = 60;
  for (const bool graded : {true, false}) {
    matrix c(n, n), s(n, 1), inverse(n, n);
    byDefinition(c, n, n, [&](int i, int j) {
      const double scale = graded ? std::pow(10.0, 4.0 * (i + j - 2) / (n - 1)) : 1.0;
      return (i == j ? 1.0 : 0.5) * scale;
    });
    int rank = 0;
    EXPECT_EQ(M_InvGeneralized(&c, n, &inverse, 1e-9, rank), 0);
    EXPECT_EQ(rank == n, !graded);
    EXPECT_EQ(run(c, n, n, s, nullptr, nullptr, 0) == 0, !graded);
  }
}

TEST(SingularValues, CountAsZeroBelowAnAbsoluteThreshold) {
  // Cells that small are taken for diagonal once the first column is reflected to one of length 5e-18; the
  // determinant stays.
  for (const double unit : {1.0, 1e-18}) {
    const double cells[] = {3 * unit, 4 * unit, unit, 2 * unit};
    const double most = unit < 1.0 ? 5.0 : std::sqrt(15.0 + std::sqrt(221.0));
    matrix x(2, 2, cells, true, 0, 0), s(2, 1, 4.75);
    EXPECT_EQ(run(x, 2, 2, s, nullptr, nullptr, 0), 0);
    EXPECT_NEAR(s.values[0] / unit, most, 4 * kEpsilon * most);
    EXPECT_NEAR(s.values[1] / unit, 2.0 / most, 4 * kEpsilon * most);
  }
}

TEST(SingularValues, EndForCellsThatAreNotFinite) {
  for (const double cell : {std::nan(""), HUGE_VAL, -HUGE_VAL}) {
    for (int k = 0; k < 60; ++k) {
      const int n = 1 + k % 5, p = 1 + k / 5 % 4, place = k * 7 % (n * p);
      const auto x = test_matrices::make(test_matrices::kTypes[5], n, p);
      matrix u(n, n, 4.75), v(p, p, 4.75), s(std::min(n + 1, p), 1, 4.75);
      x->setElement(place, cell);
      const int info = run(*x, n, p, s, &u, &v, 11);
      EXPECT_TRUE(info > 0 || !std::isfinite(s.values[0])) << n << " x " << p << ", cell " << place;
    }
  }
}
