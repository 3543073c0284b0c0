#pragma once

#include <cmath>
#include <limits>
#include <vector>

namespace definitions {

/// How far two cells of a column are apart; NaN is as far from everything as a missing cell.
inline double difference(double x, double y, double range) {
  const double d = range > 0.0 ? (x - y) / range : x == y ? 0.0 : 1.0;
  return std::isnan(d) ? 1.0 : d;
}

/// From the least to the greatest value(row) of some rows; NaN for a missing one does not count.
template <class Value>
double range(const std::vector<int>& rows, Value value) {
  double least = std::numeric_limits<double>::infinity(), most = -least;
  for (const int row : rows) {
    const double x = value(row);
    if (x < least) least = x;
    if (x > most) most = x;
  }
  return least < most ? most - least : 0.0;
}

/// Every cell that isMissing(i, j) in n rows is taken, by give(i, donor, j), from the first of the nearest
/// donors that canGive(donor, j); all distances to their end, difference(i, donor, j) by column. Cells are
/// given at the end: what is filled teaches nothing.
template <class IsMissing, class CanGive, class Difference, class Give>
void fillFromNearest(int n, int columns, const std::vector<int>& donors, IsMissing isMissing, CanGive canGive,
                     Difference difference, Give give) {
  struct Gap {
    int row, column, donor;
    double distance;
  };
  std::vector<Gap> all;
  for (int i = 0; i < n; ++i) {
    const std::size_t first = all.size();
    for (int j = 0; j < columns; ++j) {
      if (isMissing(i, j)) all.push_back({i, j, -1, 0.0});
    }
    if (all.size() == first) continue;
    for (const int donor : donors) {
      double sum = 0.0;
      for (int j = 0; j < columns; ++j) {
        const double d = difference(i, donor, j);
        sum += d * d;
      }
      for (std::size_t k = first; k < all.size(); ++k) {
        Gap& gap = all[k];
        if ((gap.donor >= 0 && sum >= gap.distance) || !canGive(donor, gap.column)) continue;
        gap.donor = donor;
        gap.distance = sum;
      }
    }
  }
  for (const Gap& gap : all) {
    if (gap.donor >= 0) give(gap.row, gap.donor, gap.column);
  }
}

}  // namespace definitions
