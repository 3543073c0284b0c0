#include "algebra/products.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>

#include "core/contents.h"
#include "support/random.h"

namespace {

const double kEpsilon = 2.220446049250313e-16;
const double kNan = std::numeric_limits<double>::quiet_NaN();

/// Cells of high entropy, among them everything that a macro array may hold.
std::unique_ptr<matrix> table(Random& random, int rows, int columns, bool special) {
  auto m = std::make_unique<matrix>(rows, columns, 0.0);
  const double cells[] = {kMissing, kNan, -0.0, 0.0};
  for (std::int64_t k = 0; k < addressing::cellCount(*m); ++k) {
    const int kind = special ? random.below(60) : 60;
    m->values[k] = kind < 4 ? cells[kind] : random.uniform(-9.0, 9.0);
    m->missing[k] = kind == 4;
  }
  return m;
}

/// Writes every cell of a block as it is defined, 1-based.
template <class Cell>
void byDefinition(matrix& c, int rows, int columns, Cell cell) {
  for (int i = 1; i <= rows; ++i) {
    for (int j = 1; j <= columns; ++j) c.vbset(i, j, cell(i, j));
  }
}

auto at(const matrix* m) {
  return [m](int i, int j) { return m->vbget(i, j); };
}

auto transposed(const matrix* m) {
  return [m](int i, int j) { return m->vbget(j, i); };
}

/// Cells of left.right and, the upper triangle mirrored, of left.diag(d).left'.
template <class Left, class Right>
auto product(int depth, Left left, Right right) {
  return [=](int i, int j) {
    double sum = 0.0;
    for (int k = 1; k <= depth; ++k) sum += left(i, k) * right(k, j);
    return sum;
  };
}

template <class Left, class Diagonal>
auto symmetric(int depth, Left left, Diagonal d) {
  return [=](int i, int j) {
    double sum = 0.0;
    for (int k = 1; k <= depth; ++k) sum += left(std::min(i, j), k) * d(k) * left(std::max(i, j), k);
    return sum;
  };
}

/// Runs a worker on a container of the result's shape, a column more where it is the caller's, or of another
/// shape; a cell is flagged where the container is kept.
template <class Cell, class Run>
void expect(const char* name, int rows, int columns, bool prepared, Cell cell, Run run,
            bool reshaped = false) {
  SCOPED_TRACE(name);
  matrix held(rows + reshaped, columns + !prepared, 4.75), expected(rows, held.pX, prepared ? 0.0 : 4.75);
  held.setMissing(rows / 2, columns / 2, true), expected.setMissing(rows / 2, columns / 2, !reshaped);
  byDefinition(expected, rows, columns, cell);
  matrix* c = &held;
  run(c);
  EXPECT_EQ(c != &held, reshaped);
  EXPECT_TRUE(holds(*c, rows, expected.pX, cellsOf(expected)));
  if (c != &held) delete c;
  if (prepared && !reshaped) expect(name, rows, columns, prepared, cell, run, true);
}

}  // namespace

TEST(Products, EqualTheirDefinitionBitForBit) {
  Random random(31);
  const int large[][3] = {{203, 6, 4}, {5, 217, 3}, {7, 3, 230}, {1, 1, 1}, {0, 5, 4}, {5, 0, 4}, {4, 5, 0}};
  for (int round = 0; round < 22; ++round) {
    const auto extent = [&](int of) { return round < 7 ? large[round][of] : random.below(71); };
    const int n = extent(0), p = extent(1), q = extent(2);
    SCOPED_TRACE(testing::Message() << n << ", " << p << ", " << q << ", round " << round);
    // Every second round has containers that are smaller or larger than the extents.
    const auto sized = [&](int size) { return size + (round % 2 == 0 ? 0 : random.below(7) - 3); };
    std::vector<std::unique_ptr<matrix>> owners;
    const auto operand = [&](int rows, int columns) {
      owners.push_back(table(random, sized(rows), columns == 1 ? 1 : sized(columns), round % 3 == 0));
      return owners.back().get();
    };
    matrix *A = operand(n, p), *PQ = operand(p, q), *QP = operand(q, p), *NQ = operand(n, q);
    matrix *PP = operand(p, p), *NN = operand(n, n), *U = operand(n, 1), *V = operand(p, 1);
    if (round % 4 == 0) PP->SProd(0, 0.0), NN->SProd(0, 0.0);
    const auto a = at(A), nq = at(NQ), u = at(U), v = at(V);
    const auto ta = transposed(A);
    const auto onV = [v](int k) { return v(k, 1); };
    const auto onU = [u](int k) { return u(k, 1); };
    const auto onP = [m = at(PP)](int k) { return m(k, k); };
    const auto onN = [m = at(NN)](int k) { return m(k, k); };
    const auto one = [](int) { return 1.0; };
    // Without terms a caller's container is left alone.
    const auto kept = [=](auto cell) {
      return [=](int i, int j) { return n < 1 || p < 1 ? 4.75 : cell(i, j); };
    };
    using C = matrix*&;
    expect("AB", n, q, true, product(p, a, at(PQ)), [&](C c) { M_ProductAB(A, n, p, PQ, q, c); });
    expect("ATrB", n, q, true, product(p, a, transposed(QP)), [&](C c) { M_ProductATrB(A, n, p, QP, q, c); });
    expect("TrAB", p, q, true, product(n, ta, nq), [&](C c) { M_ProductTrAB(A, n, p, NQ, q, c); });
    expect("VB", p, 1, true, product(n, ta, u), [&](C c) { M_ProductVB(U, n, A, p, c); });
    expect("BV", n, 1, false, kept(product(p, a, v)), [&](C c) { M_ProductBV(A, n, p, V, c); });
    expect("ATrA", n, n, true, symmetric(p, a, one), [&](C c) { M_ProductATrA(A, n, p, c); });
    expect("TrAA", p, p, true, symmetric(n, ta, one), [&](C c) { M_ProductTrAA(A, n, p, c); });
    expect("ADA'", n, n, true, symmetric(p, a, onP), [&](C c) { M_ProductADTrA(A, n, p, PP, c); });
    expect("A'DA", p, p, true, symmetric(n, ta, onN), [&](C c) { M_ProductTrADA(A, n, p, NN, c); });
    const auto byV = kept(symmetric(p, a, onV));
    const auto byU = kept(symmetric(n, ta, onU));
    expect("AvA'", n, n, false, byV, [&](C c) { M_ProductADiagVTrA(A, n, p, V, c); });
    expect("A'vA", p, p, false, byU, [&](C c) { M_ProductTrADiagVA(A, n, p, U, c); });
    const auto scaled = [](auto l, auto d) { return [=](int i, int j) { return l(i, j) * d(j); }; };
    const auto rows = [=](int i, int j) { return onU(i) * a(i, j); };
    const auto crossed = [=](int i, int j) { return a(i, (j + 2) / 3) * nq(i, (j + 2) % 3 + 1); };
    expect("ADiag", n, p, true, scaled(a, onP), [&](C c) { M_ProductADiag(A, n, p, PP, c); });
    expect("TrADiag", p, n, true, scaled(ta, onN), [&](C c) { M_ProductTrADiag(A, n, p, NN, c); });
    expect("ADiagV", n, p, false, scaled(a, onV), [&](C c) { M_ProductADiagV(A, n, p, V, c); });
    expect("DiagVA", n, p, false, rows, [&](C c) { M_ProductDiagVA(U, n, A, p, c); });
    expect("DvADv", n, p, false, scaled(rows, onV), [&](C c) { M_ProductDiagV1ADiagV2(U, n, A, p, V, c); });
    expect("HorizAB", n, 3 * p, false, crossed, [&](C c) { M_ProductHorizAB(A, n, p, NQ, 3, c); });

    // Two factors first, then the third; in the middle a table or its inverse.
    for (const bool inverted : {false, true}) {
      matrix P(p, p, 0.0), N(n, n, 0.0), left(n, p, 0.0), transposedLeft(p, n, 0.0), right(n, 1, 0.0);
      byDefinition(P, p, p, at(PP)), byDefinition(N, n, n, at(NN));
      if (inverted) {
        short state = 0;  // without an inverse zeros
        if (P.inverse1(&P, state, 1e-12) != 0) std::fill_n(P.values, p * p, 0.0);
        if (N.inverse1(&N, state, kEpsilon) != 0) std::fill_n(N.values, n * n, 0.0);
      }
      byDefinition(left, n, p, product(p, a, at(&P)));
      byDefinition(transposedLeft, p, n, product(n, ta, at(&N)));
      byDefinition(right, n, 1, product(n, at(&N), u));
      const auto byRows = inverted ? M_ProductAinvBTrA : M_ProductABTrA;
      const auto byColumns = inverted ? M_ProductTrAinvBA : M_ProductTrABA;
      const auto form = inverted ? M_ProductTrVinvBV : M_ProductTrVBV;
      expect("ABA", n, n, true, product(p, at(&left), ta), [&](C c) { byRows(A, n, p, PP, c); });
      expect("TrABA", p, p, true, product(n, at(&transposedLeft), a),
             [&](C c) { byColumns(A, n, p, NN, c); });
      EXPECT_TRUE(bits::equal(form(U, n, NN), product(n, transposed(U), at(&right))(1, 1)));
      if (inverted) continue;
      EXPECT_TRUE(bits::equal(M_ProductTrV1BV2(A, n, NN, U), product(n, ta, at(&right))(1, 1)));
    }
    double trace = 0.0;
    for (int j = 1; j <= p; ++j) trace += product(n, ta, nq)(j, j);
    EXPECT_TRUE(bits::equal(M_FrobeniusNorm(A, n, p, NQ), trace));
  }
}

TEST(Products, MissingTermsFlagTheirCells) {
  Random random(32);
  for (int round = 0; round < 30; ++round) {
    const int n = 1 + random.below(12), p = 1 + random.below(12), q = 1 + random.below(12);
    // A column short in every third round: what lies outside is not missing.
    const auto a = table(random, n, p - (round % 3 == 0), round % 2 == 0), b = table(random, p, q, true);
    matrix c(n, q, 4.75), expected(n, q, 0.0);
    for (matrix* m : {&c, &expected}) m->setMissing(round % (n * q), true);
    byDefinition(expected, n, q, [&](int i, int j) {
      bool missing = false;
      for (int k = 1; k <= p; ++k) {
        missing = missing || a->getMissing(i - 1, k - 1) || b->getMissing(k - 1, j - 1);
      }
      if (missing) expected.setMissing(i - 1, j - 1, true);
      return product(p, at(a.get()), at(b.get()))(i, j);
    });
    matrix* result = &c;
    EXPECT_EQ(M_ProductABMissing(a.get(), n, p, b.get(), q, result), 0);
    ASSERT_EQ(result, &c);
    EXPECT_TRUE(holds(c, n, q, cellsOf(expected)));
    EXPECT_EQ(flagsOf(c), flagsOf(expected));
  }
}

TEST(Products, ColumnsOfTwoTablesCrossInPlace) {
  Random random(33);
  for (int round = 0; round < 60; ++round) {
    const int n = 1 + random.below(20), p = 1 + random.below(5), q = 1 + random.below(4), mode = round % 4;
    const bool special = round % 2 == 0;
    const auto a = table(random, n, p, special), b = table(random, n, q, special),
               w = table(random, n, 1, special);
    for (int i = 0; i < n; ++i) w->values[i] = random.below(3) == 0 ? 0.0 : std::fabs(w->values[i]);
    for (int k = 0; k < n * p; k += 1 + random.below(3)) a->values[k] = k % 2 == 0 ? 0.0 : 1e-17;
    matrix plain(n, p * q, 0.0), coded(n, p * q, 0.0), sums(p * q, 1, 0.0);
    for (int i = 1; i <= n; ++i) {
      for (int j = 1; j <= p * q; ++j) {
        const double x = a->vbget(i, (j - 1) / q + 1), y = b->vbget(i, (j - 1) % q + 1);
        plain.vbset(i, j, x * y);
        coded.vbset(i, j, x == 0.0 || y == 0.0 ? 0.0 : x * y);
      }
    }
    for (int j = 1; j <= p * q && mode == 3; ++j) {
      double sum[2] = {};  // of the weights of positive and of negative entries
      for (int i = 1; i <= n; ++i) {
        const double x = coded.vbget(i, j);
        if (std::fabs(x) > kEpsilon) sum[x < 0.0] += w->vbget(i, 1);
      }
      sums.vbset(j, 1, sum[0]);
      for (int i = 1; i <= n; ++i) {
        const double x = coded.vbget(i, j), divisor = sum[x < 0.0];
        if (std::fabs(x) > kEpsilon && divisor != 0.0) coded.vbset(i, j, x / divisor);
      }
    }
    matrix first(n, p, a->values, true, 0, 0), second(n, p, a->values, true, 0, 0), used(p * q, 1, 4.75);
    matrix *product = &first, *design = &second, *frequencies = &used;
    int columns[] = {p, p};
    M_ProductHorizAB2(product, n, &columns[0], b.get(), q);
    M_ProductDesignAB2(design, n, &columns[1], b.get(), q, mode, w.get(), frequencies);
    const std::unique_ptr<matrix> created(product == &first ? nullptr : product),
        other(design == &second ? nullptr : design);
    EXPECT_EQ(columns[0] + columns[1], 2 * p * q);
    EXPECT_EQ(product == &first && design == &second, q == 1);
    EXPECT_TRUE(holds(*product, n, p * q, cellsOf(plain)));
    EXPECT_TRUE(holds(*design, n, p * q, cellsOf(coded)));
    ASSERT_EQ(frequencies, &used);
    // Other modes do not look at the frequencies.
    EXPECT_TRUE(bits::equal(cellsOf(used),
                            mode == 3 ? cellsOf(sums) : std::vector<double>(cellsOf(sums).size(), 4.75)));
  }
}
