// The weighted mean of V_Mean, once for everybody. Internal.
#pragma once

#include "access/usable.h"

namespace kav {

/// Sum of weight(i) value(i) over sum of weight(i), both added in index order over the cells that a rule
/// uses; NaN (0/0) when it uses none.
template <class Rule, class Value, class Weight>
double weightedMean(int n, Rule rule, Value value, Weight weight) {
  double sum = 0.0;
  double total = 0.0;
  usable::forEach(n, rule, [&](int i) {
    const double w = weight(i);
    total += w;
    sum += value(i) * w;
  });
  return sum / total;
}

}  // namespace kav
