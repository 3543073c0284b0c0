#include "algebra/elementwise.h"

#include <algorithm>
#include <initializer_list>
#include <limits>

#include "core/contents.h"
#include "support/random.h"

namespace {

/// Runs a worker on a flagged container, with room to spare where it is the caller's, and compares with the
/// definition of its cells.
template <class Cell, class Run>
void expect(const char* name, int rows, int columns, bool prepared, Cell cell, Run run) {
  SCOPED_TRACE(name);
  matrix c(rows, columns + (prepared ? 0 : 1), 4.75), expected(rows, c.pX, prepared ? 0.0 : 4.75);
  for (matrix* m : {&c, &expected}) m->setMissing(rows / 2, columns / 2, true);
  for (int i = 1; i <= rows; ++i) {
    for (int j = 1; j <= columns; ++j) expected.vbset(i, j, cell(i, j));
  }
  matrix* result = &c;
  run(result);
  ASSERT_EQ(result, &c);
  EXPECT_TRUE(holds(c, rows, expected.pX, cellsOf(expected)));
}

}  // namespace

TEST(Elementwise, EqualsItsDefinitionBitForBit) {
  Random random(41);
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double specials[] = {kMissing, nan, -0.0, std::numeric_limits<double>::infinity(), kMissing};
  for (int round = 0; round < 60; ++round) {
    const int n = 1 + random.below(round % 8 == 0 ? 1300 : 40), p = 1 + random.below(30);
    SCOPED_TRACE(testing::Message() << n << ", " << p << ", round " << round);
    // Every second round has containers that are smaller or larger than the extents.
    const auto sized = [&](int size) { return size + (round % 2 == 0 ? 0 : random.below(7) - 3); };
    matrix a(sized(n), sized(p), 0.0), b(sized(n), sized(p), 0.0);
    for (matrix* m : {&a, &b}) {
      for (std::int64_t k = 0; k < addressing::cellCount(*m); ++k) {
        const int kind = random.below(round % 3 == 0 ? 10 : 200);
        m->values[k] = kind < 5 ? specials[kind] : random.uniform(-1e3, 1e3);
        m->missing[k] = kind == 5;
      }
    }
    if (round % 4 == 0) std::fill_n(a.values, n, kMissing);
    std::vector<short> exclude(static_cast<std::size_t>(n));
    for (short& flag : exclude) flag = static_cast<short>(random.below(3) - 1);
    const auto x = [&](int i, int j) { return a.vbget(i, j); };
    const auto y = [&](int i, int j) { return b.vbget(i, j); };
    const auto total = [](int count, auto term) {
      double sum = 0.0;
      for (int k = 1; k <= count; ++k) sum += term(k);
      return sum;
    };
    const auto square = [&](int i, int j) { return x(i, j) * x(i, j); };
    const auto row = [&](auto of) {
      return [&, of](int i, int) { return total(p, [&](int j) { return of(i, j); }); };
    };
    const auto column = [&](auto of) {
      return [&, of](int j, int) { return total(n, [&](int i) { return of(i, j); }); };
    };
    const double s = random.uniform(-3.0, 3.0), t = random.uniform(-3.0, 3.0);
    using C = matrix*&;
    const auto scaled = [&](int i, int j) { return s * x(i, j); };
    const auto scaledBack = [&](int i, int j) { return s * x(j, i); };
    const auto moved = [&](int i, int j) { return x(i, j) + s; };
    const auto added = [&](int i, int j) { return s * x(i, j) + t * y(i, j); };
    const auto multiplied = [&](int i, int j) { return x(i, j) * y(i, j); };
    const auto back = [&](int i, int j) { return x(j, i); };
    expect("ScalarsA", n, p, false, scaled, [&](C c) { M_ScalarsA(&a, n, p, s, c); });
    expect("ScalarsTrA", p, n, true, scaledBack, [&](C c) { M_ScalarsTrA(&a, n, p, s, c); });
    expect("APlusVal", n, p, true, moved, [&](C c) { M_APlusVal(&a, n, p, s, c); });
    expect("Sums1As2B", n, p, true, added, [&](C c) { M_Sums1As2B(&a, n, p, &b, s, t, c); });
    expect("ByElement", n, p, false, multiplied, [&](C c) { M_ProductByElement(&a, n, p, &b, c); });
    expect("Transpose", p, n, true, back, [&](C c) { M_Transpose(&a, n, p, c); });
    expect("SumByRows", n, 1, false, row(x), [&](C c) { M_SumByRows(&a, n, p, c); });
    expect("SumByCols", p, 1, false, column(x), [&](C c) { M_SumByCols(&a, n, p, c); });
    expect("SquaredRows", n, 1, false, row(square), [&](C c) { M_SquaredRows(&a, n, p, c); });
    expect("SquaredColumns", p, 1, false, column(square), [&](C c) { M_SquaredColumns(&a, n, p, c); });
    EXPECT_TRUE(bits::equal(M_Trace(&a, n), total(n, [&](int i) { return x(i, i); })));

    const auto noMarker = [&](int i, int j) { return x(i, j) != kMissing; };
    const auto extreme = [&](double sign, auto isUsed) {
      return [&, sign, isUsed](int j, int) {
        bool found = false;
        double best = kMissing;
        for (int i = 1; i <= n; ++i) {
          if (isUsed(i, j) && (!found || sign * x(i, j) > sign * best)) found = true, best = x(i, j);
        }
        return best;
      };
    };
    expect("Max", p, 1, false, extreme(1.0, noMarker), [&](C c) { M_Max(&a, n, p, c); });
    expect("Min", p, 1, false, extreme(-1.0, noMarker), [&](C c) { M_Min(&a, n, p, c); });
    for (const short option : std::initializer_list<short>{0, -1, 1, 2}) {
      const auto cells = [&](bool greatest) {
        return [&, greatest](int j, int) {
          double low = kMissing, high = kMissing;
          for (int i = 1; i <= n; ++i) {
            const bool present = !a.getMissing(i - 1, j - 1);
            if (option == 0 ? exclude[static_cast<std::size_t>(i) - 1] != 0 : option != -1 || !present)
              continue;
            if (x(i, j) < low || low == kMissing) low = x(i, j);
            if (x(i, j) > high) high = x(i, j);
          }
          return greatest ? high : low;
        };
      };
      matrix other(p, 1, 0.0);
      expect("least", p, 1, false, cells(false),
             [&](C c) { M_MinMax(&a, n, p, c, &other, exclude.data(), option); });
      expect("greatest", p, 1, false, cells(true),
             [&](C c) { M_MinMax(&a, n, p, &other, c, exclude.data(), option); });
    }
  }
}

TEST(Elementwise, WorksInPlaceOnCellsWithoutAFlag) {
  const double cells[] = {2.385, -4.5, 0.75, 3.25, -1.5, 6.5};
  matrix scaled(3, 2, cells, true, 0, 0), shifted(3, 2, cells, true, 0, 0), turned(3, 2, cells, true, 0, 0);
  scaled.setMissing(1, true), shifted.setMissing(4, true);
  matrix *s = &scaled, *t = &turned;
  M_ScalarsA2(s, 3, 2, -2.0);
  EXPECT_TRUE(holds(*s, 3, 2, {-4.77, -4.5, -1.5, -6.5, 3.0, -13.0}));
  M_Square(&shifted, 3, 2);  // of the first column nothing, of the second not the first cell
  EXPECT_TRUE(holds(shifted, 3, 2, {2.385, -4.5, 0.75, 3.25, -1.5, 42.25}));
  EXPECT_EQ(M_Transpose2(t, 3, 2), 0);
  ASSERT_EQ(t, &turned);
  EXPECT_TRUE(holds(turned, 2, 3, {2.385, 3.25, -4.5, -1.5, 0.75, 6.5}));
  matrix sums(3, 1, 9.25), squares(3, 1, 9.25);
  M_SumByRows(&turned, 3, 0, &sums), M_SquaredRows(&turned, 3, 0, &squares);
  EXPECT_TRUE(holds(sums, 3, 1, {9.25, 9.25, 9.25}));
  EXPECT_TRUE(holds(squares, 3, 1, {0.0, 0.0, 0.0}));
}
