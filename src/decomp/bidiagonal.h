// QR steps on a bidiagonal table, see M_SVDecomp. Internal.
#pragma once

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "kavoratb1c/decomp/column_kernels.h"
#include "numerics/scalar.h"
#include "numerics/thresholds.h"

namespace kav::bidiagonal {

/// What a singular value decomposition computes, from its job code; a code below 0 is taken as 0.
struct Job {
  Job(int rows, int columns, int job)
      : n(rows),
        p(columns),
        left(std::max(job, 0) % 100 / 10 != 0),
        right(std::max(job, 0) % 10 != 0),
        leftColumns(std::max(job, 0) % 100 / 10 > 1 ? std::min(n, p) : n) {}

  int n, p;
  bool left, right;
  int leftColumns;

  /// Columns and rows that are reflected.
  int columnSteps() const { return std::min(n - 1, p); }
  int rowSteps() const { return std::max(0, std::min(p - 2, n)); }

  /// Of the bidiagonal matrix.
  int order() const { return n < p ? n + 1 : p; }
};

/// A bidiagonal matrix of job.order() rows, 1-based: the diagonal s, above it e.
///
/// @tparam Vectors  rotateLeft(j, k, c, s), rotateRight(j, k, c, s), negateRight(j); swapLeft(j) and
///                  swapRight(j), with column j + 1
template <class Vectors>
class QrSteps {
 public:
  QrSteps(const Job& job, double* s, double* e, Vectors& vectors)
      : job_(job), s_(s), e_(e), vectors_(vectors) {}

  /// @return 0, or the value that was not found
  int run() {
    constexpr int kMostSteps = 30;
    int steps = 0;
    for (int m = job_.order(); m > 0;) {
      if (steps >= kMostSteps) return m;
      int l = unreducedFrom(m);
      if (l == m - 1) {
        finish(m);
        steps = 0;
        --m;
        continue;
      }
      const int zero = negligibleValue(l, m);
      if (zero == l) {
        step(l + 1, m);
        ++steps;
      } else if (zero == m) {
        deflateLast(l + 1, m);
      } else {
        split(zero + 1, m);
      }
    }
    return 0;
  }

 private:
  /// An absolute threshold: see M_SVDecomp. What is 0.0 stays so beside infinity too: nothing is split twice.
  static bool isNegligible(double neighbours, double x) {
    return x == 0.0 || std::fabs((neighbours + std::fabs(x)) - neighbours) < kEpsilon;
  }

  /// The last l below m with a negligible e(l), which becomes 0.0; 0 when there is none.
  int unreducedFrom(int m) {
    int l = m - 1;
    while (l > 0 && !isNegligible(std::fabs(s_[l]) + std::fabs(s_[l + 1]), e_[l])) --l;
    if (l > 0) e_[l] = 0.0;
    return l;
  }

  /// The last value above l that is negligible, which becomes 0.0; l when there is none.
  int negligibleValue(int l, int m) {
    int k = m;
    for (; k > l; --k) {
      double neighbours = 0.0;
      if (k != m) neighbours += std::fabs(e_[k]);
      if (k != l + 1) neighbours += std::fabs(e_[k - 1]);
      if (isNegligible(neighbours, s_[k])) break;
    }
    if (k > l) s_[k] = 0.0;
    return k;
  }

  /// The last value is 0.0: rotates what stands above it away.
  void deflateLast(int l, int m) {
    double f = e_[m - 1];
    e_[m - 1] = 0.0;
    for (int k = m - 1; k >= l; --k) {
      double c, s;
      drotg(s_[k], f, c, s);
      if (k != l) {
        f = -s * e_[k - 1];
        e_[k - 1] = c * e_[k - 1];
      }
      if (job_.right) vectors_.rotateRight(k, m, c, s);
    }
  }

  /// Value l - 1 is 0.0: rotates what stands beside it away.
  void split(int l, int m) {
    double f = e_[l - 1];
    e_[l - 1] = 0.0;
    for (int k = l; k <= m; ++k) {
      double c, s;
      drotg(s_[k], f, c, s);
      f = -s * e_[k];
      e_[k] = c * e_[k];
      if (job_.left) vectors_.rotateLeft(k, l - 1, c, s);
    }
  }

  /// One step, with the shift from the last two rows.
  void step(int l, int m) {
    double g;
    double f = shifted(l, m, g);
    for (int k = l; k < m; ++k) {
      double c, s;
      drotg(f, g, c, s);
      if (k != l) e_[k - 1] = f;
      f = c * s_[k] + s * e_[k];
      e_[k] = c * e_[k] - s * s_[k];
      g = s * s_[k + 1];
      s_[k + 1] = c * s_[k + 1];
      if (job_.right) vectors_.rotateRight(k, k + 1, c, s);
      drotg(f, g, c, s);
      s_[k] = f;
      f = c * e_[k] + s * s_[k + 1];
      s_[k + 1] = -s * e_[k] + c * s_[k + 1];
      g = s * e_[k + 1];
      e_[k + 1] = c * e_[k + 1];
      if (job_.left && k < job_.n) vectors_.rotateLeft(k, k + 1, c, s);
    }
    e_[m - 1] = f;
  }

  /// What the first rotation of a step turns to 0.0: returns f, and g beside it.
  double shifted(int l, int m, double& g) const {
    double scale = 0.0;
    for (double x : {s_[m], s_[m - 1], e_[m - 1], s_[l], e_[l]}) scale = std::max(scale, std::fabs(x));
    const double sm = s_[m] / scale, before = s_[m - 1] / scale, em = e_[m - 1] / scale;
    const double sl = s_[l] / scale, el = e_[l] / scale;
    const double b = ((before + sm) * (before - sm) + em * em) / 2.0;
    const double c = (sm * em) * (sm * em);
    double shift = 0.0;
    if (b != 0.0 || c != 0.0) {
      shift = scalar::sqr(b * b + c);
      if (b < 0.0) shift = -shift;
      shift = c / (b + shift);
    }
    g = sl * el;
    return (sl + sm) * (sl - sm) + shift;
  }

  /// Value m is found: it becomes positive and moves to its place.
  void finish(int m) {
    if (s_[m] < 0.0) {
      s_[m] = -s_[m];
      if (job_.right) vectors_.negateRight(m);
    }
    for (int k = m; k != job_.order() && s_[k] < s_[k + 1]; ++k) {
      std::swap(s_[k], s_[k + 1]);
      if (job_.right && k < job_.p) vectors_.swapRight(k);
      if (job_.left && k < job_.n) vectors_.swapLeft(k);
    }
  }

  const Job& job_;
  double *s_, *e_;
  Vectors& vectors_;
};

}  // namespace kav::bidiagonal
