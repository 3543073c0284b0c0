// Ranges of positions as callers give them. Internal.
#pragma once

#include <algorithm>

namespace kav {

/// A 1-based inclusive range from .. to, cut to 1 .. n: 0-based, end not included.
struct Range {
  Range(int n, int from, int to)
      : begin(std::min(std::max(from, 1) - 1, std::max(n, 0))), end(std::max(std::min(to, n), begin)) {}

  int count() const { return end - begin; }

  int begin;
  int end;
};

}  // namespace kav
