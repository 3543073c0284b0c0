#include "kavoratb1c/regression/least_squares.h"

#include <climits>
#include <cmath>

#include "definitions/elimination.h"
#include "support/data.h"
#include "support/residuals.h"

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

  Made<matrix> b, se, fitted;
};

using Doubles = std::vector<double>;

void expectNear(const matrix& actual, const matrix& expected) {
  ASSERT_EQ(actual.nX, expected.nX);
  for (int k = 0; k < actual.nX; ++k) {
    const double x = expected.values[k];
    EXPECT_NEAR(actual.values[k], x, x == 0.0 ? 0.0 : 1e-10 * (1.0 + std::fabs(x))) << k;
  }
}

}  // namespace

/// Also about 0; the degrees of freedom count an intercept all the same, and rows without a weight.
TEST(LeastSquares, SolvesTheNormalEquations) {
  Random random(922);
  for (int round = 0; round < 200; ++round) {
    const int n = round % 20 == 0 ? 1300 : 25 + random.below(40), p = 1 + random.below(3);
    const auto interactions = static_cast<short>(random.below(3) - 1), origin = kav::asFlag(round % 2 == 0);
    const Options o = {1 + random.below(3), interactions, origin, 1e-9};
    SCOPED_TRACE(testing::Message() << n << " x " << p << ", degree " << o.degree << ", round " << round);
    // Containers of other sizes, and cells that are flagged but count.
    matrix x(n + random.below(3) - 1, p + random.below(2), 0.0), y(n, 1, 0.0), w(n, 1, 0.0);
    for (int k = 0; k < x.nX * x.pX; ++k) x.values[k] = random.uniform(-1.0, 1.5);
    x.setMissing(random.below(n), true);
    for (int i = 0; i < n; ++i) {
      y.setElement(i, 2.385 * x.getElement(i, 0) + random.uniform(0.0, 1.0));
      w.setElement(i, random.below(5) == 0 ? 0.0 : random.uniform(0.5, 3.0));
    }
    // Powers, products of every two columns, 1 for the intercept.
    std::vector<double> design;
    const auto addColumn = [&](auto cell) {
      for (int i = 1; i <= n; ++i) design.push_back(cell(i));
    };
    for (int j = 0; j < p * o.degree; ++j) {
      addColumn([&](int i) { return std::pow(x.vbget(i, j % p + 1), j / p + 1); });
    }
    for (int j = 1; j <= p && o.degree > 1 && interactions == kTrue; ++j) {
      for (int k = j + 1; k <= p; ++k) addColumn([&](int i) { return x.vbget(i, j) * x.vbget(i, k); });
    }
    const int q = static_cast<int>(design.size()) / n, terms = q + (origin == 0);
    if (origin == 0) addColumn([](int) { return 1.0; });
    const definitions::Cells d{design.data(), n};
    matrix inverse(terms, terms, 0.0), b(q + 1, 1, 0.0), se(q + 1, 1, 0.0), fitted(n, 1, 0.0);
    for (int k = 0; k < n * terms; ++k) {
      const double weighted = w.values[k % n] * design[std::size_t(k)];
      b.values[k / n] += weighted * y.values[k % n];
      for (int j = 0; j < terms; ++j) inverse.values[k / n + terms * j] += weighted * d(k % n, j);
    }
    definitions::eliminate(definitions::Cells{inverse.values, terms}, terms,
                           definitions::Cells{b.values, terms}, 1);
    double rest = 0.0;
    for (int i = 0; i < n; ++i) {
      for (int k = 0; k < terms; ++k) fitted.values[i] += b.values[k] * d(i, k);
      rest += w.values[i] * std::pow(y.values[i] - fitted.values[i], 2);
    }
    for (int k = 0; k < terms; ++k) {
      se.values[k] = std::sqrt(rest * inverse.values[k + terms * k] / (n - q - 1.0));
    }
    const Fit fit(n, p, x, y, w, o);
    expectNear(*fit.b, b);
    expectNear(*fit.se, se);
    expectNear(*fit.fitted, fitted);
  }
}

TEST(LeastSquares, BothWorkersRefillTheSameResults) {
  Random random(921);
  const auto x = randomTable(random, 20, 2, 1 << 30), y = randomTable(random, 20, 1, 1 << 30);
  const matrix ones(20, 1, 1.0);
  const Fit fit(20, 2, *x, *y, ones, {});
  const auto expectFit = [](const matrix& actual) {
    return [&](int i, int j) { return actual.vbget(i, j); };
  };
  expectMakes(3, 1, expectFit(*fit.b), [&](matrix*& b) {
    matrix f(20, 1, 0.0), *line = &f;
    OLSBasic(20, 2, x.get(), y.get(), &ones, 1, 0, 0, 1e-10, b, line);
  });
  expectMakes(20, 1, expectFit(*fit.fitted), [&](matrix*& line) {
    matrix b(3, 1, 0.0), *coefficients = &b;
    OLSBasic(20, 2, x.get(), y.get(), &ones, 1, 0, 0, 1e-10, coefficients, line);
  });
  expectMakes(3, 1, expectFit(*fit.se), [&](matrix*& se) {
    matrix b(3, 1, 0.0), f(20, 1, 0.0), *coefficients = &b, *line = &f;
    OLSBasic2(20, 2, x.get(), y.get(), &ones, 1, 0, 0, 1e-10, coefficients, se, line);
  });
}

// The line 1 + 2 x through two points, beside a constant: no degree of freedom is left.
TEST(LeastSquares, ErrorsNeedDegreesOfFreedomAndAllResultsADeviation) {
  const auto x = square::cells(2, 2, {1, 2, 7, 7}), y = square::cells(2, 1, {3, 5});
  for (const double weight : {1.0, 0.5}) {
    const Fit fit(2, 2, *x, *y, matrix(2, 1, weight), {});
    const bool known = weight > 0.5;
    const double none = kMissing;
    EXPECT_TRUE(holds(*fit.b, 3, 1, known ? Doubles{2, 0, 1} : Doubles{none, none, none}));
    EXPECT_TRUE(holds(*fit.se, 3, 1, known ? Doubles{none, 0, none} : Doubles{none, none, none}));
    EXPECT_TRUE(holds(*fit.fitted, 2, 1, known ? Doubles{3, 5} : Doubles{none, none}));
  }
}

// The second column is the first one and half of another that is orthogonal to it: a fifth of its variance is
// left. So is what explains the response, 4 + 2 x + 3 z, but for residuals of 0.5.
TEST(LeastSquares, VariablesThatOthersExplainAreLeftOut) {
  const auto x = square::cells(4, 2, {-1, -1, 1, 1, -1.5, -0.5, 0.5, 1.5}),
             y = square::cells(4, 1, {-0.5, 4.5, 2.5, 9.5});
  const double residual = std::sqrt(37.0 / 4.0);
  const Fit whole(4, 2, *x, *y, matrix(4, 1, 1.0), {1, 0, 0, 0.19}),
      first(4, 2, *x, *y, matrix(4, 1, 1.0), {1, 0, 0, 0.21});
  expectNear(*whole.b, *square::cells(3, 1, {-4, 6, 4}));
  expectNear(*whole.se, *square::cells(3, 1, {std::sqrt(1.25), 1, 0.5}));
  expectNear(*first.b, *square::cells(3, 1, {2, 0, 4}));
  expectNear(*first.se, *square::cells(3, 1, {residual, 0, residual}));
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
    const data::Table cell(std::string("strd/") + name + ".csv");
    matrix x(n, p, 0.0), y(n, 1, 0.0);
    byDefinition(y, n, 1, cell);
    byDefinition(x, n, p, [&](int i, int j) { return cell(i, j + 1); });
    const Fit fit(n, p, x, y, matrix(n, 1, 1.0), options);
    const double freedom = options.throughOrigin == 0 ? 1.0 : std::sqrt((n - 2.0) / (n - 1.0));
    const double constant = std::fabs(fit.b->getElement(p)) + fit.se->getElement(p);
    EXPECT_EQ(constant == 0.0, options.throughOrigin != 0) << name;
    const auto certified = data::rowsOf("strd/regression_certified.csv", name);
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
  const auto expect = [](const matrix& actual, const char* name, int shift, double factor) {
    const auto rows = data::rowsOf("reference/regression_computed.csv", name);
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
  const data::Table loss("reference/stackloss.csv"), car("reference/mtcars.csv");
  matrix x(24, 6, 2.375), y(24, 1, 1e3), w(24, 1, 0.0), cars(32, 2, 0.0), miles(32, 1, 0.0),
      counts(32, 1, 0.0);
  byDefinition(x, 21, 4, [&](int i, int j) { return loss(i, (j - 1) % 3 + 1); });
  byDefinition(y, 21, 1, [&](int i, int) { return loss(i, 4); });
  byDefinition(w, 21, 1, [](int, int) { return 1.0; });
  for (int i = 0; i < 24; ++i) {
    x.setElement(i, 5, 0.0);
    x.setMissing(i, 5, true);
  }
  const Fit fit(24, 6, x, y, w, {});
  expect(*fit.b, "stackloss coefficients", 1, 1.0);
  expect(*fit.se, "stackloss errors", 1, 1.0);
  expect(*fit.fitted, "stackloss fitted", 0, 1.0);
  for (int k = 3; k < 6; ++k) EXPECT_TRUE(fit.b->getElement(k) == 0.0 && fit.se->getElement(k) == 0.0);
  // Weights are frequencies: of 90 repeated rows, where degrees of freedom count 32.
  byDefinition(cars, 32, 2, [&](int i, int j) { return car(i, j == 1 ? 7 : 5); });
  byDefinition(miles, 32, 1, [&](int i, int) { return car(i, 2); });
  byDefinition(counts, 32, 1, [&](int i, int) { return car(i, 12); });
  const Fit weighted(32, 2, cars, miles, counts, {});
  expect(*weighted.b, "repeated coefficients", 1, 1.0);
  expect(*weighted.se, "repeated errors", 1, std::sqrt((32.0 - 3.0) / (90.0 - 3.0)));
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
