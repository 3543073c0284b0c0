// Sizes of vectors from extents. Internal.
#pragma once

#include <cstddef>

namespace kav::householder {

inline std::size_t sizeOf(int n) { return static_cast<std::size_t>(n); }

}  // namespace kav::householder
