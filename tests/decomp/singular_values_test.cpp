#include "kavoratb1c/decomp/singular_values.h"

#include "kavoratb1c/decomp/column_kernels.h"
#include "kavoratb1c/decomp/inverses.h"
#include "support/test_matrices.h"

using namespace kav;

namespace {

using test_matrices::residual;

/// Takes (a, b) to (a, 0).
struct Rotation {
  Rotation(double& a, double b) { drotg(a, b, c, s); }
  void turn(double& a, double& b) const { b = c * b - s * std::exchange(a, c * a + s * b); }
  void turn(matrix& m, int rows, int j, int k) const { drot(rows, &m, 1, &m, 1, c, s, j, k); }
  double c, s;
};

/// The decomposition as published, cell by cell, everything 1-based, always with both tables of vectors.
struct Definition {
  /// @return info
  int run() {
    for (int l = 1; l <= std::max(nct, nrt); ++l) reduce(l);
    if (nct < p) s[nct + 1] = x.vbget(nct + 1, nct + 1);
    if (n < order) s[order] = 0.0;
    if (nrt + 1 < order) e[nrt + 1] = x.vbget(nrt + 1, order);
    e[order] = 0.0;
    for (int j = nct + 1; j <= widthU; ++j) makeUnit(u, n, j);
    for (int l = nct; l > 0; --l) generateU(l);
    for (int l = p; l > 0; --l) {
      for (int j = l + 1; j <= p && l <= nrt && e[l] != 0.0; ++j) reflect(p - l, v, l + 1, l, j);
      makeUnit(v, p, l);
    }
    for (int m = order, steps = 0; m > 0;) {
      if (steps == 30) return m;
      int l = m - 1, zero = m;
      while (l > 0 && !negligible(e[l], std::fabs(s[l]) + std::fabs(s[l + 1]))) --l;
      if (l > 0) e[l] = 0.0;
      const auto beside = [&](int k) {
        return (k == m ? 0.0 : std::fabs(e[k])) + (k == l + 1 ? 0.0 : std::fabs(e[k - 1]));
      };
      while (zero > l && l < m - 1 && !negligible(s[zero], beside(zero))) --zero;
      if (l == m - 1) {
        settle(m--), steps = 0;
      } else if (zero == l) {
        step(l + 1, m), ++steps;
      } else {
        s[zero] = 0.0;
        chase(zero == m, zero == m ? l + 1 : zero + 1, m);
      }
    }
    return 0;
  }

  static bool negligible(double value, double beside) {
    return value == 0.0 || std::fabs((beside + std::fabs(value)) - beside) < 2.220446049250313e-16;
  }

  /// @return what the segment's reflector makes of it
  static double makeReflector(int count, matrix& m, int row, int column) {
    double length = DNRM2(count, &m, 1, row, column, 0);
    if (length == 0.0) return -length;
    if (m.vbget(row, column) != 0.0) length = std::copysign(length, m.vbget(row, column));
    dscal(count, 1.0 / length, &m, 1, row, column, 0);
    m.vbset(row, column, 1.0 + m.vbget(row, column));
    return -length;
  }

  static void reflect(int count, matrix& m, int row, int reflector, int column) {
    const double product = ddot(count, &m, 1, &m, 1, row, reflector, row, column, 0);
    daxpy(count, -product / m.vbget(row, reflector), &m, 1, &m, 1, row, reflector, row, column);
  }

  static void makeUnit(matrix& m, int rows, int column) {
    for (int i = 1; i <= rows; ++i) m.vbset(i, column, 0.0);
    m.vbset(column, column, 1.0);
  }

  void reduce(int l) {
    if (l <= nct) s[l] = makeReflector(n - l + 1, x, l, l);
    for (int j = l + 1; j <= p; ++j) {
      if (l <= nct && s[l] != 0.0) reflect(n - l + 1, x, l, l, j);
      e[j] = x.vbget(l, j);
    }
    for (int i = l; i <= n && l <= nct; ++i) u.vbset(i, l, x.vbget(i, l));
    if (l > nrt) return;
    e[l] = makeReflector(p - l, edge, l + 1, 1);
    for (int i = l + 1; i <= n; ++i) work.vbset(i, 1, 0.0);
    for (int j = l + 1; j <= p && e[l] != 0.0; ++j) daxpy(n - l, e[j], &x, 1, &work, 1, l + 1, j, l + 1, 1);
    for (int j = l + 1; j <= p && e[l] != 0.0; ++j) {
      daxpy(n - l, -e[j] / e[l + 1], &work, 1, &x, 1, l + 1, 1, l + 1, j);
    }
    for (int i = l + 1; i <= p; ++i) v.vbset(i, l, e[i]);
  }

  void generateU(int l) {
    if (s[l] == 0.0) return makeUnit(u, n, l);
    for (int j = l + 1; j <= widthU; ++j) reflect(n - l + 1, u, l, l, j);
    dscal(n - l + 1, -1.0, &u, 1, l, l, 0);
    u.vbset(l, l, 1.0 + u.vbget(l, l));
    for (int i = 1; i < l; ++i) u.vbset(i, l, 0.0);
  }

  /// A value is zero: the last one, or the one before the first.
  void chase(bool last, int first, int m) {
    double f = std::exchange(e[last ? m - 1 : first - 1], 0.0);
    for (int k = last ? m - 1 : first; k >= first && k <= m; k += last ? -1 : 1) {
      const Rotation r(s[k], f);
      const int next = last ? k - 1 : k;
      if (!last || k > first) f = -r.s * e[next], e[next] *= r.c;
      last ? r.turn(v, p, k, m) : r.turn(u, n, k, first - 1);
    }
  }

  void step(int l, int m) {
    double most = 0.0;
    for (const double a : {s[m], s[m - 1], e[m - 1], s[l], e[l]}) most = std::max(most, std::fabs(a));
    const double sm = s[m] / most, above = s[m - 1] / most, em = e[m - 1] / most, sl = s[l] / most;
    const double b = ((above + sm) * (above - sm) + em * em) / 2.0, c = (sm * em) * (sm * em);
    const double root = std::sqrt(b * b + c), shift = c / (b + (b < 0.0 ? -root : root));
    double f = (sl + sm) * (sl - sm) + (b != 0.0 || c != 0.0 ? shift : 0.0), g = sl * (e[l] / most);
    for (int k = l; k < m; ++k) {
      const Rotation right(k > l ? e[k - 1] : f, g);
      right.turn(v, p, k, k + 1), right.turn(s[k], e[k]);
      const Rotation left(s[k], right.s * s[k + 1]);
      s[k + 1] *= right.c;
      left.turn(e[k], s[k + 1]);
      if (k < n) left.turn(u, n, k, k + 1);
      g = left.s * e[k + 1], e[k + 1] *= left.c;
    }
  }

  void settle(int m) {
    if (s[m] < 0.0) s[m] = -s[m], dscal(p, -1.0, &v, 1, 1, m, 0);
    for (; m < order && s[m] < s[m + 1]; ++m) {
      std::swap(s[m], s[m + 1]);
      if (m < p) M_SwapVectors(p, &v, 1, &v, 1, m, m + 1);
      if (m < n) M_SwapVectors(n, &u, 1, &u, 1, m, m + 1);
    }
  }

  int n, p, widthU;
  matrix &x, &u, &v;
  int nct = std::min(n - 1, p), nrt = std::max(0, std::min(p - 2, n)), order = std::min(n + 1, p);
  matrix edge{p + 1, 1, 0.0}, work{n, 1, 0.0}, values{order + 2, 1, 0.0};
  double *s = values.values, *e = edge.values - 1;
};

/// @return info
int run(matrix& x, int n, int p, matrix& s, matrix* u, matrix* v, int job) {
  int info = -7;
  M_SVDecomp(&x, n, p, &s, u, 1, v, 1, job, info);
  return info;
}

}  // namespace

TEST(SingularValues, EqualTheirDefinitionBitForBit) {
  const int sizes[] = {101,  202,  303, 505, 808,  1313, 1616, 1717, 3131,
                       3333, 5050, 105, 501, 4017, 1740, 3332, 102,  201};
  const int jobs[] = {0, 1, 10, 11, 20, 21, 30};
  Random random(63);
  int round = 0;
  for (const int size : sizes) {
    for (const auto& type : test_matrices::kTypes) {
      const int n = size / 100, p = size % 100, job = jobs[++round % 7], margin = round % 3;
      const int widthU = job > 19 ? std::min(n, p) : n, order = std::min(n + 1, p);
      SCOPED_TRACE(testing::Message() << type.name << ", " << n << " x " << p << ", job " << job);
      const auto x = test_matrices::make(type, n + margin, p + margin);
      matrix u(n + margin, widthU + margin, 4.75), v(p + margin, p + margin, 4.75),
          s(order + margin, 1, 4.75);
      for (matrix* m : {x.get(), &u, &v}) {
        for (int k = 0; k < m->nX * m->pX; ++k) m->setMissing(k, round % 5 == 0 && random.below(20) == 0);
      }
      const auto definedX = copyOf(*x), definedU = copyOf(u), definedV = copyOf(v);
      Definition defined{n, p, widthU, *definedX, *definedU, *definedV};
      const int info = defined.run();
      // Vectors that are not asked for need no container.
      EXPECT_EQ(run(*x, n, p, s, job > 9 ? &u : nullptr, job % 10 > 0 ? &v : nullptr, job), info);
      for (int k = 1; k <= s.nX; ++k) {
        EXPECT_TRUE(bits::equal(s.vbget(k, 1), k <= order ? defined.s[k] : 4.75)) << k;
      }
      EXPECT_TRUE(bits::equal(cellsOf(*x), cellsOf(*definedX)));
      EXPECT_TRUE(job < 10 || bits::equal(cellsOf(u), cellsOf(*definedU)));
      EXPECT_TRUE(job % 10 == 0 || bits::equal(cellsOf(v), cellsOf(*definedV)));
    }
  }
}

TEST(SingularValues, ReproduceTheTableWithOrthonormalVectors) {
  for (const int size : {0, 101, 202, 303, 505, 1010, 5050, 1005, 510}) {
    for (const auto& type : test_matrices::kTypes) {
      const int n = size / 100, p = size % 100, least = std::min(n, p);
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

TEST(ColumnKernels, EqualPlainLoops) {
  Random random(66);
  const auto keep = [](double own, double) { return own; };
  const auto take = [](double, double other) { return other; };
  for (int round = 0; round < 300; ++round) {
    const int n = random.below(10) - 1, every = random.below(6) - 2, step = random.below(6) - 2;
    const int row = random.below(9) - 1, column = random.below(6) - 1, i = random.below(9) - 1,
              j = random.below(6) - 1;
    const auto tableX = randomTable(random, 7, 3, 40), tableY = randomTable(random, 5, 4, 40);
    matrix *x = tableX.get(), *y = tableY.get();
    const double a = random.uniform(-2.0, 2.0), c = random.uniform(-1.0, 1.0);
    SCOPED_TRACE(round);
    // New cells from both old ones, one pair after the other.
    const auto expect = [&](auto run, int rowX, int rowY, auto newX, auto newY) {
      const auto copyX = copyOf(*x), copyY = copyOf(*y);
      for (int k = 0; k < n; ++k) {
        const int placeX = rowX - 1 + 7 * (column - 1) + k * every,
                  placeY = rowY - 1 + 5 * (j - 1) + k * step;
        const double oldX = copyX->getElement(placeX), oldY = copyY->getElement(placeY);
        copyX->setElement(placeX, newX(oldX, oldY)), copyY->setElement(placeY, newY(oldY, oldX));
      }
      run();
      EXPECT_TRUE(bits::equal(cellsOf(*x), cellsOf(*copyX)) && bits::equal(cellsOf(*y), cellsOf(*copyY)));
    };
    double sum = 0.0, largest = 0.0, squares = 1.0, actual = 0.0;
    expect([&] { actual = ddot(n, x, every, y, step, row, column, i, j, 0); }, row, i,
           [&](double own, double other) { return sum += own * other, own; }, keep);
    EXPECT_TRUE(bits::equal(actual, sum));
    const auto square = [&](double own, double) {
      const double size = std::fabs(own), ratio = size > largest ? largest / size : size / largest;
      if (size != 0.0) squares = size > largest ? 1.0 + squares * (ratio * ratio) : squares + ratio * ratio;
      largest = size > largest ? size : largest;
      return own;
    };
    expect([&] { actual = DNRM2(n, x, every, row, column, 0); }, row, i, square, keep);
    const double one = std::fabs(x->vbget(row, column));
    EXPECT_TRUE(bits::equal(actual, every < 1 ? 0.0 : n == 1 ? one : largest * std::sqrt(squares)));
    expect([&] { daxpy(n, a, x, every, y, step, row, column, i, j); }, row, i, keep,
           [&](double own, double other) { return own + a * other; });
    expect([&] { dscal(n, a, x, every, row, column, 0); }, row, i,
           [&](double own, double) { return a * own; }, keep);
    expect([&] { drot(n, x, every, y, step, c, a, column, j); }, 1, 1,
           [&](double own, double other) { return c * own + a * other; },
           [&](double own, double other) { return c * own - a * other; });
    expect([&] { M_SwapVectors(n, x, every, y, step, column, j); }, 1, 1, take, take);
  }
}

TEST(ColumnKernels, NormsAndRotationsOfAllSignsAndMagnitudes) {
  for (int round = 0; round < 75; ++round) {
    const double values[] = {-4.0, -3.0, 0.0, 3.0, 4.0}, units[] = {1.0, 1e300, 1e-300};
    const double a = values[round % 5], b = values[round / 5 % 5], unit = units[round / 25];
    const double cells[] = {a * unit, b * unit}, length = std::sqrt(a * a + b * b);
    const bool first = std::fabs(a) > std::fabs(b);
    const double r = std::copysign(length, first ? a : b);
    const double cosine = length == 0.0 ? 1.0 : a / r, sine = length == 0.0 ? 0.0 : b / r;
    double newA = a * unit, newB = b * unit, c = 7.0, s = 7.0;
    drotg(newA, newB, c, s);
    EXPECT_DOUBLE_EQ(newA, r * unit);
    EXPECT_DOUBLE_EQ(newB, first || length == 0.0 ? sine : cosine != 0.0 ? 1.0 / cosine : 1.0);
    EXPECT_DOUBLE_EQ(c, cosine);
    EXPECT_DOUBLE_EQ(s, sine);
    const matrix m(2, 1, cells, true, 0, 0);
    EXPECT_DOUBLE_EQ(DNRM2(2, &m, 1, 1, 1, 0), length * unit);
  }
}
