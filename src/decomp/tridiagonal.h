// QL steps with implicit shifts on a symmetric tridiagonal table, see M_Eigen. Internal.
#pragma once

#include <cmath>

#include "numerics/scalar.h"

namespace kav::tridiagonal {

/// sqrt(a^2 + b^2) without overflow of a square.
inline double hypotenuse(double a, double b) {
  const double x = std::fabs(a), y = std::fabs(b);
  if (x > y) return x * scalar::sqr(1.0 + (y / x) * (y / x));
  return y == 0.0 ? 0.0 : y * scalar::sqr(1.0 + (x / y) * (x / y));
}

/// The first m from l on whose e(m) does not count beside its neighbours; the last row when there is none.
inline int unreducedTo(int l, int n, const double* d, const double* e) {
  int m = l;
  for (; m < n - 1; ++m) {
    const double neighbours = std::fabs(d[m]) + std::fabs(d[m + 1]);
    if (std::fabs(e[m]) + neighbours == neighbours) break;
  }
  return m;
}

/// One step on rows l .. m.
template <class Vectors>
void qlStep(int l, int m, double* d, double* e, Vectors& vectors) {
  double g = (d[l + 1] - d[l]) / (2.0 * e[l]);
  double r = hypotenuse(g, 1.0);
  g = d[m] - d[l] + e[l] / (g + scalar::FSign(r, g));
  double s = 1.0, c = 1.0, p = 0.0;
  for (int i = m - 1; i >= l; --i) {
    double f = s * e[i];
    const double b = c * e[i];
    r = hypotenuse(f, g);
    e[i + 1] = r;
    if (r == 0.0) {
      d[i + 1] -= p;
      e[m] = 0.0;
      return;
    }
    s = f / r;
    c = g / r;
    g = d[i + 1] - p;
    r = (d[i] - g) * s + 2.0 * c * b;
    p = s * r;
    d[i + 1] = g + p;
    g = c * r - b;
    vectors.rotate(i, c, s);
  }
  d[l] -= p;
  e[l] = g;
  e[m] = 0.0;
}

/// Makes d the eigenvalues.
///
/// @param e        e[k] stands beside d[k - 1] and d[k]; destroyed
/// @param vectors  rotate(i, c, s): columns i and i + 1 become c z(i) - s z(i+1) and s z(i) + c z(i+1)
/// @return 0, or -1 when a value needs too many steps
template <class Vectors>
int qlSteps(int n, double* d, double* e, Vectors& vectors) {
  // Two fewer than published; callers rely on it.
  constexpr int kMostSteps = 28;
  for (int i = 1; i < n; ++i) e[i - 1] = e[i];
  e[n - 1] = 0.0;
  for (int l = 0; l < n; ++l) {
    int steps = 0;
    for (int m = unreducedTo(l, n, d, e); m != l; m = unreducedTo(l, n, d, e)) {
      if (++steps > kMostSteps) return -1;
      qlStep(l, m, d, e, vectors);
    }
  }
  return 0;
}

}  // namespace kav::tridiagonal
