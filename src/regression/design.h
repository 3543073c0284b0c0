// When a least-squares fit has a design. Internal.
#pragma once

namespace kav {

/// Whether there are rows, explanatory columns and a degree of powers of them.
inline bool hasDesign(int n, int p, int degree) { return n >= 1 && p >= 1 && degree >= 1; }

}  // namespace kav
