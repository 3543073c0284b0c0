#include "kavoratb1c/missing/nearest_neighbours.h"

#include <cmath>

#include "definitions/nearest_neighbours.h"
#include "support/tables.h"

using namespace kav;

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

/// Rows as three tables: numbers with markers, numbers with flags, labels by their numbers.
struct Tables {
  Tables(const matrix& rows, int p1, int p2)
      : first(rows.nX, p1, rows.values, true, 0, 0),
        second(rows.nX, p2, rows.values + rows.nX * p1, false, 0, 0),
        labels(rows.nX, rows.pX - p1 - p2) {
    const double* codes = rows.values + rows.nX * (p1 + p2);
    for (int k = 0; k < labels.nX * labels.pX; ++k) {
      if (codes[k] != kMissing) labels.cells[k] = std::u16string(20, u"cba"[int(codes[k])]);
    }
  }

  void expectEqual(const Tables& e) const {
    EXPECT_TRUE(bits::equal(cellsOf(first), cellsOf(e.first)) &&
                bits::equal(cellsOf(second), cellsOf(e.second)));
    EXPECT_EQ(flagsOf(first) + flagsOf(second), flagsOf(e.first) + flagsOf(e.second));
    for (int k = 0; k < labels.nX * labels.pX; ++k) EXPECT_EQ(labels.cells[k], e.labels.cells[k]) << k;
  }

  matrix first, second;
  Smatrix labels;
};

/// Columns of numbers, some constant or without a cell, then labels; some rows equal or without a cell.
std::unique_ptr<matrix> randomRows(Random& random, int n, int p1, int p, int labels) {
  auto rows = std::make_unique<matrix>(n, p + labels, 0.0);
  const int missing = 10 * random.below(7), integers = random.below(2), unusual = 30 << 20 * random.below(2);
  const double others[] = {kInfinity, -kInfinity, std::nan("")};
  std::vector<int> kinds(p + labels);
  for (int& kind : kinds) kind = random.below(9);
  for (int i = 0; i < n; ++i) {
    const int kind = random.below(12), other = random.below(i + 1);
    for (int j = 0; j < p + labels; ++j) {
      double x = j >= p ? random.below(3) : integers ? random.below(5) : random.uniform(-9.0, 9.0);
      if (j < p && kinds[j] == 1) x = 4.75;
      if (j < p1 && random.below(unusual) == 0) x = others[random.below(3)];
      if (kind == 0 || kinds[j] == 2 || random.below(100) < missing) x = kMissing;
      rows->setElement(i, j, kind == 1 || kind == 2 ? rows->getElement(other, j) : x);
    }
  }
  return rows;
}

/// Fills the first n rows from the first m others. NaN cannot be given.
std::unique_ptr<matrix> byDefinition(const matrix& rows, int n, int p, const matrix& learned, int m,
                                     const short* flags, const matrix* w) {
  const auto given = [&](int k, int j) {
    const double y = learned.values[k + learned.nX * j];
    return y == kMissing ? std::nan("") : y;
  };
  auto filled = copyOf(rows);
  std::vector<int> donors;
  for (int k = 0; k < m; ++k) {
    if (!(flags && flags[k]) && (!w || w->values[k] > 0.0)) donors.push_back(k);
  }
  std::vector<double> ranges;
  for (int j = 0; j < rows.pX; ++j) {
    ranges.push_back(j < p ? definitions::range(donors, [&](int k) { return given(k, j); }) : 0.0);
  }
  definitions::fillFromNearest(
      n, rows.pX, donors, [&](int i, int j) { return rows.values[i + rows.nX * j] == kMissing; },
      [&](int k, int j) { return !std::isnan(given(k, j)); },
      [&](int i, int k, int j) {
        const double x = rows.values[i + rows.nX * j];
        return definitions::difference(x == kMissing ? std::nan("") : x, given(k, j), ranges[j]);
      },
      [&](int i, int k, int j) { filled->setElement(i, j, given(k, j)); });
  return filled;
}

}  // namespace

// Donors fewer than a group of lanes, just as many as stay in the cache, one more, none.
TEST(NearestNeighbours, EqualThePlainSearchBitForBit) {
  const int sizes[] = {1, 2, 7, 17, 40, 255, 256, 257}, few[] = {0, 1, 3, 16, 40, 256, 257};
  const double weights[] = {0.0, -1.0, std::nan(""), 0.5, 1.0, 2.0, kInfinity};
  Random random(941);
  for (int round = 0; round < 120; ++round) {
    const int p1 = random.below(4), p2 = random.below(4), p3 = random.below(4), p = p1 + p2;
    const int n = round % 40 == 0 ? 600 : sizes[random.below(8)], m = few[random.below(7)];
    SCOPED_TRACE(testing::Message() << round << ": " << n << " x " << p1 << ", " << p2 << ", " << p3);
    // One row more than the tables have.
    const auto rows = randomRows(random, n + 1, p1, p, p3), learned = randomRows(random, m + 1, p1, p, p3);
    const std::vector<short> some = randomFlags(random, 600);
    matrix any(600, 1, 1.0);
    for (int i = 0; i < 600; ++i) any.setElement(i, weights[random.below(7)]);
    const short* flags = round % 3 == 0 ? some.data() : nullptr;
    const matrix* w = round % 3 == 1 ? &any : nullptr;
    Tables own(*rows, p1, p2), to(*rows, p1, p2), from(*learned, p1, p2);
    matrix *x = p1 ? &own.first : nullptr, *y = p2 ? &own.second : nullptr;
    EstimateRowsWithMissingNN(x, n, p1, flags, y, p2, p3 ? &own.labels : nullptr, p3, w);
    EstimateRowsWithMissingNNPred(&from.first, m, &to.first, n, p1, flags, &from.second, &to.second, p2,
                                  &from.labels, &to.labels, p3, w);
    own.expectEqual({*byDefinition(*rows, n, p, *rows, n, flags, w), p1, p2});
    to.expectEqual({*byDefinition(*rows, n, p, *learned, m, flags, w), p1, p2});
  }
}

// Ranges 4 and 20. d^2 of the second row: 1.0625, 2.5625, 2.0625; of the fourth: 2.25, 2.0625, 1.5. Without
// the first row the ranges are 3 and 10. Of the second: 3, 2 1/9; of the fourth: 2 1/9, 2 4/9.
TEST(NearestNeighbours, ByHand) {
  const double cells[] = {1, 2, 5, 3, 10, kMissing, 20, 30, 0, 0, 1, kMissing},
               weights[] = {0.0, 1.0, 0.5, 2.0};
  const matrix rows(4, 3, cells, true, 0, 0), w(4, 1, weights, true, 0, 0);
  for (const bool weighted : {false, true}) {
    const auto filled = copyOf(rows);
    filled->setElement(1, 1, weighted ? 30.0 : 10.0);
    filled->setElement(3, 2, weighted ? 0.0 : 1.0);
    Tables t(rows, 1, 1);
    EstimateRowsWithMissingNN(&t.first, 4, 1, nullptr, &t.second, 1, &t.labels, 1, weighted ? &w : nullptr);
    t.expectEqual({*filled, 1, 1});
  }
}
