// Plane rotations of the columns of a table, kept and then applied to some rows after the other: what
// computes them does not look at the vectors. Internal.
#pragma once

#include <cstddef>
#include <numeric>
#include <vector>

#include "kernels/kernels.h"
#include "numerics/plain_elements.h"

namespace kav::rotations {

class Log {
 public:
  /// @param cells  rows x columns, kept up to date by flush() and finish() alone
  Log(const elements::Plain& cells, int rows, int columns);

  /// Columns x and y, 0-based, become c x + s y and c y - s x.
  void rotate(int x, int y, double c, double s) {
    if (runs_.empty() || !continues(runs_.back(), x, y)) {
      if (rotations_.size() >= kMost) flush();
      runs_.push_back({x, y - x, 0, nullptr});
    }
    ++runs_.back().count;
    rotations_.push_back(c);
    rotations_.push_back(s);
  }

  /// A column that no later rotation turns changes its sign, or its place with the next one, which is none
  /// either.
  void negate(int column) { negative_[static_cast<std::size_t>(column)] ^= 1; }
  void swapWithNext(int column);

  /// Applies what has been kept.
  void flush();

  /// The same, then signs and places.
  void finish();

 private:
  /// Numbers kept, so many that a table is seldom gone through and so few that they stay in a cache.
  static constexpr std::size_t kMost = 65536;

  static bool continues(const kernels::RotationRun& run, int x, int y) {
    return run.first + run.step * run.count == x && run.step == y - x;
  }

  elements::Plain cells_;
  int rows_, columns_;
  std::vector<kernels::RotationRun> runs_;
  std::vector<double> rotations_;
  std::vector<int> source_;     ///< of each column: where it stands in the table
  std::vector<char> negative_;  ///< of each place in the result
};

}  // namespace kav::rotations
