// The memory behind a matrix: one block for its nine arrays. Internal.
//
//     [sizes | counts | weights | values | normu norsigma descmu descsigma weightcorr | missing]
//
// One allocation instead of nine makes a small container five times as cheap. The counts lead back to the
// block, also after a shallow assignment. The sizes it was made with stand in front, because nX and pX are
// changed later by members that give a container another shape.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <new>

#include "core/addressing.h"
#include "kavoratb1c/matrix.h"

namespace kav::storage {

/// What a container was built with; never below 0.
struct Sizes {
  int rows;        ///< that have a weight
  int columns;     ///< that have counts and statistics
  bool ownValues;  ///< the values lie in the block
  bool borrowed;   ///< the block is the maker's, not the allocator's

  /// Cells that the container can be given a shape for.
  std::int64_t cells() const { return ownValues ? addressing::cellCount(rows, columns) : 0; }
};

/// Room for Sizes that keeps what follows aligned as the allocator aligns.
inline constexpr std::size_t kSizesField = 16;
static_assert(sizeof(Sizes) <= kSizesField && kSizesField % alignof(std::max_align_t) == 0);

/// Bytes of such a field.
struct alignas(kSizesField) SizesField {
  Sizes sizes;
};

/// Memory for the arrays of a small container, aligned as the allocator aligns; outlives the container.
struct Room {
  void* memory;
  std::size_t bytes;
};

inline constexpr Room kNoRoom{nullptr, 0};

/// Makes m, which has no arrays yet or none of its own, a container of rows x columns without missing cells:
/// its arrays lie in room where that is large enough, else in a new block. The values are not set. Throws
/// std::bad_alloc.
///
/// @param values  null, or m's values: then they stay where they are, and m, which must not outlive
///                them, has row weights only when it has several columns; those of a vector are null
void build(matrix& m, Room room, int rows, int columns, double* values = nullptr);

void release(matrix& m) noexcept;

inline const Sizes& builtSizes(const matrix& m) {
  return *reinterpret_cast<const Sizes*>(reinterpret_cast<const char*>(m.counts) - kSizesField);
}

/// Rows that have a weight, and columns that have counts and statistics: after a change of shape there may be
/// fewer of them than nX and pX say.
inline int weightedRows(const matrix& m) { return std::clamp(m.nX, 0, builtSizes(m).rows); }
inline int describedColumns(const matrix& m) { return std::clamp(m.pX, 0, builtSizes(m).columns); }

/// The weight that a row counts with: 1.0 where it has none of its own.
inline double rowWeight(const matrix& m, int i) {
  return m.weights != nullptr && i >= 0 && i < weightedRows(m) ? m.weights[i] : 1.0;
}

}  // namespace kav::storage
