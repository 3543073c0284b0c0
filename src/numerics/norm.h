// The Euclidean norm, scaled so that no square overflows. Internal.
#pragma once

#include <cmath>

#include "numerics/scalar.h"

namespace kav {

/// @param cell  cell(k) for k = 0 .. n-1
template <class Cell>
double scaledNorm(int n, Cell cell) {
  if (n < 1) return 0.0;
  if (n == 1) return std::fabs(cell(0));
  double scale = 0.0;
  double squares = 1.0;
  for (int k = 0; k < n; ++k) {
    const double size = std::fabs(cell(k));
    if (size == 0.0) continue;
    const bool larger = size > scale;
    const double ratio = larger ? scale / size : size / scale;
    squares = larger ? 1.0 + squares * (ratio * ratio) : squares + ratio * ratio;
    if (larger) scale = size;
  }
  return scale * scalar::sqr(squares);
}

}  // namespace kav
