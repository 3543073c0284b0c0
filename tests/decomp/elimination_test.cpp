#include "kavoratb1c/decomp/elimination.h"

#include <gmock/gmock.h>

#include "kavoratb1c/algebra/products.h"
#include "kavoratb1c/decomp/collinearity.h"
#include "kavoratb1c/decomp/inverses.h"
#include "support/residuals.h"

using namespace kav;

using namespace square;

namespace {

int gaussByDefinition(matrix& a, int n, int m, matrix& b) {
  matrix uses(n, 1, 0.0), rows(n, 1, 0.0), columns(n, 1, 0.0);
  const auto inBoth = [&](auto change) {
    for (int j = 1; j <= n + m; ++j) j <= n ? change(a, j) : change(b, j - n);
  };
  for (int pass = 1; pass <= n; ++pass) {
    int r = pass, c = pass;  // where NaN leaves no candidate
    double big = 0.0;
    for (int i = 1; i <= n; ++i) {
      for (int j = 1; j <= n && uses.vbget(i, 1) != 1.0; ++j) {
        const double size = std::fabs(a.vbget(i, j));
        if (size >= big && uses.vbget(j, 1) == 0.0) big = size, r = i, c = j;
      }
    }
    uses.vbset(c, 1, uses.vbget(c, 1) + 1.0), rows.vbset(pass, 1, r), columns.vbset(pass, 1, c);
    if (r != c) inBoth([&](matrix& t, int j) { exchange(t, r, j, c, j); });
    if (a.vbget(c, c) == 0.0) return -2;
    const double reciprocal = 1.0 / a.vbget(c, c);
    a.vbset(c, c, 1.0);
    inBoth([&](matrix& t, int j) { t.vbset(c, j, t.vbget(c, j) * reciprocal); });
    for (int i = 1; i <= n; ++i) {
      const double factor = a.vbget(i, c);
      if (i == c) continue;
      a.vbset(i, c, 0.0);
      inBoth([&](matrix& t, int j) { t.vbset(i, j, t.vbget(i, j) - factor * t.vbget(c, j)); });
    }
  }
  for (int pass = n; pass >= 1; --pass) {
    const int j = static_cast<int>(rows.vbget(pass, 1)), k = static_cast<int>(columns.vbget(pass, 1));
    for (int i = 1; i <= n && j != k; ++i) exchange(a, i, j, i, k);
  }
  return 0;
}

/// Either triangle of a symmetric table whose lower one is stored row after row.
struct Packed {
  static int place(int i, int j) { return std::max(i, j) * (std::max(i, j) - 1) / 2 + std::min(i, j); }
  double operator()(int i, int j) const { return cells.vbget(place(i, j), 1); }
  void set(int i, int j, double x) const { cells.vbset(place(i, j), 1, x); }

  matrix& cells;
};

void sweepByDefinition(const Packed& s, int q, int k) {
  const double d = s(k, k);
  s.set(k, k, -1.0 / d);
  for (int i = 1; i <= q; ++i) {
    const double a = s(i, k);
    if (i != k) s.set(i, k, a / std::fabs(d));
    for (int j = 1; j <= i; ++j) {
      const double cell = s(i, j) - a * s(j, k) * (d < 0.0 ? -1.0 : 1.0);
      if (i != k && j != k) s.set(i, j, std::fabs(cell) < 1e-12 ? 0.0 : cell);
    }
  }
}

double smallestByDefinition(const Packed& s, int p, int k, double tolerance) {
  const double d = s(k, k);
  double least = d;
  for (int j = 1; j <= p && d > 0.0 && d >= tolerance; ++j) {
    if (s(j, j) < 0.0) least = std::min(least, 1.0 / (std::fabs(s(j, j)) + s(j, k) * s(j, k) / d));
  }
  return least;
}

struct Check {
  int p, groups = 1, markOthers = 0, sweepAll = 0, backwards = 0;
  double tolerance = 0.01;
  matrix r{p, p, 0.0}, selection{9, 1, 1.0}, groupOf{9, 1, 1.0};
};

/// Codes, tolerances and inflations, 4.75 before.
std::vector<double> resultsOf(Check& c) {
  matrix status(c.p, 1, 4.75), tolerances(c.p, 1, 4.75), inflations(c.p, 1, 4.75), all(c.p, 3, 0.0);
  matrix* group = &c.groupOf;
  CheckTolerance(&c.r, c.p, c.groups, &c.selection, nullptr, group, c.tolerance,
                 static_cast<short>(c.markOthers), static_cast<short>(c.sweepAll),
                 static_cast<short>(c.backwards), &status, &tolerances, &inflations);
  all.copyCol(&status, 0, 0), all.copyCol(&tolerances, 0, 1), all.copyCol(&inflations, 0, 2);
  return cellsOf(all);
}

std::vector<double> resultsByDefinition(const Check& c) {
  matrix all(c.p, 3, 4.75), work((c.p + 1) * (c.p + 2) / 2, 1, 1.0);
  const Packed s{work};
  const auto give = [&](int k, double code, double left) {
    all.vbset(k, 1, code), all.vbset(k, 2, left), all.vbset(k, 3, left == 0.0 ? kMissing : 1.0 / left);
  };
  const auto test = [&](int k) {
    for (int i = 1; i <= c.p; ++i) {
      for (int j = 1; j <= i; ++j) s.set(i, j, c.r.vbget(i, j));
      s.set(c.p + 1, i, i == k ? 1.0 : c.r.vbget(i, k));
    }
    s.set(c.p + 1, c.p + 1, 1.0);
    double left = 1.0;
    for (int j = c.p; j >= 1 && !(left < c.tolerance); --j) {
      const double code = all.vbget(j, 1), least = smallestByDefinition(s, c.p, j, c.tolerance);
      if (j == k || code == 50000.0 || (code != 0.0 && c.sweepAll != -1)) continue;
      const bool marked = c.markOthers == -1 && std::fabs(s(j, j)) < c.tolerance;
      if (!(least < c.tolerance) || (c.markOthers == -1 && !marked)) {
        sweepByDefinition(s, c.p + 1, j);
        left = s(c.p + 1, c.p + 1);
        give(k, left < c.tolerance && c.sweepAll == 0 ? 60000.0 : 0.0, left);
      } else if (marked) {
        give(j, 60000.0, least);
      }
    }
  };
  for (int i = 1; i <= c.p; ++i) all.vbset(i, 1, 0.0);
  for (int i = 1; i <= c.p; ++i) {
    const bool constant = std::fabs(c.r.vbget(i, i)) < 1e-12;
    if (constant) give(i, 50000.0, 0.0);
    for (int j = i + 1; j <= c.p && !constant; ++j) {
      if (std::fabs(c.r.vbget(i, j)) >= 0.999999999999) give(j, 60000.0, 0.0);
    }
  }
  for (int h = c.groups; h >= 1; --h) {
    for (int v = 1; v <= c.p && c.selection.vbget(h, 1) == 1.0; ++v) {
      const int k = c.backwards == -1 ? c.p + 1 - v : v;
      if (c.groupOf.vbget(k, 1) == h && all.vbget(k, 1) == 0.0) test(k);
    }
  }
  return cellsOf(all);
}

}  // namespace

TEST(Elimination, EqualsItsDefinitionBitForBitAndLeavesSmallResiduals) {
  int results[3] = {};
  forAllTables(71, [&](int n, int shape, const matrix& table, Random& random) {
    const int sides[] = {0, 1, 3, n > 17 ? 2 : n}, m = sides[random.below(4)], size = n * (n + 1) / 2;
    const auto a = copyOf(table), inverse = copyOf(table), b = container(n, m, shape, 0.0);
    for (int k = 0; k < b->nX * b->pX; ++k) b->values[k] = random.below(40) == 0 ? NAN : random.uniform(0, 9);
    const auto solution = copyOf(*b);
    const int result = gaussByDefinition(*inverse, n, m, *solution);
    EXPECT_EQ(M_Gauss(a.get(), n, m, b.get()), result);
    EXPECT_TRUE(same(*a, *inverse) && same(*b, *solution)) << m;
    ++results[result + 2];
    EXPECT_LT(shape <= kLarger && result == 0 ? residual(n, at(table), at(*a), identity) : 0.0, 3.0);

    // On pivots first, in the middle and last one after the other, and on none.
    const auto s = container(size, 1, shape == kColumnShort ? kRowShort : shape, 0.0);
    for (int k = 0; k < s->nX; ++k) s->values[k] = table.getElement(k % std::max(n * n, 1));
    const auto expected = copyOf(*s);
    for (const int k : {1, n / 2 + 1, n, 0, n + 1, -1}) {
      if (k >= 1 && k <= n) sweepByDefinition({*expected}, n, k);
      EXPECT_EQ(M_Sweep(s.get(), n, k), 0);
      ASSERT_TRUE(same(*s, *expected)) << "pivot " << k;
    }
  });
  EXPECT_TRUE(results[0] > 100 && results[2] > 200);
}

TEST(Elimination, InvertsCrossProductsAndWhatIsSweptOnAllPivots) {
  Random random(72);
  for (const int n : {1, 2, 3, 5, 10, 17, 50}) {
    matrix x(n, n, 0.0), a(n, n, 0.0), g(n, n, 4.75), left(n, n, 0.0), swept(n * (n + 1) / 2, 1, 0.0);
    matrix *squares = &a, *ag = &left;
    byDefinition(x, n, n, [&](int, int) { return random.uniform(-1.0, 1.0); });
    for (const int rank : {n, (n + 1) / 2}) {  // of few columns it is the Moore-Penrose inverse
      int found = 58;
      M_ProductATrA(&x, n, rank, squares);
      EXPECT_TRUE(M_InvGeneralized(&a, n, &g, 1e-9, found) == 0 && found == rank);
      M_ProductAB(&a, n, n, &g, n, ag);
      const double condition = std::sqrt(M_FrobeniusNorm(&a, n, n, &a) * M_FrobeniusNorm(&g, n, n, &g));
      EXPECT_LT(residual(n, at(left), at(a), at(a)), 3.0 * condition);
      EXPECT_LT(residual(n, at(g), at(left), at(g)), 3.0 * condition);
      EXPECT_LT(residual(n, at(left), identity, transposed(left)), 3.0 * condition);
    }
    const Packed s{swept};  // in the end minus the inverse, swept once more itself
    for (int k = 0; k < n * n; ++k) s.set(k / n + 1, k % n + 1, k % (n + 1) == 0 ? n + 1.0 : x.values[k]);
    byDefinition(a, n, n, s);
    const auto before = copyOf(swept);
    for (int k = 1; k <= n; ++k) M_Sweep(&swept, n, k);
    EXPECT_LT(residual(n, at(a), s, [](int i, int j) { return -identity(i, j); }), 3.0);
    for (int k = n; k >= 1; --k) M_Sweep(&swept, n, k);
    EXPECT_THAT(cellsOf(swept), testing::Pointwise(testing::DoubleNear(n * 1e-15), cellsOf(*before)));
  }
}

TEST(Elimination, SmallTablesByHand) {
  const auto a = cells(2, 2, {0, 1, 1, 0}), b = cells(2, 1, {3, 5}), s = cells(3, 1, {4, 2, 3});
  const auto diagonal = cells(2, 2, {2, 0, 0, 0}), c = cells(3, 3, {4, 9, 2, 9, 9, 9, 2, 9, 5}),
             zeros = cells(3, 3, std::vector<double>(9, 0.0));
  EXPECT_TRUE(M_Gauss(a.get(), 2, 1, b.get()) == 0 && holds(*b, 2, 1, {5, 3}));
  EXPECT_TRUE(M_Sweep(s.get(), 2, 1) == 0 && holds(*s, 3, 1, {-0.25, 0.5, 2}));
  matrix g(3, 2, 4.75), *inverse = nullptr;
  int rank = 58;
  EXPECT_TRUE(M_InvGeneralized(diagonal.get(), 2, &g, 1e-10, rank) == 0 && rank == 1);
  EXPECT_TRUE(holds(g, 3, 2, {0.5, 0, 4.75, 0, 0, 4.75}));
  const auto second = cells(3, 1, {0, 5, 0}), two = cells(3, 1, {1, 5, 0}), all = cells(3, 1, {1, 5, 1});
  EXPECT_EQ(cCleanConstraintsAndInvert(3, second.get(), c.get(), inverse), 0);
  const std::unique_ptr<matrix> made(inverse);
  EXPECT_TRUE(holds(*inverse, 3, 3, {0.3125, 0, -0.125, 0, 0, 0, -0.125, 0, 0.25}));
  EXPECT_EQ(cCleanConstraintsAndInvertTriang(3, second.get(), c.get(), 0, inverse), 0);
  EXPECT_TRUE(holds(*inverse, 3, 3, {0.25, 0, 0, 0, 0, 0, -0.1, 0, 0.2}));
  EXPECT_EQ(cCleanConstraintsAndInvertTriang(3, second.get(), c.get(), 1, inverse), 0);
  EXPECT_EQ(cCleanConstraintsAndInvertTriang(3, two.get(), zeros.get(), 1, inverse), -1);
  EXPECT_EQ(cCleanConstraintsAndInvert(3, second.get(), zeros.get(), inverse), -1);
  EXPECT_TRUE(holds(*inverse, 3, 3, {0.25, 0, -0.1, 0, 0, 0, 0, 0, 0.2}));  // as it was
  EXPECT_EQ(cCleanConstraintsAndInvert(3, two.get(), zeros.get(), inverse), 0);
  EXPECT_TRUE(holds(*inverse, 3, 3, {0, 0, 0, 0, 0, 0, 0, 0, 1 / 1e-12}));
  EXPECT_TRUE(cCleanConstraintsAndInvert(3, all.get(), c.get(), inverse) == 0 && same(*inverse, *zeros));
  const auto hilbert = cells(3, 3, {1, 1. / 2, 1. / 3, 1. / 2, 1. / 3, 1. / 4, 1. / 3, 1. / 4, 1. / 5});
  const std::vector<double> whole = {9, -36, 30, -36, 192, -180, 30, -180, 180};
  EXPECT_EQ(cCleanConstraintsAndInvert(3, zeros.get(), hilbert.get(), inverse), 0);
  EXPECT_THAT(cellsOf(*inverse), testing::Pointwise(testing::DoubleNear(1e-11), whole));
}

TEST(Collinearity, EqualsItsDefinitionBitForBit) {
  Random random(74);
  int counts[4] = {};
  for (int round = 0; round < 1000; ++round) {
    const int p = 1 + random.below(8), flags[] = {0, -1, 0, -1, 1};
    Check check{p, random.below(4), flags[random.below(5)], flags[random.below(5)]};
    check.backwards = flags[random.below(5)], check.tolerance = random.below(4) * 0.05;
    // So few rows that columns are zero, repeat or depend on others, exactly or nearly.
    const int rows = 2 + random.below(6);
    matrix x(rows, p, 0.0), swept(p * (p + 1) / 2, 1, 0.0), *r = &check.r;
    byDefinition(x, rows, p, [&](int, int) {
      return random.below(3) - 1.0 + (round % 3 == 0 ? random.uniform(-0.1, 0.1) : 0.0);
    });
    for (int j = 0; j < p; ++j) x.Normalize(j);
    M_ProductTrAA(&x, rows, p, r);
    if (round % 10 == 0) check.r.values[random.below(p * p)] = random.uniform(-2.0, 2.0);
    for (int k = 0; k < 9; ++k) {
      check.groupOf.values[k] = 1 + k * check.groups / 9, check.selection.values[k] = random.below(4) > 0;
    }
    const std::vector<double> actual = resultsOf(check);
    ASSERT_TRUE(bits::equal(actual, resultsByDefinition(check))) << round;
    for (const double code : actual) ++counts[code == 60000.0 ? 2 : code == 50000.0 ? 1 : 0];
    for (int k = 0; k < p * p; ++k) Packed{swept}.set(k / p + 1, k % p + 1, check.r.values[k]);
    for (int k = 1; k <= p; ++k) {
      const double expected = smallestByDefinition({swept}, p, k, check.tolerance);
      EXPECT_TRUE(bits::equal(OLSCheckIfIn(&swept, p, k, check.tolerance), expected));
      if (expected > 0.01) sweepByDefinition({swept}, p, k), ++counts[3];
    }
  }
  for (const int count : counts) EXPECT_GT(count, 60);
}

TEST(Collinearity, ByHand) {
  // The third variable is 0.6 times the first plus 0.8 times the second.
  Check check{3};
  byDefinition(check.r, 3, 3, identity);
  check.r.values[2] = check.r.values[6] = 0.6, check.r.values[5] = check.r.values[7] = 0.8;
  const auto near = [](std::vector<double> x) { return testing::Pointwise(testing::DoubleNear(1e-12), x); };
  const double none = kMissing;
  EXPECT_THAT(resultsOf(check), near({60000, 0, 0, 0, 0.36, 0.36, none, 1 / 0.36, 1 / 0.36}));
  check.backwards = -1;
  EXPECT_THAT(resultsOf(check), near({0, 0, 60000, 1, 1, 0, 1, 1, none}));
  check.sweepAll = 1;
  EXPECT_THAT(resultsOf(check), near({0, 0, 0, 0, 0, 0, none, none, none}));
}
