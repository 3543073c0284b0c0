#pragma once

#include <cmath>
#include <vector>

#include "definitions/cells.h"

namespace definitions {

inline double hypotenuse(double a, double b) {
  const double x = std::max(std::fabs(a), std::fabs(b)), y = std::min(std::fabs(a), std::fabs(b));
  return x == 0.0 ? 0.0 : x * std::sqrt(1.0 + (y / x) * (y / x));
}

/// Householder's reduction of the lower triangle: z becomes the transformation, d the diagonal of the
/// tridiagonal table, e[1 ..] what stands beside it.
template <class Table>
void tridiagonalize(const Table& z, int n, double* d, double* e) {
  for (int i = n - 1; i > 0; --i) {
    double scale = 0.0, h = 0.0;
    for (int k = 0; k < i && i > 1; ++k) scale += std::fabs(z(i, k));
    d[i] = 0.0;
    e[i] = z(i, i - 1);
    if (scale == 0.0) continue;
    for (int k = 0; k < i; ++k) {
      z(i, k) /= scale;
      h += z(i, k) * z(i, k);
    }
    const double f = z(i, i - 1), g = f >= 0.0 ? -std::sqrt(h) : std::sqrt(h);
    e[i] = scale * g;
    h -= f * g;
    z(i, i - 1) = f - g;
    double product = 0.0;
    for (int j = 0; j < i; ++j) {
      z(j, i) = z(i, j) / h;
      double sum = 0.0;
      for (int k = 0; k <= j; ++k) sum += z(j, k) * z(i, k);
      for (int k = j + 1; k < i; ++k) sum += z(k, j) * z(i, k);
      e[j] = sum / h;
      product += e[j] * z(i, j);
    }
    const double half = product / (h + h);
    for (int j = 0; j < i; ++j) {
      e[j] -= half * z(i, j);
      for (int k = 0; k <= j; ++k) z(j, k) -= z(i, j) * e[k] + e[j] * z(i, k);
    }
    d[i] = h;
  }
  d[0] = 0.0;
  for (int i = 0; i < n; ++i) {
    for (int j = 0; j < i && d[i] != 0.0; ++j) {
      double sum = 0.0;
      for (int k = 0; k < i; ++k) sum += z(i, k) * z(k, j);
      for (int k = 0; k < i; ++k) z(k, j) -= sum * z(k, i);
    }
    d[i] = z(i, i);
    z(i, i) = 1.0;
    for (int j = 0; j < i; ++j) {
      z(i, j) = 0.0;
      z(j, i) = 0.0;
    }
  }
}

/// By QL steps: the symmetric table z becomes its vectors, d (n cells) has the values.
///
/// @return 0, or -1 where a value needs too many steps
template <class Table>
int eigenvalues(const Table& z, int n, double* d) {
  constexpr int kMostSteps = 28;
  std::vector<double> beside(static_cast<std::size_t>(n) + 2);
  tridiagonalize(z, n, d, beside.data());
  double* const e = beside.data() + 1;
  for (int l = 0; l < n; ++l) {
    for (int steps = 0;; ++steps) {
      int m = l;
      for (; m + 1 < n; ++m) {
        const double neighbours = std::fabs(d[m]) + std::fabs(d[m + 1]);
        if (std::fabs(e[m]) + neighbours == neighbours) break;
      }
      if (m == l) break;
      if (steps == kMostSteps) return -1;
      double g = (d[l + 1] - d[l]) / (2.0 * e[l]);
      g = d[m] - d[l] + e[l] / (g + std::copysign(hypotenuse(g, 1.0), g));
      double s = 1.0, c = 1.0, p = 0.0;
      int i = m - 1;
      for (; i >= l; --i) {
        const double f = s * e[i], b = c * e[i], r = hypotenuse(f, g);
        e[i + 1] = r;
        if (r == 0.0) break;
        s = f / r;
        c = g / r;
        g = d[i + 1] - p;
        const double t = (d[i] - g) * s + 2.0 * c * b;
        p = s * t;
        d[i + 1] = g + p;
        g = c * t - b;
        for (int k = 0; k < n; ++k) {
          const double x = z(k, i), y = z(k, i + 1);
          z(k, i + 1) = s * x + c * y;
          z(k, i) = c * x - s * y;
        }
      }
      d[std::max(i + 1, l)] -= p;
      if (i < l) e[l] = g;
      e[m] = 0.0;
    }
  }
  return 0;
}

}  // namespace definitions
