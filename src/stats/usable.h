// Which cells of a vector a statistic uses: each rule once, by name. Internal.
#pragma once

#include <cstddef>

#include "core/block.h"

namespace usable {

/// A: not excluded, present (flag clear, value not the marker), weight not exactly 0.0.
struct PresentAndWeighted {
  const double* x;
  const char* flagged;
  const short* exclude;
  const double* w;

  bool operator()(std::ptrdiff_t i) const {
    return exclude[i] == 0 && flagged[i] == 0 && !isMarker(x[i]) && w[i] != 0.0;
  }
};

/// D: not excluded; whether the cell is missing is not looked at.
struct NotExcluded {
  const short* exclude;

  bool operator()(std::ptrdiff_t i) const { return exclude[i] == 0; }
};

/// D where nothing is excluded.
struct Every {
  bool operator()(std::ptrdiff_t) const { return true; }
};

}  // namespace usable
