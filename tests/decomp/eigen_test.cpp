#include "kavoratb1c/decomp/eigen.h"

#include <numbers>
#include <numeric>

#include "kavoratb1c/decomp/singular_values.h"
#include "support/test_matrices.h"

using namespace kav;

namespace {

using test_matrices::residual;

double length(double a, double b) {
  const double more = std::max(std::fabs(a), std::fabs(b)), less = std::min(std::fabs(a), std::fabs(b));
  return more == 0.0 ? 0.0 : more * std::sqrt(1.0 + (less / more) * (less / more));
}

/// Reduction and QL steps as published, cell by cell, 1-based: z has the table, then its vectors, d the
/// values.
int decompose(matrix& z, int n, double* d) {
  std::vector<double> room(static_cast<std::size_t>(n) + 2);
  double* e = room.data();
  const auto cell = [&](int i, int j) { return z.vbget(i, j); };
  const auto sum = [](int first, int last, auto term, double total = 0.0) {
    for (int k = first; k <= last; ++k) total += term(k);
    return total;
  };
  for (int i = n; i > 1; --i) {
    const int l = i - 1;
    const double scale = l == 1 ? 0.0 : sum(1, l, [&](int k) { return std::fabs(cell(i, k)); });
    d[i] = 0.0, e[i] = cell(i, l);
    if (scale == 0.0) continue;
    for (int k = 1; k <= l; ++k) z.vbset(i, k, cell(i, k) / scale);
    const double squares = sum(1, l, [&](int k) { return cell(i, k) * cell(i, k); }), f = cell(i, l);
    const double g = f >= 0.0 ? -std::sqrt(squares) : std::sqrt(squares), h = d[i] = squares - f * g;
    e[i] = scale * g;
    z.vbset(i, l, f - g);
    double product = 0.0;
    for (int j = 1; j <= l; ++j) {
      z.vbset(j, i, cell(i, j) / h);
      const double upTo = sum(1, j, [&](int k) { return cell(j, k) * cell(i, k); });
      e[j] = sum(
                 j + 1, l, [&](int k) { return cell(k, j) * cell(i, k); }, upTo) /
             h;
      product += e[j] * cell(i, j);
    }
    for (int j = 1; j <= l; ++j) {
      const double u = cell(i, j);
      e[j] -= product / (h + h) * u;
      for (int k = 1; k <= j; ++k) z.vbset(j, k, cell(j, k) - (u * e[k] + e[j] * cell(i, k)));
    }
  }
  d[1] = 0.0;
  for (int i = 1; i <= n; ++i) {
    for (int j = 1; j < i && d[i] != 0.0; ++j) {
      const double product = sum(1, i - 1, [&](int k) { return cell(i, k) * cell(k, j); });
      for (int k = 1; k < i; ++k) z.vbset(k, j, cell(k, j) - product * cell(k, i));
    }
    d[i] = cell(i, i);
    z.vbset(i, i, 1.0);
    for (int j = 1; j < i; ++j) z.vbset(i, j, 0.0), z.vbset(j, i, 0.0);
  }
  for (int i = 1; i <= n; ++i) e[i] = i < n ? e[i + 1] : 0.0;
  for (int l = 1, steps = 0; l <= n;) {
    const auto beside = [&](int k) { return std::fabs(d[k]) + std::fabs(d[k + 1]); };
    int m = l, i;
    while (m < n && std::fabs(e[m]) + beside(m) != beside(m)) ++m;
    if (m == l) {
      ++l, steps = 0;
      continue;
    }
    if (++steps + 1 == 30) return -1;
    double g = (d[l + 1] - d[l]) / (2.0 * e[l]), c = 1.0, s = 1.0, p = 0.0;
    g = d[m] - d[l] + e[l] / (g + std::copysign(length(g, 1.0), g));
    for (i = m - 1; i >= l; --i) {
      const double f = s * e[i], b = c * e[i], r = e[i + 1] = length(f, g);
      if (r == 0.0) break;
      s = f / r, c = g / r, g = d[i + 1] - p;
      const double t = (d[i] - g) * s + 2.0 * c * b;
      p = s * t, d[i + 1] = g + p, g = c * t - b;
      for (int k = 1; k <= n; ++k) {
        const double left = cell(k, i), right = cell(k, i + 1);
        z.vbset(k, i + 1, s * left + c * right), z.vbset(k, i, c * left - s * right);
      }
    }
    d[i < l ? l : i + 1] -= p;
    if (i < l) e[l] = g;
    e[m] = 0.0;
  }
  return 0;
}

}  // namespace

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
      const int status = decompose(z, n, d.values - 1);
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
