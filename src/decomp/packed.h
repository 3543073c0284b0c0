// Symmetric tables in packed storage, the lower triangle row after row, and the sweep operator on them.
// Internal.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <new>

#include "core/addressing.h"
#include "numerics/thresholds.h"

namespace kav::packed {

/// Where cell (i, j) is, 0-based, either triangle.
inline std::int64_t position(int i, int j) {
  const std::int64_t row = std::max(i, j), column = std::min(i, j);
  return row * (row + 1) / 2 + column;
}

inline double& at(double* s, int i, int j) { return s[static_cast<std::ptrdiff_t>(position(i, j))]; }
inline double at(const double* s, int i, int j) { return s[static_cast<std::ptrdiff_t>(position(i, j))]; }

/// Cells of q variables. Throws std::bad_alloc where a container cannot have so many.
inline int cellsOf(int q) {
  const std::int64_t cells = std::int64_t{q} * (std::int64_t{q} + 1) / 2;
  if (cells > std::numeric_limits<int>::max()) throw std::bad_alloc();
  return static_cast<int>(cells);
}

/// The smallest tolerance that variable k, 0-based, and those already swept have with it, see OLSCheckIfIn.
double toleranceWith(const double* s, int p, int k, double tolerance);

/// Sweeps q variables on variable k, 0-based, see M_Sweep.
void sweep(double* s, int q, int k);

/// The same as it is defined, cell by cell.
///
/// @param s  s(position, 0) and s.set(position, 0, x)
template <class Cells>
void sweepByElement(const Cells& s, int q, int k) {
  const auto get = [&](int i, int j) { return s(static_cast<int>(position(i, j)), 0); };
  const auto set = [&](int i, int j, double x) { s.set(static_cast<int>(position(i, j)), 0, x); };
  const double d = get(k, k), sign = d < 0.0 ? -1.0 : 1.0;
  set(k, k, -1.0 / d);
  for (int i = 0; i < q; ++i) {
    if (i == k) continue;
    const double a = get(i, k);
    set(i, k, a / std::fabs(d));
    for (int j = 0; j <= i; ++j) {
      if (j == k) continue;
      const double x = get(i, j) - a * get(j, k) * sign;
      set(i, j, std::fabs(x) < kZero ? 0.0 : x);
    }
  }
}

}  // namespace kav::packed
