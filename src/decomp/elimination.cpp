// Gauss-Jordan elimination and the sweep operator.

#include "kavoratb1c/decomp/elimination.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

#include "access/block.h"
#include "access/checked_elements.h"
#include "decomp/packed.h"
#include "kernels/kernels.h"
#include "numerics/plain_elements.h"
#include "numerics/scratch.h"

using namespace kav;

namespace {

constexpr int kSingular = -2;

/// Which rows and columns have been pivots, and in what order.
struct Pivots {
  explicit Pivots(int n) : uses(static_cast<std::size_t>(n)), rows(uses.size()), columns(uses.size()) {}

  // A row may be taken again whose column was taken twice, a column never: a column taken twice is not an
  // error of its own.
  bool rowIsFree(int i) const { return uses[static_cast<std::size_t>(i)] != 1; }
  bool columnIsFree(int j) const { return uses[static_cast<std::size_t>(j)] == 0; }

  void take(int pass, int row, int column) {
    ++uses[static_cast<std::size_t>(column)];
    rows[static_cast<std::size_t>(pass)] = row;
    columns[static_cast<std::size_t>(pass)] = column;
  }

  std::vector<int> uses, rows, columns;
};

struct Pivot {
  int row, column;
};

template <class Cells>
void swapRows(const Cells& a, int columns, int i, int k) {
  for (int j = 0; j < columns && i != k; ++j) {
    const double cell = a(i, j);
    a.set(i, j, a(k, j));
    a.set(k, j, cell);
  }
}

/// Columns change places back, last pass first.
template <class Cells>
void unscramble(const Cells& a, int n, const Pivots& pivots) {
  for (int pass = n - 1; pass >= 0; --pass) {
    const int j = pivots.rows[static_cast<std::size_t>(pass)],
              k = pivots.columns[static_cast<std::size_t>(pass)];
    for (int i = 0; i < n && j != k; ++i) {
      const double cell = a(i, j);
      a.set(i, j, a(i, k));
      a.set(i, k, cell);
    }
  }
}

/// As it is defined.
class ByElement {
 public:
  ByElement(matrix* a, int n, int m, matrix* b) : a_(a), b_(b), n_(n), m_(m), pivots_(n) {}

  int solve() {
    for (int pass = 0; pass < n_; ++pass) {
      const Pivot pivot = find(pass);
      pivots_.take(pass, pivot.row, pivot.column);
      swapRows(a_, n_, pivot.row, pivot.column);
      swapRows(b_, m_, pivot.row, pivot.column);
      if (a_(pivot.column, pivot.column) == 0.0) return kSingular;
      eliminate(pivot.column);
    }
    unscramble(a_, n_, pivots_);
    return 0;
  }

 private:
  /// The diagonal where NaN leaves no candidate.
  Pivot find(int pass) const {
    Pivot pivot = {pass, pass};
    double big = 0.0;
    for (int i = 0; i < n_; ++i) {
      for (int j = 0; j < n_ && pivots_.rowIsFree(i); ++j) {
        if (!pivots_.columnIsFree(j) || !(std::fabs(a_(i, j)) >= big)) continue;
        big = std::fabs(a_(i, j));
        pivot = {i, j};
      }
    }
    return pivot;
  }

  void eliminate(int c) const {
    const double reciprocal = 1.0 / a_(c, c);
    a_.set(c, c, 1.0);
    for (int j = 0; j < n_; ++j) a_.set(c, j, a_(c, j) * reciprocal);
    for (int j = 0; j < m_; ++j) b_.set(c, j, b_(c, j) * reciprocal);
    for (int i = 0; i < n_; ++i) {
      if (i == c) continue;
      const double factor = a_(i, c);
      a_.set(i, c, 0.0);
      for (int j = 0; j < n_; ++j) a_.set(i, j, a_(i, j) - a_(c, j) * factor);
      for (int j = 0; j < m_; ++j) b_.set(i, j, b_(i, j) - b_(c, j) * factor);
    }
  }

  elements::Checked a_, b_;
  int n_, m_;
  Pivots pivots_;
};

/// The same on plain memory: while a column takes off its multiples its largest cell is found, so that the
/// next pivot is looked for only in the columns that have it.
class ByColumns {
 public:
  ByColumns(const elements::Plain& a, int n, int m, const elements::Plain& b)
      : a_(a),
        b_(b),
        n_(n),
        m_(m),
        pivots_(n),
        counts_(pivots_.uses.size(), kCounts),
        factors_(pivots_.uses.size()),
        row_(static_cast<std::size_t>(std::max(n, m))),
        largest_(row_.size()) {}

  /// @return kSingular, 0, or 1 when NaN leaves no pivot: the tables are of no use then
  int solve() {
    measure();
    for (int pass = 0; pass < n_; ++pass) {
      const Pivot pivot = find();
      if (pivot.row < 0) return 1;
      pivots_.take(pass, pivot.row, pivot.column);
      counts_[static_cast<std::size_t>(pivot.column)] = 0;
      swapRows(a_, n_, pivot.row, pivot.column);
      swapRows(b_, m_, pivot.row, pivot.column);
      if (a_(pivot.column, pivot.column) == 0.0) return kSingular;
      eliminate(pivot.column);
    }
    unscramble(a_, n_, pivots_);
    return 0;
  }

 private:
  /// Of a cell in a row that is free its size is looked at, all bits but the sign; of others nothing.
  static constexpr std::uint64_t kCounts = ~(std::uint64_t{1} << 63);

  /// The last one, row by row, among the largest.
  Pivot find() const {
    double big = -1.0;
    for (int j = 0; j < n_; ++j) {
      if (pivots_.columnIsFree(j)) big = std::max(big, largest_[static_cast<std::size_t>(j)]);
    }
    Pivot pivot = {-1, -1};
    for (int j = 0; j < n_; ++j) {
      if (!pivots_.columnIsFree(j) || largest_[static_cast<std::size_t>(j)] != big) continue;
      const double* column = a_.column(j);
      for (int i = n_ - 1; i >= std::max(pivot.row, 0); --i) {
        if (!pivots_.rowIsFree(i) || std::fabs(column[i]) != big) continue;
        pivot = {i, j};
        break;
      }
    }
    return pivot;
  }

  void eliminate(int c) {
    const double reciprocal = 1.0 / a_(c, c);
    a_.set(c, c, 1.0);
    std::copy_n(a_.column(c), n_, factors_.data());
    std::fill_n(a_.column(c), n_, 0.0);
    a_.set(c, c, 1.0);
    factors_[static_cast<std::size_t>(c)] = 0.0;
    takeOff(b_, m_, c, reciprocal);
    takeOff(a_, n_, c, reciprocal);
  }

  /// Row c times the reciprocal, then its multiples off all other rows.
  void takeOff(const elements::Plain& cells, int columns, int c, double reciprocal) {
    for (int j = 0; j < columns; ++j) row_[static_cast<std::size_t>(j)] = cells(c, j) * reciprocal;
    kernels::best().eliminate({cells.column(0), cells.leadingDimension(), n_, columns, factors_.data(),
                               row_.data(), counts_.data(), largest_.data()});
    for (int j = 0; j < columns; ++j) cells.set(c, j, row_[static_cast<std::size_t>(j)]);
  }

  /// The largest cells before the first pass.
  void measure() {
    for (int j = 0; j < n_; ++j) {
      double& most = largest_[static_cast<std::size_t>(j)];
      for (int i = 0; i < n_; ++i) most = std::max(most, std::fabs(a_(i, j)));
    }
  }

  elements::Plain a_, b_;
  int n_, m_;
  Pivots pivots_;
  std::vector<std::uint64_t> counts_;
  std::vector<double> factors_, row_, largest_;
};

/// A block's cells in memory of their own, and back.
class Copy {
 public:
  Copy(matrix* m, int n, int p) : m_(m), n_(n), p_(p), cells_(addressing::elementsInMemory<double>(n, p)) {
    block::copyTo(block::Values(m, n, p), n, p, cells_.data());
  }

  elements::Plain cells() { return {cells_.data(), n_}; }

  void store() {
    block::Target target(m_, n_, p_);
    for (int j = 0; j < p_; ++j) std::copy_n(cells().column(j), n_, target.column(j));
    target.store();
  }

 private:
  matrix* m_;
  int n_, p_;
  std::vector<double> cells_;
};

}  // namespace

int M_Gauss(matrix* a, int n, int m, matrix* b) {
  if (n < 1) return 0;
  const int sides = std::max(m, 0);
  if (block::isPlain(a, n, n) && (sides == 0 || block::isPlain(b, n, sides))) {
    Copy left(a, n, n), right(b, n, sides);
    const int status = ByColumns(left.cells(), n, sides, right.cells()).solve();
    if (status <= 0) {
      left.store();
      right.store();
      return status;
    }
  }
  return ByElement(a, n, sides, b).solve();
}

int M_Sweep(matrix* s, int q, int k) {
  if (q < 1 || k < 1 || k > q) return 0;
  const int cells = packed::cellsOf(q);
  if (block::isPlain(s, cells, 1)) {
    packed::sweep(s->values, q, k - 1);
    s->descValid = 0;
    return 0;
  }
  packed::sweepByElement(elements::Checked(s), q, k - 1);
  return 0;
}
