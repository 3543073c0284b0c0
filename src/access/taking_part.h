// Which rows of a table take part: those without a flag whose weight is not exactly 0.0. Flags and weights
// may be left out. Internal.
#pragma once

#include "access/block.h"
#include "access/usable.h"

namespace kav::usable {

/// Row weights as loops want them: by value, without a branch.
struct WeightOf {
  double operator()(std::ptrdiff_t i) const { return cells[i * step]; }

  const double* cells;
  std::ptrdiff_t step;
};

/// The first n row weights; 1.0 each without a container.
class RowWeights {
 public:
  RowWeights(const matrix* w, int n) : isGiven_(w != nullptr), given_(w, isGiven_ ? n : 0) {}

  double operator[](std::ptrdiff_t i) const { return of()(i); }
  WeightOf of() const { return isGiven_ ? WeightOf{given_.data(), 1} : WeightOf{&kOne, 0}; }

 private:
  static constexpr double kOne = 1.0;

  bool isGiven_;
  block::Values given_;
};

/// A rule for rows, which also have to have a weight.
template <class Rule>
struct TakesPart {
  TakesPart(Rule ruleOfRows, const RowWeights& weights) : rule(ruleOfRows), weightOf(weights.of()) {}

  bool operator()(std::ptrdiff_t i) const { return rule(i) && weightOf(i) != 0.0; }

  Rule rule;
  WeightOf weightOf;
};

/// visit(i, w) for the rows i of weight w that take part, in order.
template <class Rule, class Visit>
void forEachTakingPart(int n, Rule rule, const RowWeights& weights, Visit visit) {
  const TakesPart takesPart(rule, weights);
  for (int i = 0; i < n; ++i) {
    if (takesPart(i)) visit(i, takesPart.weightOf(i));
  }
}

}  // namespace kav::usable
