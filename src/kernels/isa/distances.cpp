// Distances of one row to several others side by side, a lane each. Compiled once for each instruction set,
// as product.cpp is.

#include "kernels/isa/functions.h"

namespace kav::kernels::KAV_ISA {

namespace {

/// x where the mask is set, lane by lane.
inline Vector choose(Bits mask, Vector x, Vector otherwise) {
  return reinterpret_cast<Vector>((mask & reinterpret_cast<Bits>(x)) |
                                  (~mask & reinterpret_cast<Bits>(otherwise)));
}

inline bool anySet(Bits mask) {
  long long any = 0;
  for (Index lane = 0; lane < kLanes; ++lane) any |= mask[lane];
  return any != 0;
}

/// Columns between two looks at whether a distance can still win.
constexpr Index kColumnsAtOnce = 4;

}  // namespace

bool distances(const Distances& d) {
  Vector sums[kDistanceVectors];
  for (Index v = 0; v < kDistanceVectors; ++v) sums[v] = spread(0.0);
  const Vector one = spread(1.0), bound = spread(d.bound);
  for (Index j = 0; j < d.columns; ++j) {
    const Vector x = spread(d.row[j]), range = spread(d.ranges[j]);
    const double* others = d.rows + d.stride * j;
    for (Index v = 0; v < kDistanceVectors; ++v) {
      const Vector y = load(others + v * kLanes);
      if (d.ranges[j] > 0.0) {
        const Vector difference = (x - y) / range;
        const Vector square = difference * difference;
        sums[v] += choose(square == square, square, one);
      } else {
        sums[v] += choose(x == y, spread(0.0), one);
      }
    }
    if (j % kColumnsAtOnce != kColumnsAtOnce - 1 && j != d.columns - 1) continue;
    Bits canWin = ~(sums[0] >= bound);
    for (Index v = 1; v < kDistanceVectors; ++v) canWin |= ~(sums[v] >= bound);
    if (!anySet(canWin)) return false;
  }
  for (Index v = 0; v < kDistanceVectors; ++v) store(d.squared + v * kLanes, sums[v]);
  return true;
}

}  // namespace kav::kernels::KAV_ISA
