// Tables, weights and flags for tests of workers; results by their definition.
#pragma once

#include <algorithm>
#include <limits>
#include <memory>
#include <utility>

#include "core/contents.h"
#include "definitions/covariance.h"
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

/// An extent of a check, or with its number one that is always the same.
enum Extent { kNone = 0, kOne = 1, kTwo = 2, kN = -1, kP = -2, kQ = -3 };

enum Kind {
  kRefilled,      ///< brought to its shape and filled anew
  kWritten,       ///< the caller's, in which cells are written where the extents have any
  kAlwaysWritten  ///< the caller's, written even when there is nothing to add
};

/// What a worker makes.
struct Result {
  Extent rows, columns;
  Kind kind = kRefilled;
  Extent alsoRefilled = kNone;  ///< rows of another result that is refilled
};

/// Checks workers on operands with extents n, p and q.
struct WorkerCheck {
  /// Whether run(n, p, result) makes just the cells that are defined, and nothing of extents without cells.
  template <class Cell, class Run>
  void operator()(const char* name, Result made, Cell cell, Run run) const {
    SCOPED_TRACE(name);
    inContainer(made, cell, run, false);
    if (made.kind == kRefilled) inContainer(made, cell, run, true);
    if (made.kind != kAlwaysWritten) withoutCells(made, run);
  }

  /// Whether without a cell run makes a refilled result all the same, and leaves the caller's as it was.
  template <class Run>
  void withoutCells(Result made, Run run, double filled = 0.0) const {
    const int most = std::numeric_limits<int>::max();
    const auto cell = [filled](int, int) { return filled; };
    const bool refills = made.kind == kRefilled || made.alsoRefilled != kNone;
    for (const auto& [i, j] : {std::pair(0, 3), {3, 0}, {-2, 3}, {3, -2}, {most, 0}, {0, most}}) {
      const WorkerCheck own = {i, j, q};
      const int rows[] = {own.size(made.rows), own.size(made.columns), own.size(made.alsoRefilled)};
      if (refills && *std::max_element(rows, rows + 3) == most) continue;  // would need the memory
      own.inContainer(made, cell, run, made.kind == kRefilled);
    }
  }

  /// In a container of the result's shape, a cell flagged, a column wider where it is the caller's; or in one
  /// of another shape.
  template <class Cell, class Run>
  void inContainer(Result made, Cell cell, Run run, bool reshaped) const {
    SCOPED_TRACE(testing::Message() << n << " x " << p);
    const bool refilled = made.kind == kRefilled;
    const bool stays = made.kind == kWritten && (n < 1 || p < 1);
    const int rows = stays ? 5 : size(made.rows), columns = stays ? 3 : size(made.columns);
    matrix held(rows + reshaped, columns + !refilled, 4.75), expected(rows, held.pX, refilled ? 0.0 : 4.75);
    held.setMissing(rows / 2, columns / 2, true);
    expected.setMissing(rows / 2, columns / 2, !reshaped);
    if (!stays) byDefinition(expected, rows, columns, cell);
    matrix* c = &held;
    run(n, p, c);
    const std::unique_ptr<matrix> own(c == &held ? nullptr : c);
    EXPECT_EQ(own != nullptr, reshaped);
    EXPECT_TRUE(holds(*c, rows, expected.pX, cellsOf(expected)));
  }

  int size(Extent of) const { return of == kN ? n : of == kP ? p : of == kQ ? q : int{of}; }

  int n, p, q = 0;
};

/// Whether run refills a result with those cells, and no flag of its own.
template <class Cell, class Run>
void expectMakes(int rows, int columns, Cell cell, Run run) {
  for (const bool reshaped : {false, true}) {
    const auto inNewOne = [&](int, int, matrix*& c) {
      if (reshaped && rows % 2 == 0) c = nullptr;
      run(c);
    };
    WorkerCheck{rows, columns}.inContainer({kN, kP}, cell, inNewOne, reshaped);
  }
  matrix whole(rows, columns, 4.75), expected(rows, columns, 0.0), *made = &whole;
  byDefinition(expected, rows, columns, cell);
  run(made);
  EXPECT_TRUE(made == &whole && holds(whole, rows, columns, cellsOf(expected)));
  EXPECT_EQ(flagsOf(whole), flagsOf(expected));
}
