#include "kavoratb1c/decomp/column_kernels.h"

#include <cmath>

#include "definitions/singular_values.h"
#include "support/tables.h"

using namespace kav;

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
        copyX->setElement(placeX, newX(oldX, oldY));
        copyY->setElement(placeY, newY(oldY, oldX));
      }
      run();
      EXPECT_TRUE(bits::equal(cellsOf(*x), cellsOf(*copyX)) && bits::equal(cellsOf(*y), cellsOf(*copyY)));
    };
    double sum = 0.0, actual = 0.0;
    const auto addProduct = [&](double own, double other) {
      sum += own * other;
      return own;
    };
    expect([&] { actual = ddot(n, x, every, y, step, row, column, i, j, 0); }, row, i, addProduct, keep);
    EXPECT_TRUE(bits::equal(actual, sum));
    const auto cell = [&](int k) { return x->getElement(row - 1 + 7 * (column - 1) + k * every); };
    expect([&] { actual = DNRM2(n, x, every, row, column, 0); }, row, i, keep, keep);
    EXPECT_TRUE(bits::equal(actual, every < 1 ? 0.0 : definitions::norm(n, cell)));
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
