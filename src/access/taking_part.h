// Which rows of a table take part: those without a flag whose weight is not exactly 0.0. Flags and weights
// may be left out. Internal.
#pragma once

#include "access/block.h"
#include "access/usable.h"

namespace kav::usable {

/// The first n row weights; 1.0 each without a container.
class RowWeights {
 public:
  RowWeights(const matrix* w, int n) : given_(w, w == nullptr ? 0 : n), cells_(given_.data()) {}

  double operator[](std::ptrdiff_t i) const { return cells_ == nullptr ? 1.0 : cells_[i]; }

 private:
  block::Values given_;
  const double* cells_;
};

/// A rule for rows, which also have to have a weight.
template <class Rule>
struct TakesPart {
  bool operator()(std::ptrdiff_t i) const { return rule(i) && weights[i] != 0.0; }

  Rule rule;
  const RowWeights& weights;
};

template <class Rule>
TakesPart(Rule, const RowWeights&) -> TakesPart<Rule>;

/// visit(i, w) for the rows i of weight w that take part, in order.
template <class Rule, class Visit>
void forEachTakingPart(int n, Rule rule, const RowWeights& weights, Visit visit) {
  const TakesPart takesPart{rule, weights};
  for (int i = 0; i < n; ++i) {
    if (takesPart(i)) visit(i, weights[i]);
  }
}

}  // namespace kav::usable
