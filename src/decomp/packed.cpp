#include "decomp/packed.h"

#include <algorithm>
#include <cmath>

#include "kernels/kernels.h"
#include "numerics/scratch.h"

namespace kav::packed {

double toleranceWith(const double* s, int p, int k, double tolerance) {
  const double d = at(s, k, k);
  if (!(d > 0.0) || std::fabs(d) < tolerance) return d;
  double least = d;
  for (int j = 0; j < p; ++j) {
    const double own = at(s, j, j);
    if (j == k || !(own < 0.0)) continue;
    const double shared = at(s, j, k);
    least = std::min(least, 1.0 / (std::fabs(own) + shared * shared / d));
  }
  return least;
}

void sweep(double* s, int q, int k) {
  double& pivot = at(s, k, k);
  const double d = pivot, size = std::fabs(d), sign = d < 0.0 ? -1.0 : 1.0;
  Scratch<double> column(static_cast<std::size_t>(q)), divided(column.size());
  for (int i = 0; i < q; ++i) {
    double& cell = at(s, i, k);
    column[i] = cell;
    if (i != k) cell /= size;
    divided[i] = cell * sign;
  }
  kernels::best().sweep({s, q, k, column.data(), divided.data(), kZero});
  pivot = -1.0 / d;
}

}  // namespace kav::packed
