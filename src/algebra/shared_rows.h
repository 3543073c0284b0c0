// Moments of several columns over the same rows. Internal.
//
// What a row counts beside the rows before it depends on the weights alone: it is computed once for all
// columns, which then go side by side, two in a vector, so that their chains of means overlap. Each column's
// operations are those of moments::Moments, in the same order.
#pragma once

#include <emmintrin.h>

#include <algorithm>
#include <vector>

#include "core/block.h"
#include "core/moments.h"
#include "stats/usable.h"

namespace shared_rows {

/// Rows looked at together.
inline constexpr int kBlock = 256;

/// The rows that take part, block by block, and what they count.
class RowBlocks {
 public:
  /// @param rowFlags  null excludes nothing
  /// @param weights   null stands for 1.0; a weight of exactly 0.0 leaves its row out
  RowBlocks(int n, const short* rowFlags, const matrix* weights)
      : n_(n), used_(rowFlags), unweighted_(weights == nullptr), weights_(weights, unweighted_ ? 0 : n) {}

  /// Goes to the next block; false when no row is left.
  bool next() {
    count_ = 0;
    for (; at_ < n_ && count_ < kBlock; ++at_) {
      const double w = unweighted_ ? 1.0 : weights_[at_];
      if (!used_(at_) || w == 0.0) continue;
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
  usable::NotExcludedIfGiven used_;
  bool unweighted_;
  block::Values weights_;
  int at_ = 0;
  int count_ = 0;
  double total_ = 0.0;
  int rows_[kBlock];
  double rowWeights_[kBlock], ofMean_[kBlock], ofSquare_[kBlock];
};

/// Two columns' means and sums of squares, one in each lane.
struct Pair {
  __m128d mean = _mm_setzero_pd();
  __m128d squares = _mm_setzero_pd();

  /// One row: x in both columns. Returns the deviations from the means before.
  __m128d add(__m128d x, __m128d ofMean, __m128d ofSquare) {
    const __m128d d = _mm_sub_pd(x, mean);
    squares = _mm_add_pd(squares, _mm_mul_pd(ofSquare, _mm_mul_pd(d, d)));
    mean = _mm_add_pd(mean, _mm_mul_pd(ofMean, d));
    return d;
  }
};

/// Where the deviations of a block go: those of column j to deviations + kBlock j, times what squares count
/// to weighted + kBlock j. Null: they are not wanted.
struct Deviations {
  double* deviations = nullptr;
  double* weighted = nullptr;
};

/// @param x  2 pairs columns of a block, contiguous each
template <int pairs, bool keep>
void addBlock(const double* const* x, const RowBlocks& rows, Pair* to, const Deviations& deviations) {
  Pair running[pairs];
  std::copy_n(to, pairs, running);
  for (int r = 0; r < rows.count(); ++r) {
    const __m128d ofMean = _mm_set1_pd(rows.ofMean()[r]), ofSquare = _mm_set1_pd(rows.ofSquare()[r]);
    for (std::ptrdiff_t k = 0; k < pairs; ++k) {
      const __m128d cells = _mm_loadh_pd(_mm_load_sd(x[2 * k] + r), x[2 * k + 1] + r);
      const __m128d d = running[k].add(cells, ofMean, ofSquare);
      if constexpr (keep) {
        double* deviation = deviations.deviations + 2 * k * kBlock + r;
        double* weighted = deviations.weighted + 2 * k * kBlock + r;
        const __m128d e = _mm_mul_pd(ofSquare, d);
        _mm_storel_pd(deviation, d);
        _mm_storeh_pd(deviation + kBlock, d);
        _mm_storel_pd(weighted, e);
        _mm_storeh_pd(weighted + kBlock, e);
      }
    }
  }
  std::copy_n(running, pairs, to);
}

/// Means and sums of squares of p columns, block by block.
class Columns {
 public:
  explicit Columns(int p) : p_(p), pairs_((static_cast<std::size_t>(p) + 1) / 2) {}

  /// Adds a block.
  ///
  /// @param column      column(j) is the address of column j
  /// @param deviations  room for p rounded up to an even number of columns, or null
  template <class Column>
  void add(const RowBlocks& rows, Column column, const Deviations& deviations) {
    int j = 0;
    for (; p_ - j >= 8; j += 8) add<4>(rows, column, j, deviations);
    for (; p_ - j >= 4; j += 4) add<2>(rows, column, j, deviations);
    for (; j < p_; j += 2) add<1>(rows, column, j, deviations);
  }

  double mean(int j) const { return lane(pairs_[static_cast<std::size_t>(j / 2)].mean, j % 2); }
  double squares(int j) const { return lane(pairs_[static_cast<std::size_t>(j / 2)].squares, j % 2); }

 private:
  template <int pairs, class Column>
  void add(const RowBlocks& rows, Column column, int j, const Deviations& deviations) {
    const double* x[2 * pairs];
    for (int c = 0; c < 2 * pairs; ++c) {
      // Beside an odd last column that one goes along once more.
      const double* cells = column(std::min(j + c, p_ - 1));
      x[c] = rows.contiguous() ? cells + rows.rows()[0]
                               : gathered(cells, rows, gathered_ + std::ptrdiff_t{c} * kBlock);
    }
    Pair* to = pairs_.data() + j / 2;
    if (deviations.deviations == nullptr) {
      addBlock<pairs, false>(x, rows, to, {});
    } else {
      const std::ptrdiff_t at = std::ptrdiff_t{j} * kBlock;
      addBlock<pairs, true>(x, rows, to, {deviations.deviations + at, deviations.weighted + at});
    }
  }

  static double lane(__m128d x, int which) { return _mm_cvtsd_f64(which == 0 ? x : _mm_unpackhi_pd(x, x)); }

  static const double* gathered(const double* cells, const RowBlocks& rows, double* to) {
    for (int r = 0; r < rows.count(); ++r) to[r] = cells[rows.rows()[r]];
    return to;
  }

  int p_;
  std::vector<Pair> pairs_;
  double gathered_[8 * kBlock];
};

}  // namespace shared_rows
