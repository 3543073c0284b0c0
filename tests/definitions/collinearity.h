#pragma once

#include <cmath>
#include <vector>

#include "definitions/elimination.h"
#include "kavoratb1c/marker.h"

namespace definitions {

/// The least tolerance that variable k, and with it those that have been swept on, would be left with.
template <class Table>
double leastTolerance(const Packed<Table>& s, int p, int k, double tolerance) {
  const double d = s(k, k);
  double least = d;
  for (int j = 0; j < p && d > 0.0 && d >= tolerance; ++j) {
    if (s(j, j) < 0.0) least = std::min(least, 1.0 / (std::fabs(s(j, j)) + s(j, k) * s(j, k) / d));
  }
  return least;
}

/// What CheckTolerance is asked.
struct CollinearityCheck {
  int p, groups = 1;
  short markOthers = 0, sweepAll = 0, backwards = 0;
  double tolerance = 0.01;
  std::vector<double> isSelected = {1.0};  ///< for each group
  std::vector<double> groupOf = std::vector<double>(static_cast<std::size_t>(p), 1.0);
};

/// Codes, tolerances and inflations of variables whose correlations are r.
class Collinearity {
 public:
  template <class Table>
  Collinearity(const CollinearityCheck& check, const Table& r, std::vector<double>& results)
      : c(check), packed(static_cast<std::size_t>((c.p + 1) * (c.p + 2) / 2)), all{results.data(), c.p} {
    for (int i = 0; i < c.p; ++i) all(i, 0) = 0.0;
    for (int i = 0; i < c.p; ++i) {
      const bool constant = std::fabs(r(i, i)) < 1e-12;
      if (constant) give(i, kConstant, 0.0);
      for (int j = i + 1; j < c.p && !constant; ++j) {
        if (std::fabs(r(i, j)) >= 0.999999999999) give(j, kCollinear, 0.0);
      }
    }
    for (int h = c.groups; h >= 1; --h) {
      for (int v = 0; v < c.p && c.isSelected[static_cast<std::size_t>(h - 1)] == 1.0; ++v) {
        const int k = c.backwards == -1 ? c.p - 1 - v : v;
        if (c.groupOf[static_cast<std::size_t>(k)] == h && all(k, 0) == 0.0) test(k, r);
      }
    }
  }

 private:
  static constexpr double kConstant = 50000.0, kCollinear = 60000.0;

  void give(int k, double code, double left) {
    all(k, 0) = code;
    all(k, 1) = left;
    all(k, 2) = left == 0.0 ? kav::kMissing : 1.0 / left;
  }

  /// Variable k stands once more as the last one, which no sweep is on.
  template <class Table>
  void test(int k, const Table& r) {
    const Packed<Cells> s{{packed.data(), 0}};
    for (int i = 0; i < c.p; ++i) {
      for (int j = 0; j <= i; ++j) s(i, j) = r(i, j);
      s(c.p, i) = i == k ? 1.0 : r(i, k);
    }
    s(c.p, c.p) = 1.0;
    double left = 1.0;
    for (int j = c.p - 1; j >= 0 && !(left < c.tolerance); --j) {
      const double code = all(j, 0), least = leastTolerance(s, c.p, j, c.tolerance);
      if (j == k || code == kConstant || (code != 0.0 && c.sweepAll != -1)) continue;
      const bool marked = c.markOthers == -1 && std::fabs(s(j, j)) < c.tolerance;
      if (!(least < c.tolerance) || (c.markOthers == -1 && !marked)) {
        sweep(s, c.p + 1, j);
        left = s(c.p, c.p);
        give(k, left < c.tolerance && c.sweepAll == 0 ? kCollinear : 0.0, left);
      } else if (marked) {
        give(j, kCollinear, least);
      }
    }
  }

  const CollinearityCheck& c;
  std::vector<double> packed;
  Cells all;
};

}  // namespace definitions
