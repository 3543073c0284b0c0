#pragma once

#include "kavoratb1c/matrix.h"

namespace definitions {

/// The weighted one-pass update of two columns, or of one that is both, over the rows so far.
struct WeightedUpdate {
  WeightedUpdate() = default;

  /// Over the first n rows, as far as used(row) and of a weight other than 0.0; null weights are 1.0. All
  /// 0-based.
  template <class Used>
  WeightedUpdate(const matrix& table, int a, int b, int n, const matrix* weights, Used used) {
    for (int i = 0; i < n; ++i) {
      const double w = weights == nullptr ? 1.0 : weights->getElement(i);
      if (w != 0.0 && used(i)) add(table.getElement(i, a), table.getElement(i, b), w);
    }
  }

  void add(double a, double b, double w) {
    total += w;
    count += 1.0;
    const double dA = a - meanA, dB = b - meanB, factor = total == w ? 0.0 : w - w * w / total;
    squares += factor * (dA * dA);
    products += factor * dB * dA;
    meanA += w / total * dA;
    meanB += w / total * dB;
  }

  double divisor(short unbiased, short frequencies) const {
    return unbiased != kav::kTrue ? total : frequencies == kav::kTrue ? total - 1.0 : total - total / count;
  }

  double total = 0.0, count = 0.0, squares = 0.0, products = 0.0, meanA = 0.0, meanB = 0.0;
};

}  // namespace definitions
