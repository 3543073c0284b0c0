#include "kavoratb1c/algebra/products.h"

#include <cmath>

#include "kavoratb1c/algebra/elementwise.h"
#include "numerics/thresholds.h"
#include "support/tables.h"

using namespace kav;

namespace {

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

using C = matrix*&;

}  // namespace

TEST(Products, EqualTheirDefinitionBitForBit) {
  Random random(31);
  const int large[][3] = {{203, 6, 4}, {5, 217, 3}, {7, 3, 230}, {1, 1, 1}};
  for (int round = 0; round < 19; ++round) {
    const auto extent = [&](int of) { return round < 4 ? large[round][of] : random.below(71); };
    const int n = extent(0), p = extent(1), q = extent(2);
    SCOPED_TRACE(testing::Message() << n << ", " << p << ", " << q << ", round " << round);
    // Every second round has containers that are smaller or larger than the extents.
    const auto sized = [&](int size) { return size + (round % 2 == 0 ? 0 : random.below(7) - 3); };
    std::vector<std::unique_ptr<matrix>> owners;
    const auto operand = [&](int rows, int columns) {
      const int oneIn = round % 3 == 0 ? 60 : 1 << 30;
      owners.push_back(randomTable(random, sized(rows), columns == 1 ? 1 : sized(columns), oneIn));
      return owners.back().get();
    };
    matrix *A = operand(n, p), *PQ = operand(p, q), *QP = operand(q, p), *NQ = operand(n, q);
    matrix *PP = operand(p, p), *NN = operand(n, n), *U = operand(n, 1), *V = operand(p, 1);
    // Singular, since pivots up to 1e-8 are zero.
    if (round % 4 == 0) {
      PP->SProd(0, 1e-10);
      NN->SProd(0, 1e-10);
    }
    const auto a = at(A), nq = at(NQ), u = at(U), v = at(V);
    const auto ta = transposed(A);
    const auto onV = [v](int k) { return v(k, 1); };
    const auto onU = [u](int k) { return u(k, 1); };
    const auto onP = [m = at(PP)](int k) { return m(k, k); };
    const auto onN = [m = at(NN)](int k) { return m(k, k); };
    const auto one = [](int) { return 1.0; };
    const WorkerCheck expect = {n, p, q};
    expect("AB", {kN, kQ}, product(p, a, at(PQ)), [&](int i, int j, C c) { M_ProductAB(A, i, j, PQ, q, c); });
    expect("AB'", {kN, kQ}, product(p, a, transposed(QP)),
           [&](int i, int j, C c) { M_ProductATrB(A, i, j, QP, q, c); });
    expect("A'B", {kP, kQ}, product(n, ta, nq), [&](int i, int j, C c) { M_ProductTrAB(A, i, j, NQ, q, c); });
    expect("V'B", {kP, kOne}, product(n, ta, u), [&](int i, int j, C c) { M_ProductVB(U, i, A, j, c); });
    expect("BV", {kN, kOne, kWritten}, product(p, a, v),
           [&](int i, int j, C c) { M_ProductBV(A, i, j, V, c); });
    expect("AA'", {kN, kN}, symmetric(p, a, one), [&](int i, int j, C c) { M_ProductATrA(A, i, j, c); });
    expect("A'A", {kP, kP}, symmetric(n, ta, one), [&](int i, int j, C c) { M_ProductTrAA(A, i, j, c); });
    expect("ADA'", {kN, kN}, symmetric(p, a, onP),
           [&](int i, int j, C c) { M_ProductADTrA(A, i, j, PP, c); });
    expect("A'DA", {kP, kP}, symmetric(n, ta, onN),
           [&](int i, int j, C c) { M_ProductTrADA(A, i, j, NN, c); });
    expect("AvA'", {kN, kN, kWritten}, symmetric(p, a, onV),
           [&](int i, int j, C c) { M_ProductADiagVTrA(A, i, j, V, c); });
    expect("A'vA", {kP, kP, kWritten}, symmetric(n, ta, onU),
           [&](int i, int j, C c) { M_ProductTrADiagVA(A, i, j, U, c); });
    const auto scaled = [](auto l, auto d) { return [=](int i, int j) { return l(i, j) * d(j); }; };
    const auto rows = [=](int i, int j) { return onU(i) * a(i, j); };
    const auto crossed = [=](int i, int j) { return a(i, (j + 2) / 3) * nq(i, (j + 2) % 3 + 1); };
    expect("AD", {kN, kP}, scaled(a, onP), [&](int i, int j, C c) { M_ProductADiag(A, i, j, PP, c); });
    expect("A'D", {kP, kN}, scaled(ta, onN), [&](int i, int j, C c) { M_ProductTrADiag(A, i, j, NN, c); });
    expect("Av", {kN, kP, kWritten}, scaled(a, onV),
           [&](int i, int j, C c) { M_ProductADiagV(A, i, j, V, c); });
    expect("vA", {kN, kP, kWritten}, rows, [&](int i, int j, C c) { M_ProductDiagVA(U, i, A, j, c); });
    expect("vAv", {kN, kP, kWritten}, scaled(rows, onV),
           [&](int i, int j, C c) { M_ProductDiagV1ADiagV2(U, i, A, j, V, c); });
    const WorkerCheck expectWide = {n, 3 * p, q};
    expectWide("AxB", {kN, kP, kWritten}, crossed,
               [&](int i, int j, C c) { M_ProductHorizAB(A, i, j / 3, NQ, 3, c); });
    expect.withoutCells({kNone, kNone, kWritten},
                        [&](int i, int j, C c) { M_ProductHorizAB2(c, i, &j, NQ, 3); });
    expect.withoutCells({kNone, kNone, kWritten},
                        [&](int i, int j, C c) { M_ProductDesignAB2(c, i, &j, NQ, 3, 0, U, c); });

    // Two factors first, then the third; in the middle a table or its inverse.
    for (const bool inverted : {false, true}) {
      matrix P(p, p, 0.0), N(n, n, 0.0), left(n, p, 0.0), tLeft(p, n, 0.0), right(n, 1, 0.0);
      byDefinition(P, p, p, at(PP));
      byDefinition(N, n, n, at(NN));
      if (inverted) {
        short state = 0;  // without an inverse zeros
        if (P.inverse1(&P, state, 1e-12) != 0) std::fill_n(P.values, p * p, 0.0);
        if (N.inverse1(&N, state, kEpsilon) != 0) std::fill_n(N.values, n * n, 0.0);
      }
      byDefinition(left, n, p, product(p, a, at(&P)));
      byDefinition(tLeft, p, n, product(n, ta, at(&N)));
      byDefinition(right, n, 1, product(n, at(&N), u));
      const auto byRows = inverted ? M_ProductAinvBTrA : M_ProductABTrA;
      const auto byColumns = inverted ? M_ProductTrAinvBA : M_ProductTrABA;
      const auto form = inverted ? M_ProductTrVinvBV : M_ProductTrVBV;
      expect("ABA'", {kN, kN}, product(p, at(&left), ta), [&](int i, int j, C c) { byRows(A, i, j, PP, c); });
      expect("A'BA", {kP, kP}, product(n, at(&tLeft), a),
             [&](int i, int j, C c) { byColumns(A, i, j, NN, c); });
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
    const auto a = randomTable(random, n, p - (round % 3 == 0), round % 2 == 0 ? 60 : 1 << 30),
               b = randomTable(random, p, q, 60);
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
    const int oneIn = round % 2 == 0 ? 60 : 1 << 30;
    const auto a = randomTable(random, n, p, oneIn), b = randomTable(random, n, q, oneIn),
               w = randomTable(random, n, 1, oneIn);
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

TEST(Products, ReplaceAnOperandThatIsTheResultAndHasAnotherShape) {
  Random random(34);
  const auto transpose = +[](const matrix* a, int n, int p, C c) { M_ScalarsTrA(a, n, p, 0.5, c); };
  const auto inverse = +[](const matrix* a, int n, int p, C c) { M_ProductAinvBTrA(a, n, p, a, c); };
  for (const auto run : {M_ProductATrA, M_ProductTrAA, transpose, inverse}) {
    for (const int p : {2, 3}) {
      const auto a = randomTable(random, 3, p, 1 << 30), held = copyOf(*a);
      matrix *own = held.get(), *apart = nullptr;
      run(a.get(), 3, p, apart);
      run(own, 3, p, own);
      const std::unique_ptr<matrix> expected(apart), made(own == held.get() ? nullptr : own);
      EXPECT_EQ(made != nullptr, p == 2);  // in the same shape what becomes of the cells is open
      if (made == nullptr) continue;
      EXPECT_TRUE(holds(*made, apart->nX, apart->pX, cellsOf(*apart)));
      EXPECT_TRUE(holds(*held, 3, 2, cellsOf(*a)));
    }
  }
}
