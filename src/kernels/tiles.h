// How the product kernels cut their tables into pieces. Internal.
#pragma once

#include <cstddef>

#include "kernels/kernels.h"

namespace kav::kernels {

/// A block of a that stays in the second-level cache: rows x depth.
inline constexpr std::ptrdiff_t kBlockRows = 192;
inline constexpr std::ptrdiff_t kBlockDepth = 256;

/// Columns of b that are packed at a time.
inline constexpr std::ptrdiff_t kBlockColumns = 480;

/// A tile's rows are at most that many, its columns too.
inline constexpr std::ptrdiff_t kMostTileRows = 16;
inline constexpr std::ptrdiff_t kMostTileColumns = 8;

/// Whether packing costs more than it gains. Of internal linkage: code for one instruction set must not serve
/// another.
static inline bool isSmall(const Product& p) {
  constexpr double kFewMultiplications = 100.0;
  const double rows = static_cast<double>(p.rows);
  const double multiplications = rows * static_cast<double>(p.columns) * static_cast<double>(p.depth);
  return multiplications <= kFewMultiplications || (p.columns == 1 && p.a.row == 1);
}

}  // namespace kav::kernels
