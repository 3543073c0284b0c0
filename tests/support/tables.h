// Tables, weights and flags for tests of workers; results by their definition.
#pragma once

#include <algorithm>
#include <limits>
#include <memory>
#include <utility>

#include "core/contents.h"
#include "support/random.h"

using namespace kav;

/// Cells of high entropy, among them everything that a macro array may hold, each kind once in oneIn cells.
inline std::unique_ptr<matrix> randomTable(Random& random, int rows, int columns, int oneIn) {
  auto m = std::make_unique<matrix>(rows, columns, 0.0);
  const double nan = std::numeric_limits<double>::quiet_NaN(), inf = std::numeric_limits<double>::infinity();
  const double unusual[] = {kMissing, nan, -0.0, 0.0, inf};
  for (std::int64_t k = 0; k < addressing::cellCount(*m); ++k) {
    const int kind = random.below(oneIn);
    m->values[k] = kind < 5 ? unusual[kind] : random.uniform(-9.0, 9.0);
    m->missing[k] = kind == 5;
  }
  return m;
}

/// Columns about means of their own: the second constant, the third so that correlations do not see it vary.
///
/// @param missing  1 flags some cells, of the fourth column half of them; 2 also has cells with the marker
inline void fillColumns(matrix& m, Random& random, int missing) {
  for (int j = 0; j < m.pX; ++j) {
    const double scale = j == 2 ? 1e-9 : j == 1 ? 0.0 : 3.1, mean = random.uniform(-1e3, 1e3);
    for (int i = 0; i < m.nX; ++i) {
      const int kind = missing == 0 ? 9 : random.below(j == 3 ? 2 : 8);
      m.setElement(i, j, kind == 1 && missing == 2 ? kMissing : mean + scale * random.uniform(-1.0, 1.0));
      m.setMissing(i, j, kind == 0);
    }
  }
}

/// All the same, any, some of them 0.0, all of them, or null.
inline std::unique_ptr<matrix> randomWeights(Random& random, int n) {
  const int kind = random.below(5);
  auto w = kind == 4 ? nullptr : std::make_unique<matrix>(n, 1, kind == 0 ? 0.137 : 0.0);
  for (int i = 0; i < n && (kind == 1 || kind == 2); ++i) {
    if (kind == 1 || random.below(3) > 0) w->setElement(i, random.uniform(0.2, 3.1));
  }
  return w;
}

/// 0, and now and then -1 or 1.
inline std::vector<short> randomFlags(Random& random, int count) {
  std::vector<short> flags(static_cast<std::size_t>(count) + 1);
  for (short& flag : flags) flag = static_cast<short>(random.below(4) == 0 ? random.below(3) - 1 : 0);
  return flags;
}

inline std::unique_ptr<matrix> copyOf(const matrix& m) {
  auto copy = std::make_unique<matrix>(m.nX, m.pX, m.values, true, 0, 0);
  std::copy_n(m.missing, addressing::cellCount(m), copy->missing);
  return copy;
}

/// Writes every cell of a block as it is defined, 1-based.
template <class Cell>
void byDefinition(matrix& c, int rows, int columns, Cell cell) {
  for (int i = 1; i <= rows; ++i) {
    for (int j = 1; j <= columns; ++j) c.vbset(i, j, cell(i, j));
  }
}

/// Checks workers on operands with extents n, p and q. A worker's name begins with the rows and columns of
/// its result, extents or a digit; then ' ' where it is prepared, '+' where it is the caller's, 'p' where
/// also something of p rows is prepared, '0' where it is the caller's and written even when there is nothing
/// to add.
struct WorkerCheck {
  /// Whether run(n, p, result) makes just the cells that are defined, and nothing of extents without cells.
  template <class Cell, class Run>
  void operator()(const char* name, Cell cell, Run run) const {
    inContainer(name, cell, run, false);
    if (name[2] == ' ') inContainer(name, cell, run, true);
    if (name[2] != '0') withoutCells(name, run);
  }

  /// Whether without a cell run makes a prepared result all the same, and leaves the caller's as it was.
  template <class Run>
  void withoutCells(const char* name, Run run, double filled = 0.0) const {
    const int most = std::numeric_limits<int>::max();
    for (const auto& [i, j] : {std::pair(0, 3), {3, 0}, {-2, 3}, {3, -2}, {most, 0}, {0, most}}) {
      const WorkerCheck own = {i, j, q};
      const int largest = std::max({own.extent(name[0]), own.extent(name[1]), own.extent(name[2])});
      if (largest == most && name[2] != '+') continue;  // would need the memory
      own.inContainer(
          name, [=](int, int) { return filled; }, run, name[2] == ' ');
    }
  }

  /// In a container of the result's shape, a cell flagged, a column wider where it is the caller's; or in one
  /// of another shape.
  template <class Cell, class Run>
  void inContainer(const char* name, Cell cell, Run run, bool reshaped) const {
    SCOPED_TRACE(testing::Message() << name << ", " << n << " x " << p);
    const bool prepared = name[2] == ' ', stays = !prepared && name[2] != '0' && (n < 1 || p < 1);
    const int rows = stays ? 5 : extent(name[0]), columns = stays ? 3 : extent(name[1]);
    matrix held(rows + reshaped, columns + !prepared, 4.75), expected(rows, held.pX, prepared ? 0.0 : 4.75);
    held.setMissing(rows / 2, columns / 2, true), expected.setMissing(rows / 2, columns / 2, !reshaped);
    if (!stays) byDefinition(expected, rows, columns, cell);
    matrix* c = &held;
    run(n, p, c);
    EXPECT_EQ(c != &held, reshaped);
    EXPECT_TRUE(holds(*c, rows, expected.pX, cellsOf(expected)));
    if (c != &held) delete c;
  }

  int extent(char of) const { return of == 'n' ? n : of == 'p' ? p : of == 'q' ? q : of - '0'; }

  int n, p, q;
};

/// The weighted one-pass update of two columns, or of one that is both, over the rows so far.
struct WeightedUpdate {
  WeightedUpdate() = default;

  /// Over the first n rows, as far as used(row) and of a weight other than 0.0; null weights are 1.0. All
  /// 0-based.
  template <class Used>
  WeightedUpdate(const matrix& table, int a, int b, int n, const matrix* weights, Used used) {
    for (int i = 0; i < n; ++i) {
      const double w = weights == nullptr ? 1.0 : weights->getElement(i);
      if (w != 0.0 && used(i)) add(table.getElement(i, a), table.getElement(i, b), w);
    }
  }

  void add(double a, double b, double w) {
    total += w, count += 1.0;
    const double dA = a - meanA, dB = b - meanB, factor = total == w ? 0.0 : w - w * w / total;
    squares += factor * (dA * dA);
    products += factor * dB * dA;
    meanA += w / total * dA;
    meanB += w / total * dB;
  }

  double divisor(short unbiased, short frequencies) const {
    return unbiased != kTrue ? total : frequencies == kTrue ? total - 1.0 : total - total / count;
  }

  double total = 0.0, count = 0.0, squares = 0.0, products = 0.0, meanA = 0.0, meanB = 0.0;
};

/// Whether run prepares a result with those cells, and no flag of its own.
template <class Cell, class Run>
void expectMakes(int rows, int columns, Cell cell, Run run) {
  for (const bool reshaped : {false, true}) {
    const auto inNewOne = [&](int, int, matrix*& c) {
      if (reshaped && rows % 2 == 0) c = nullptr;
      run(c);
    };
    WorkerCheck{rows, columns, 0}.inContainer("np ", cell, inNewOne, reshaped);
  }
  matrix whole(rows, columns, 4.75), expected(rows, columns, 0.0), *made = &whole;
  byDefinition(expected, rows, columns, cell);
  run(made);
  EXPECT_TRUE(made == &whole && holds(whole, rows, columns, cellsOf(expected)));
  EXPECT_EQ(flagsOf(whole), flagsOf(expected));
}
