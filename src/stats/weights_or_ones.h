// Row weights that callers may leave out. Internal.
#pragma once

#include <algorithm>
#include <vector>

#include "core/block.h"
#include "stats/usable.h"

namespace usable {

/// The first n weights; 1.0 each where there is no container.
class WeightsOrOnes {
 public:
  WeightsOrOnes(const matrix* w, int n)
      : given_(w, w == nullptr ? 0 : n),
        ones_(w == nullptr ? static_cast<std::size_t>(std::max(n, 0)) : 0, 1.0),
        weights_(w == nullptr ? ones_.data() : given_.data()) {}

  double operator[](std::ptrdiff_t i) const { return weights_[i]; }

 private:
  block::Values given_;
  std::vector<double> ones_;
  const double* weights_;
};

/// C where flags and weights may be left out.
struct WeightedIfGiven : NotExcludedIfGiven {
  WeightedIfGiven(const short* flags, const WeightsOrOnes& weights) : NotExcludedIfGiven(flags), w(weights) {}
  bool operator()(std::ptrdiff_t i) const { return NotExcludedIfGiven::operator()(i) && w[i] != 0.0; }

  const WeightsOrOnes& w;
};

}  // namespace usable
