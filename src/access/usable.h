// Which cells of a vector a statistic uses: each rule once, by name. Internal.
//
//     A  PresentAndWeighted   not excluded, present, weight not exactly 0.0
//     B  PresentNotExcluded   not excluded, present
//     C  WeightedNotExcluded  not excluded, weight not exactly 0.0
//     D  NotExcluded          not excluded
//     E  Present              present: flag clear and value not the marker
#pragma once

#include <cstddef>

#include "access/block.h"

namespace kav::usable {

/// The first n cells of a vector, with their flags.
class Cells {
 public:
  Cells(const matrix* x, int n) : values_(x, n), flags_(x, n) {}

  double operator[](std::ptrdiff_t i) const { return values_[i]; }
  const double* values() const { return values_.data(); }
  const bool* flags() const { return flags_.data(); }

 private:
  block::Values values_;
  block::Flags flags_;
};

struct Present {
  explicit Present(const Cells& cells) : Present(cells.values(), cells.flags()) {}
  Present(const double* values, const bool* flags) : x(values), flagged(flags) {}
  bool operator()(std::ptrdiff_t i) const { return !isMissing(x[i], flagged[i]); }

  const double* x;
  const bool* flagged;
};

struct NotExcluded {
  explicit NotExcluded(const short* flags) : exclude(flags) {}
  bool operator()(std::ptrdiff_t i) const { return exclude[i] == 0; }

  const short* exclude;
};

/// D where nothing is excluded.
struct Every {
  bool operator()(std::ptrdiff_t) const { return true; }
};

/// D where flags may be null, which excludes nothing.
struct NotExcludedIfGiven {
  explicit NotExcludedIfGiven(const short* flags) : exclude(flags) {}
  bool operator()(std::ptrdiff_t i) const { return exclude == nullptr || exclude[i] == 0; }

  const short* exclude;
};

struct Weighted {
  explicit Weighted(const block::Values& weights) : w(weights.data()) {}
  bool operator()(std::ptrdiff_t i) const { return w[i] != 0.0; }

  const double* w;
};

struct PresentNotExcluded : NotExcluded, Present {
  PresentNotExcluded(const Cells& cells, const short* exclusion) : NotExcluded(exclusion), Present(cells) {}
  bool operator()(std::ptrdiff_t i) const { return NotExcluded::operator()(i) && Present::operator()(i); }
};

struct WeightedNotExcluded : NotExcluded, Weighted {
  WeightedNotExcluded(const short* exclusion, const block::Values& weights)
      : NotExcluded(exclusion), Weighted(weights) {}
  bool operator()(std::ptrdiff_t i) const { return NotExcluded::operator()(i) && Weighted::operator()(i); }
};

struct PresentAndWeighted : PresentNotExcluded, Weighted {
  PresentAndWeighted(const Cells& cells, const short* exclusion, const block::Values& weights)
      : PresentNotExcluded(cells, exclusion), Weighted(weights) {}
  bool operator()(std::ptrdiff_t i) const {
    return PresentNotExcluded::operator()(i) && Weighted::operator()(i);
  }
};

/// Calls visit(i) for the cells that a rule uses, in index order.
template <class Rule, class Visit>
void forEach(int n, Rule rule, Visit visit) {
  for (int i = 0; i < n; ++i) {
    if (rule(i)) visit(i);
  }
}

/// Whether the arrays that a statistic cannot do without are there; an empty vector needs none.
template <class... Arrays>
bool given(int n, const Arrays*... arrays) {
  return n < 1 || (... && (arrays != nullptr));
}

}  // namespace kav::usable
