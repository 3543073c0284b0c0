#include "kavoratb1c/algebra/elementwise.h"

#include "support/tables.h"

using namespace kav;

TEST(Elementwise, EqualsItsDefinitionBitForBit) {
  Random random(41);
  for (int round = 0; round < 60; ++round) {
    const int n = 1 + random.below(round % 8 == 0 ? 1300 : 40), p = 1 + random.below(30);
    SCOPED_TRACE(testing::Message() << n << ", " << p << ", round " << round);
    // Every second round has containers that are smaller or larger than the extents.
    const auto sized = [&](int size) { return size + (round % 2 == 0 ? 0 : random.below(7) - 3); };
    const auto owner = randomTable(random, sized(n), sized(p), round % 3 == 0 ? 10 : 200),
               other = randomTable(random, sized(n), sized(p), 200);
    matrix &a = *owner, &b = *other;
    if (round % 4 == 0 && a.pX > 0) std::fill_n(a.values, std::max(a.nX, 0), kMissing);
    const std::vector<short> exclude = randomFlags(random, n);
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
    const WorkerCheck expect = {n, p};
    const auto scaled = [&](int i, int j) { return s * x(i, j); };
    const auto scaledBack = [&](int i, int j) { return s * x(j, i); };
    const auto moved = [&](int i, int j) { return x(i, j) + s; };
    const auto added = [&](int i, int j) { return s * x(i, j) + t * y(i, j); };
    const auto multiplied = [&](int i, int j) { return x(i, j) * y(i, j); };
    const auto back = [&](int i, int j) { return x(j, i); };
    expect("ScalarsA", {kN, kP, kWritten}, scaled, [&](int i, int j, C c) { M_ScalarsA(&a, i, j, s, c); });
    expect("ScalarsTrA", {kP, kN}, scaledBack, [&](int i, int j, C c) { M_ScalarsTrA(&a, i, j, s, c); });
    expect("APlusVal", {kN, kP}, moved, [&](int i, int j, C c) { M_APlusVal(&a, i, j, s, c); });
    expect("Sums1As2B", {kN, kP}, added, [&](int i, int j, C c) { M_Sums1As2B(&a, i, j, &b, s, t, c); });
    expect("ByElement", {kN, kP, kWritten}, multiplied,
           [&](int i, int j, C c) { M_ProductByElement(&a, i, j, &b, c); });
    expect("Transpose", {kP, kN}, back, [&](int i, int j, C c) { M_Transpose(&a, i, j, c); });
    expect("SumByRows", {kN, kOne, kWritten}, row(x), [&](int i, int j, C c) { M_SumByRows(&a, i, j, c); });
    expect("SumByCols", {kP, kOne, kWritten}, column(x),
           [&](int i, int j, C c) { M_SumByCols(&a, i, j, c); });
    expect("SquaredRows", {kN, kOne, kAlwaysWritten}, row(square),
           [&](int i, int j, C c) { M_SquaredRows(&a, i, j, c); });
    expect("SquaredColumns", {kP, kOne, kAlwaysWritten}, column(square),
           [&](int i, int j, C c) { M_SquaredColumns(&a, i, j, c); });
    const auto none = [](int, int) { return 0.0; };
    WorkerCheck{n, 0}("SquaredRows", {kN, kOne, kAlwaysWritten}, none,
                      [&](int i, int, C c) { M_SquaredRows(&a, i, 0, c); });
    WorkerCheck{0, p}("SquaredColumns", {kP, kOne, kAlwaysWritten}, none,
                      [&](int, int j, C c) { M_SquaredColumns(&a, 0, j, c); });
    EXPECT_TRUE(bits::equal(M_Trace(&a, n), total(n, [&](int i) { return x(i, i); })));

    const auto noMarker = [&](int i, int j) { return x(i, j) != kMissing; };
    const auto extreme = [&](double sign, auto isUsed) {
      return [&, sign, isUsed](int j, int) {
        bool found = false;
        double best = kMissing;
        for (int i = 1; i <= n; ++i) {
          if (isUsed(i, j) && (!found || sign * x(i, j) > sign * best)) {
            found = true;
            best = x(i, j);
          }
        }
        return best;
      };
    };
    expect("Max", {kP, kOne, kWritten}, extreme(1.0, noMarker),
           [&](int i, int j, C c) { M_Max(&a, i, j, c); });
    expect("Min", {kP, kOne, kWritten}, extreme(-1.0, noMarker),
           [&](int i, int j, C c) { M_Min(&a, i, j, c); });
    for (const short option : {short{0}, short{-1}, short{1}, short{2}}) {
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
      matrix unused(p, 1, 0.0);
      expect("least", {kP, kOne, kWritten}, cells(false),
             [&](int i, int j, C c) { M_MinMax(&a, i, j, c, &unused, exclude.data(), option); });
      expect("greatest", {kP, kOne, kWritten}, cells(true),
             [&](int i, int j, C c) { M_MinMax(&a, i, j, &unused, c, exclude.data(), option); });
    }

    // In place where the container was built with as many cells.
    const auto expectInPlace = [&](int rows, int columns, auto cell, auto run) {
      expect.withoutCells({kNone, kNone, kWritten}, run);
      const auto held = copyOf(a);
      std::vector<double> expected = cellsOf(a);
      const bool fits = addressing::cellCount(a) >= rows * columns;
      if (fits) expected.resize(static_cast<std::size_t>(rows * columns));
      for (int k = 0; fits && k < rows * columns; ++k) {
        if (!a.missing[k]) expected[static_cast<std::size_t>(k)] = cell(k % rows + 1, k / rows + 1);
      }
      matrix* c = held.get();
      run(n, p, c);
      EXPECT_TRUE(holds(*held, fits ? rows : a.nX, fits ? columns : a.pX, expected));
    };
    expectInPlace(n, p, scaled, [&](int i, int j, C c) { M_ScalarsA2(c, i, j, s); });
    expectInPlace(p, n, back, [&](int i, int j, C c) { EXPECT_EQ(M_Transpose2(c, i, j), 0); });
    expect.withoutCells({kNone, kNone, kWritten}, [&](int i, int j, C c) { M_Square(c, i, j); });
    const auto squared = copyOf(a), expected = copyOf(a);
    M_Square(squared.get(), n, p);
    for (int r = 1; r <= n; ++r) {
      for (int c = 1, k = r + a.nX; c <= p; ++c, k += a.nX) {
        expected->setElement(k, expected->getElement(k) * expected->getElement(k));
      }
    }
    EXPECT_TRUE(bits::equal(cellsOf(*squared), cellsOf(*expected)));
  }
}
