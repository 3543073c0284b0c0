#include "kavoratb1c/regression/least_squares.h"

#include <climits>
#include <cmath>
#include <fstream>
#include <sstream>

#include "kavoratb1c/algebra/covariance.h"
#include "kavoratb1c/decomp/elimination.h"
#include "numerics/thresholds.h"
#include "support/tables.h"

using namespace kav;

namespace {

struct Options {
  int degree = 1;
  short interactions = 0, throughOrigin = 0;
  double tolerance = 1e-10;
};

struct Fit {
  Fit(int n, int p, const matrix& x, const matrix& y, const matrix& w, Options o) {
    OLSBasic2(n, p, &x, &y, &w, o.degree, o.interactions, o.throughOrigin, o.tolerance, b, se, fitted);
  }
  Fit(const Fit&) = delete;
  ~Fit() { delete b, delete se, delete fitted; }

  matrix *b = nullptr, *se = nullptr, *fitted = nullptr;
};

/// The same by its definition, with sweeps on the full table.
struct Definition {
  Definition(int n, int p, const matrix& x, const matrix& y, const matrix& w, Options o) {
    q = p * o.degree + (o.degree > 1 && o.interactions == -1 ? p * (p - 1) / 2 : 0);
    matrix design(n, q + 1, 0.0), means(q + 1, 1, 0.0), deviations(q + 1, 1, 0.0), variances(q + 1, 1, 0.0),
        correlations(q + 1, q + 1, 0.0);
    byDefinition(design, n, q + 1, [&](int i, int j) {
      if (j > q) return y.vbget(i, 1);
      if (j <= p * o.degree) return (j <= p ? 1.0 : design.vbget(i, j - p)) * x.vbget(i, (j - 1) % p + 1);
      int left = 1, right = j - p * o.degree;
      while (right > p - left) right -= p - left++;
      return x.vbget(i, left) * x.vbget(i, left + right);
    });
    matrix *table = &design, *m = &means, *s = &deviations, *v = &variances, *r = &correlations;
    double total = 0.0;
    for (int i = 1; i <= n; ++i) total += w.vbget(i, 1);
    M_CovCorrAndMeanStDevVar(table, n, q + 1, r, m, s, v, -1, nullptr, &w, -1, -1, 0, 0);
    for (int k = 1; k <= q; ++k) {
      const double d = r->vbget(k, k);
      double least = d;
      for (int j = 1; j <= q && d > 0.0 && d >= o.tolerance; ++j) {
        const double own = r->vbget(j, j), shared = r->vbget(j, k);
        if (own < 0.0) least = std::min(least, 1.0 / (std::fabs(own) + shared * shared / d));
      }
      if (least <= o.tolerance) {
        s->vbset(k, 1, 0.0);
        continue;
      }
      const auto before = copyOf(*r);
      byDefinition(*r, q + 1, q + 1, [&](int i, int j) {
        if (i == k || j == k) return i == j ? -1.0 / d : before->vbget(i, j) / std::fabs(d);
        const double rest =
            before->vbget(i, j) - before->vbget(std::max(i, j), k) * (before->vbget(std::min(i, j), k) / d);
        return std::fabs(rest) < kZero ? 0.0 : rest;
      });
    }
    freedom = n - q - 1.0;
    const double ofY = s->vbget(q + 1, 1), rest = r->vbget(q + 1, q + 1);
    double constant = m->vbget(q + 1, 1), variance = ofY * ofY * rest * (total - 1.0) / (total * freedom);
    for (int k = 1; k <= q; ++k) {
      const double scale = s->vbget(k, 1), mean = m->vbget(k, 1), slope = ofY / scale * r->vbget(q + 1, k);
      const bool kept = std::fabs(scale) > kZero;
      b.push_back(kept ? slope : 0.0);
      se.push_back(kept ? ofY / scale * std::sqrt(std::fabs(rest * r->vbget(k, k)) / freedom) : 0.0);
      if (!kept) continue;
      constant -= slope * mean;
      variance += mean * se.back() * (mean * se.back());
      for (int j = 1; j < k; ++j) {
        const double both = scale * s->vbget(j, 1);
        if (std::fabs(s->vbget(j, 1)) <= kZero || std::fabs(both) <= kEpsilon) continue;
        variance += 2.0 * mean * m->vbget(j, 1) * (-(ofY * ofY / both) * rest * r->vbget(k, j) / freedom);
      }
    }
    b.push_back(constant), se.push_back(std::sqrt(variance));
    for (int k = 0; k <= q && freedom <= 0.0; ++k) {
      if (k == q || std::fabs(s->vbget(k + 1, 1)) > kZero) se[static_cast<std::size_t>(k)] = kMissing;
    }
    for (int i = 1; i <= n; ++i) {
      double sum = 0.0;
      for (int k = 1; k <= q; ++k) sum += b[static_cast<std::size_t>(k - 1)] * design.vbget(i, k);
      fitted.push_back(sum + b.back());
    }
    // Without a deviation nothing is known.
    if (total > 1.0) return;
    for (std::vector<double>* all : {&b, &se, &fitted}) all->assign(all->size(), kMissing);
  }

  int q;
  double freedom;
  std::vector<double> b, se, fitted;
};

/// The fields of a data file's lines that begin with a name, or of all.
std::vector<std::vector<std::string>> rowsOf(const std::string& file, const std::string& name = "") {
  std::vector<std::vector<std::string>> rows;
  std::ifstream in(KAV_TEST_DATA "/" + file);
  for (std::string line, field; std::getline(in, line);) {
    if (line.compare(0, name.size(), name) != 0) continue;
    rows.emplace_back();
    for (std::istringstream fields(line); std::getline(fields, field, ',');) rows.back().push_back(field);
  }
  return rows;
}

/// Row i of column j of a file below its headings, both 1-based.
auto cellsIn(const std::string& file) {
  return [rows = rowsOf(file)](int i, int j) {
    return std::stod(rows.at(static_cast<std::size_t>(i)).at(static_cast<std::size_t>(j - 1)));
  };
}

}  // namespace

/// Normal equations about 0; the degrees of freedom count an intercept all the same.
TEST(LeastSquares, ThroughTheOriginSolvesTheNormalEquations) {
  Random random(922);
  for (int round = 0; round < 60; ++round) {
    const int n = 12 + random.below(30), p = 1 + random.below(4);
    matrix x(n, p), y(n, 1), w(n, 1), normal(p, p, 0.0), right(p, 1, 0.0);
    for (int i = 0; i < n; ++i) {
      for (int j = 0; j < p; ++j) x.setElement(i, j, random.uniform(-3.0, 5.0));
      y.setElement(i, 0, 2.385 * x.getElement(i, 0) + random.uniform(-1.0, 1.0));
      w.setElement(i, 0, random.uniform(0.5, 3.0));
      for (int a = 0; a < p; ++a) {
        const double weighted = w.values[i] * x.getElement(i, a);
        right.values[a] += weighted * y.values[i];
        for (int b = 0; b < p; ++b) normal.values[a + p * b] += weighted * x.getElement(i, b);
      }
    }
    ASSERT_EQ(M_Gauss(&normal, p, 1, &right), 0);
    double rest = 0.0;
    for (int i = 0; i < n; ++i) {
      double error = y.values[i];
      for (int j = 0; j < p; ++j) error -= right.values[j] * x.getElement(i, j);
      rest += w.values[i] * error * error;
    }
    matrix *b = nullptr, *se = nullptr, *fitted = nullptr;
    OLSBasic2(n, p, &x, &y, &w, 1, kFalse, kTrue, 1e-9, b, se, fitted);
    for (int k = 0; k < p; ++k) {
      EXPECT_NEAR(b->values[k], right.values[k], 1e-10 * (1.0 + std::fabs(right.values[k])));
      const double expected = std::sqrt(rest * normal.values[k + p * k] / (n - p - 1.0));
      EXPECT_NEAR(se->values[k], expected, 1e-9 * expected);
    }
    EXPECT_EQ(b->values[p], 0.0);
    EXPECT_EQ(se->values[p], 0.0);
    for (const matrix* m : {b, se, fitted}) delete m;
  }
}

TEST(LeastSquares, EqualsItsDefinition) {
  Random random(921);
  for (int round = 0; round < 600; ++round) {
    const int n = 1 + random.below(round % 10 == 0 ? 1300 : 40), p = 1 + random.below(5), off = round % 3 - 1;
    const auto interactions = static_cast<short>(random.below(3) - 1);
    const Options o = {1 + random.below(3), interactions, 0, std::pow(10.0, -random.below(14))};
    SCOPED_TRACE(testing::Message() << n << " x " << p << ", degree " << o.degree << ", round " << round);
    // Containers of other sizes, the same column twice, a constant one, missing cells, integers.
    matrix x(n + off, p + off, 0.0), y(n, 1, 0.0);
    fillColumns(x, random, random.below(2));
    for (int i = 0; i < n; ++i) {
      if (round % 5 == 0) x.setElement(i, p - 1, x.getElement(i, 0));
      if (round % 2 == 0) x.setElement(i, 0, random.below(4));
      y.setElement(i, x.getElement(i, 0) + random.uniform(-1.0, 1.0));
    }
    auto w = randomWeights(random, n);
    if (w == nullptr) w = std::make_unique<matrix>(n, 1, 1.0);
    Definition expected(n, p, x, y, *w, o);
    const Fit fit(n, p, x, y, *w, o);
    const int q = expected.q;
    EXPECT_TRUE(holds(*fit.b, q + 1, 1, expected.b));
    EXPECT_TRUE(holds(*fit.fitted, n, 1, expected.fitted));
    EXPECT_TRUE(holds(*fit.se, q + 1, 1, expected.se));
    // In containers of those shapes a flagged cell keeps 0.0; another one is replaced.
    matrix b(q + 1, 1, 4.75), f(n + 1, 1, 4.75), *coefficients = &b, *fitted = &f;
    b.setMissing(q / 2, true), expected.b[std::size_t(q / 2)] = 0.0;
    OLSBasic(n, p, &x, &y, w.get(), o.degree, interactions, 0, o.tolerance, coefficients, fitted);
    ASSERT_TRUE(coefficients == &b && fitted != &f);
    const std::unique_ptr<matrix> made(fitted);
    EXPECT_TRUE(holds(b, q + 1, 1, expected.b) && holds(*fitted, n, 1, expected.fitted));
  }
}

// Digits that agree with the certified values. Degrees of freedom count an intercept even where there is
// none: n - 2 instead of n - 1.
TEST(LeastSquares, CertifiedSets) {
  const struct {
    const char* name;
    int n, p;
    Options options;
    double digits, errorDigits;
  } sets[] = {{"Norris", 36, 1, {}, 12.3, 10.0},
              {"Pontius", 40, 1, {2}, 10.6, 9.0},
              {"Longley", 16, 6, {}, 11.7, 12.5},
              {"NoInt1", 11, 1, {1, 0, -1}, 14.2, 13.2},
              {"Wampler1", 21, 1, {5}, 6.5, 0.0}};
  for (const auto& [name, n, p, options, digits, errorDigits] : sets) {
    const auto cell = cellsIn(std::string("strd/") + name + ".csv");
    matrix x(n, p, 0.0), y(n, 1, 0.0);
    byDefinition(y, n, 1, cell), byDefinition(x, n, p, [&](int i, int j) { return cell(i, j + 1); });
    const Fit fit(n, p, x, y, matrix(n, 1, 1.0), options);
    const double freedom = options.throughOrigin == 0 ? 1.0 : std::sqrt((n - 2.0) / (n - 1.0));
    const double constant = std::fabs(fit.b->getElement(p)) + fit.se->getElement(p);
    EXPECT_EQ(constant == 0.0, options.throughOrigin != 0) << name;
    const auto certified = rowsOf("strd/regression_certified.csv", name);
    EXPECT_EQ(int(certified.size()), fit.b->nX - (options.throughOrigin != 0));
    for (const auto& row : certified) {
      const int k = (std::stoi(row[1].substr(1)) + fit.b->nX - 1) % fit.b->nX;
      const double b = std::stod(row[2]), se = std::stod(row[3]);
      EXPECT_NEAR(fit.b->getElement(k), b, std::fabs(b) * std::pow(10.0, -digits)) << name << row[1];
      if (errorDigits == 0.0) continue;  // certified as 0
      EXPECT_NEAR(fit.se->getElement(k) * freedom, se, se * std::pow(10.0, -errorDigits)) << name << row[1];
    }
  }
}

// Expected values were computed elsewhere, their file tells how; there intercepts come first.
TEST(LeastSquares, ReferenceValues) {
  const auto expectNear = [](const matrix& actual, const char* name, int shift, double factor) {
    const auto rows = rowsOf("reference/regression_computed.csv", name);
    ASSERT_EQ(rows.size(), 1u);
    const int count = static_cast<int>(rows[0].size()) - 1;
    for (int k = 0; k < count; ++k) {
      const double expected = std::stod(rows[0][std::size_t(k + 1)]);
      const int at = shift == 0 ? k : k == 0 ? actual.nX - 1 : k - 1;
      EXPECT_NEAR(actual.getElement(at) * factor, expected, 1e-11 * std::fabs(expected)) << name << k;
    }
  };
  // Columns left out, the first one again, a constant and a missing one, and as many rows without a weight:
  // slopes, errors and degrees of freedom stay.
  const auto loss = cellsIn("reference/stackloss.csv"), car = cellsIn("reference/mtcars.csv");
  matrix x(24, 6, 2.375), y(24, 1, 1e3), w(24, 1, 0.0), cars(32, 2, 0.0), miles(32, 1, 0.0),
      counts(32, 1, 0.0);
  byDefinition(x, 21, 4, [&](int i, int j) { return loss(i, (j - 1) % 3 + 1); });
  byDefinition(y, 21, 1, [&](int i, int) { return loss(i, 4); });
  byDefinition(w, 21, 1, [](int, int) { return 1.0; });
  for (int i = 0; i < 24; ++i) x.setElement(i, 5, 0.0), x.setMissing(i, 5, true);
  const Fit fit(24, 6, x, y, w, {});
  expectNear(*fit.b, "stackloss coefficients", 1, 1.0);
  expectNear(*fit.se, "stackloss errors", 1, 1.0);
  expectNear(*fit.fitted, "stackloss fitted", 0, 1.0);
  for (int k = 3; k < 6; ++k) EXPECT_TRUE(fit.b->getElement(k) == 0.0 && fit.se->getElement(k) == 0.0);
  // Weights are frequencies: of 90 repeated rows, where degrees of freedom count 32.
  byDefinition(cars, 32, 2, [&](int i, int j) { return car(i, j == 1 ? 7 : 5); });
  byDefinition(miles, 32, 1, [&](int i, int) { return car(i, 2); });
  byDefinition(counts, 32, 1, [&](int i, int) { return car(i, 12); });
  const Fit weighted(32, 2, cars, miles, counts, {});
  expectNear(*weighted.b, "repeated coefficients", 1, 1.0);
  expectNear(*weighted.se, "repeated errors", 1, std::sqrt((32.0 - 3.0) / (90.0 - 3.0)));
}

TEST(LeastSquares, PowersComeBeforeProducts) {
  Random random(924);
  const auto x = randomTable(random, 60, 2, 1 << 30);
  matrix y(60, 1, 0.0);
  byDefinition(y, 60, 1, [&](int i, int) {
    const double u = x->vbget(i, 1), v = x->vbget(i, 2);
    return 1.5 - 2.0 * u + 0.75 * v + 3.0 * u * u - 0.5 * v * v + 1.25 * u * v;
  });
  const Fit fit(60, 2, *x, y, matrix(60, 1, 1.0), {2, -1});
  const double expected[] = {-2.0, 0.75, 3.0, -0.5, 1.25, 1.5};
  for (int k = 0; k < 6; ++k) EXPECT_NEAR(fit.b->getElement(k), expected[k], 1e-12) << k;
}

TEST(LeastSquares, ExtentsWithoutADesignLeaveEverything) {
  matrix x(3, 2, 1.5), *b = &x, *se = nullptr, *fitted = nullptr;
  const int extents[][3] = {{3, 2, 0},  {3, 2, INT_MIN}, {0, 2, 1},
                            {3, -1, 1}, {INT_MAX, 0, 1}, {0, INT_MAX, 3}};
  for (const auto& [n, p, degree] : extents) {
    OLSBasic2(n, p, &x, &x, &x, degree, -1, 0, 1e-10, b, se, fitted);
    OLSBasic(n, p, &x, &x, &x, degree, -1, 0, 1e-10, b, fitted);
    EXPECT_TRUE(b == &x && se == nullptr && fitted == nullptr && x.VInnerProd(1) == 3 * 1.5 * 1.5);
  }
}
