// Moments of several columns over the same rows. Internal.
//
// What a row counts beside the rows before it depends on the weights alone: it is computed once for all
// columns, which then go side by side, so that their chains of means overlap. Each column's operations are
// those of moments::Moments, in the same order.
#pragma once

#include <algorithm>
#include <vector>

#include "access/taking_part.h"
#include "kernels/kernels.h"
#include "numerics/moments.h"

namespace kav::shared_rows {

/// Rows looked at together.
inline constexpr int kBlock = 128;

/// The rows that take part, block by block, and what they count.
class RowBlocks {
 public:
  /// @param rowFlags  null excludes nothing
  /// @param weights   null stands for 1.0; a weight of exactly 0.0 leaves its row out
  RowBlocks(int n, const short* rowFlags, const matrix* weights)
      : n_(n), weights_(weights, n), takesPart_{usable::NotExcludedIfGiven(rowFlags), weights_} {}
  RowBlocks(const RowBlocks&) = delete;

  /// Goes to the next block; false when no row is left.
  bool next() {
    count_ = 0;
    for (; at_ < n_ && count_ < kBlock; ++at_) {
      if (!takesPart_(at_)) continue;
      const double w = weights_[at_];
      rows_[count_] = at_;
      rowWeights_[count_] = w;
      total_ += w;
      const moments::Share share(w, total_);
      ofMean_[count_] = share.ofMean;
      ofSquare_[count_] = share.ofSquare;
      ++count_;
    }
    used += count_;
    return count_ > 0;
  }

  /// Of the block: its rows, how many, and whether each follows the one before.
  const int* rows() const { return rows_; }
  const double* weights() const { return rowWeights_; }
  int count() const { return count_; }
  bool contiguous() const { return rows_[count_ - 1] - rows_[0] == count_ - 1; }
  const double* ofMean() const { return ofMean_; }
  const double* ofSquare() const { return ofSquare_; }

  /// Of all blocks so far: sum of the weights.
  double total() const { return total_; }

  int used = 0;  ///< rows of all blocks so far

 private:
  int n_;
  usable::RowWeights weights_;
  usable::TakesPart<usable::NotExcludedIfGiven> takesPart_;
  int at_ = 0;
  int count_ = 0;
  double total_ = 0.0;
  int rows_[kBlock];
  double rowWeights_[kBlock], ofMean_[kBlock], ofSquare_[kBlock];
};

/// Where the deviations of a block go, row after row; null: they are not wanted. See kernels::ColumnRows.
struct Deviations {
  double* deviations = nullptr;
  double* weighted = nullptr;
  std::ptrdiff_t stride = 0;
};

/// Means and sums of squares of p columns, block by block.
class Columns {
 public:
  explicit Columns(int p)
      : cells_(static_cast<std::size_t>(p)), means_(cells_.size()), squares_(cells_.size()) {}

  /// Adds a block.
  ///
  /// @param column  column(j) is the address of column j
  template <class Column>
  void add(const RowBlocks& rows, Column column, const Deviations& to) {
    const auto p = static_cast<std::ptrdiff_t>(cells_.size());
    if (!rows.contiguous()) gathered_.resize(cells_.size() * kBlock);
    for (std::ptrdiff_t j = 0; j < p; ++j) {
      const double* cells = column(static_cast<int>(j));
      cells_[static_cast<std::size_t>(j)] =
          rows.contiguous() ? cells + rows.rows()[0] : gathered(cells, rows, gathered_.data() + kBlock * j);
    }
    kernels::best().columnMoments({cells_.data(), p, rows.ofMean(), rows.ofSquare(), rows.count(),
                                   means_.data(), squares_.data(), to.deviations, to.weighted, to.stride});
  }

  double mean(int j) const { return means_[static_cast<std::size_t>(j)]; }
  double squares(int j) const { return squares_[static_cast<std::size_t>(j)]; }

 private:
  static const double* gathered(const double* cells, const RowBlocks& rows, double* to) {
    for (int r = 0; r < rows.count(); ++r) to[r] = cells[rows.rows()[r]];
    return to;
  }

  std::vector<const double*> cells_;
  std::vector<double> means_, squares_, gathered_;
};

}  // namespace kav::shared_rows
