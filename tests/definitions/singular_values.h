#pragma once

#include <cmath>
#include <limits>
#include <utility>
#include <vector>

#include "definitions/cells.h"

namespace definitions {

/// The Euclidean norm of cell(0 .. n - 1), scaled by the largest one so far.
template <class Cell>
double norm(int n, Cell cell) {
  double largest = 0.0, squares = 1.0;
  for (int k = 0; k < n; ++k) {
    const double size = std::fabs(cell(k));
    if (size == 0.0) continue;
    const double ratio = size > largest ? largest / size : size / largest;
    squares = size > largest ? 1.0 + squares * (ratio * ratio) : squares + ratio * ratio;
    if (size > largest) largest = size;
  }
  return n == 1 ? std::fabs(cell(0)) : largest * std::sqrt(squares);
}

/// Takes (a, b) to (r, 0); a becomes r.
struct Rotation {
  Rotation(double& a, double b) {
    const double scale = std::fabs(a) + std::fabs(b), x = a / scale, y = b / scale;
    const double r = std::copysign(scale * std::sqrt(x * x + y * y), std::fabs(a) > std::fabs(b) ? a : b);
    if (scale != 0.0) {
      c = a / r;
      s = b / r;
    }
    a = scale == 0.0 ? 0.0 : r;
  }

  void turn(double& a, double& b) const {
    const double x = a, y = b;
    a = c * x + s * y;
    b = c * y - s * x;
  }

  template <class Table>
  void turn(const Table& m, int rows, int j, int k) const {
    for (int i = 0; i < rows; ++i) {
      double x = m(i, j), y = m(i, k);
      turn(x, y);
      m(i, j) = x;
      m(i, k) = y;
    }
  }

  double c = 1.0, s = 0.0;
};

/// x (n x p, overwritten) = u . diag(s) . v' by Householder's reduction to two diagonals s and e, and QR steps
/// on them; u has widthU columns.
template <class Table>
struct SingularValues {
  /// @return 0, or how many values were not found
  int run() {
    for (int l = 0; l < std::max(columnSteps, rowSteps); ++l) reduce(l);
    if (columnSteps < p) s[columnSteps] = x(columnSteps, columnSteps);
    if (n < order) s[order - 1] = 0.0;
    if (rowSteps + 1 < order) e[rowSteps] = x(rowSteps, order - 1);
    e[order - 1] = 0.0;
    for (int j = columnSteps; j < widthU; ++j) makeUnit(u, n, j);
    for (int l = columnSteps - 1; l >= 0; --l) generateU(l);
    for (int l = p - 1; l >= 0; --l) {
      for (int j = l + 1; j < p && l < rowSteps && e[l] != 0.0; ++j) reflect(p - l - 1, v, l + 1, l, j);
      makeUnit(v, p, l);
    }
    for (int last = order - 1, steps = 0; last >= 0;) {
      if (steps == 30) return last + 1;
      int first = last, zero = last;
      while (first > 0 && !negligible(e[first - 1], std::fabs(s[first - 1]) + std::fabs(s[first]))) --first;
      if (first > 0) e[first - 1] = 0.0;
      const auto beside = [&](int k) {
        return (k == last ? 0.0 : std::fabs(e[k])) + (k == first ? 0.0 : std::fabs(e[k - 1]));
      };
      while (zero >= first && first < last && !negligible(s[zero], beside(zero))) --zero;
      if (first == last) {
        settle(last--);
        steps = 0;
      } else if (zero < first) {
        step(first, last);
        ++steps;
      } else {
        s[zero] = 0.0;
        chase(zero == last, zero == last ? first : zero + 1, last);
      }
    }
    return 0;
  }

  static bool negligible(double value, double beside) {
    return value == 0.0 || std::fabs((beside + std::fabs(value)) - beside) < 2.220446049250313e-16;
  }

  /// @return what the segment's reflector makes of it
  template <class T>
  static double makeReflector(int count, const T& m, int row, int column) {
    double length = norm(count, [&](int k) { return double{m(row + k, column)}; });
    if (length == 0.0) return -length;
    if (m(row, column) != 0.0) length = std::copysign(length, double{m(row, column)});
    const double factor = 1.0 / length;
    for (int k = 0; k < count; ++k) m(row + k, column) *= factor;
    m(row, column) += 1.0;
    return -length;
  }

  static void reflect(int count, const Table& m, int row, int reflector, int column) {
    double product = 0.0;
    for (int k = row; k < row + count; ++k) product += m(k, reflector) * m(k, column);
    const double factor = -product / m(row, reflector);
    for (int k = row; k < row + count; ++k) m(k, column) += factor * m(k, reflector);
  }

  static void makeUnit(const Table& m, int rows, int column) {
    for (int i = 0; i < rows; ++i) m(i, column) = 0.0;
    m(column, column) = 1.0;
  }

  void reduce(int l) {
    if (l < columnSteps) s[l] = makeReflector(n - l, x, l, l);
    for (int j = l + 1; j < p; ++j) {
      if (l < columnSteps && s[l] != 0.0) reflect(n - l, x, l, l, j);
      e[j] = x(l, j);
    }
    for (int i = l; i < n && l < columnSteps; ++i) u(i, l) = double{x(i, l)};
    if (l >= rowSteps) return;
    e[l] = makeReflector(p - l - 1, Cells{e, p}, l + 1, 0);
    std::vector<double> work(static_cast<std::size_t>(n));
    double* const w = work.data();
    for (int j = l + 1; j < p && e[l] != 0.0; ++j) {
      for (int i = l + 1; i < n; ++i) w[i] += e[j] * x(i, j);
    }
    for (int j = l + 1; j < p && e[l] != 0.0; ++j) {
      const double factor = -e[j] / e[l + 1];
      for (int i = l + 1; i < n; ++i) x(i, j) += factor * w[i];
    }
    for (int i = l + 1; i < p; ++i) v(i, l) = e[i];
  }

  void generateU(int l) {
    if (s[l] == 0.0) return makeUnit(u, n, l);
    for (int j = l + 1; j < widthU; ++j) reflect(n - l, u, l, l, j);
    for (int i = l; i < n; ++i) u(i, l) *= -1.0;
    u(l, l) += 1.0;
    for (int i = 0; i < l; ++i) u(i, l) = 0.0;
  }

  /// A value is zero: the last one, or the one before the first.
  void chase(bool isLast, int first, int last) {
    double f = std::exchange(e[isLast ? last - 1 : first - 1], 0.0);
    for (int k = isLast ? last - 1 : first; k >= first && k <= last; k += isLast ? -1 : 1) {
      const Rotation r(s[k], f);
      const int next = isLast ? k - 1 : k;
      if (!isLast || k > first) {
        f = -r.s * e[next];
        e[next] *= r.c;
      }
      isLast ? r.turn(v, p, k, last) : r.turn(u, n, k, first - 1);
    }
  }

  void step(int first, int last) {
    double most = 0.0;
    for (const double a : {s[last], s[last - 1], e[last - 1], s[first], e[first]}) {
      most = std::max(most, std::fabs(a));
    }
    const double sl = s[last] / most, above = s[last - 1] / most, el = e[last - 1] / most,
                 sf = s[first] / most;
    const double b = ((above + sl) * (above - sl) + el * el) / 2.0, c = (sl * el) * (sl * el);
    const double root = std::sqrt(b * b + c), shift = c / (b + (b < 0.0 ? -root : root));
    double f = (sf + sl) * (sf - sl) + (b != 0.0 || c != 0.0 ? shift : 0.0), g = sf * (e[first] / most);
    for (int k = first; k < last; ++k) {
      const Rotation right(k > first ? e[k - 1] : f, g);
      right.turn(v, p, k, k + 1);
      right.turn(s[k], e[k]);
      const Rotation left(s[k], right.s * s[k + 1]);
      s[k + 1] *= right.c;
      left.turn(e[k], s[k + 1]);
      if (k < n - 1) left.turn(u, n, k, k + 1);
      g = left.s * e[k + 1];
      e[k + 1] *= left.c;
    }
  }

  /// A value is found: it becomes positive and goes to its place.
  void settle(int k) {
    for (int i = 0; i < p && s[k] < 0.0; ++i) v(i, k) *= -1.0;
    if (s[k] < 0.0) s[k] = -s[k];
    for (; k + 1 < order && s[k] < s[k + 1]; ++k) {
      std::swap(s[k], s[k + 1]);
      for (int i = 0; i < p && k < p - 1; ++i) exchange(v, i, k, i, k + 1);
      for (int i = 0; i < n && k < n - 1; ++i) exchange(u, i, k, i, k + 1);
    }
  }

  int n, p, widthU;
  Table x, u, v;
  int columnSteps = std::min(n - 1, p), rowSteps = std::max(0, std::min(p - 2, n)),
      order = std::min(n + 1, p);
  std::vector<double> diagonal = std::vector<double>(static_cast<std::size_t>(order) + 1);
  std::vector<double> aside = std::vector<double>(static_cast<std::size_t>(p) + 1);
  double *s = diagonal.data(), *e = aside.data();
};

}  // namespace definitions
