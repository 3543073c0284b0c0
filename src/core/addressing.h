// How both containers address their cells: column-major, by linear index, sizes below 1 meaning
// no cells. Internal.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <new>

namespace kav::addressing {

/// Cells of a table, without overflow.
inline constexpr std::int64_t cellCount(std::int64_t rows, std::int64_t columns) {
  return rows < 1 || columns < 1 ? 0 : rows * columns;
}

/// Linear index of cell (i, j), both 0-based, in a table of the given number of rows, without overflow.
inline constexpr std::int64_t linearIndex(std::int64_t i, std::int64_t j, int rows) { return i + rows * j; }

/// The same for 1-based row and column.
inline constexpr std::int64_t linearIndexFrom1(std::int64_t row, std::int64_t column, int rows) {
  return linearIndex(row - 1, column - 1, rows);
}

/// Cells of a container.
template <class Container>
std::int64_t cellCount(const Container& c) {
  return cellCount(c.nX, c.pX);
}

/// Whether linear index k is one of a container's cells.
template <class Container>
bool isInside(const Container& c, std::int64_t k) {
  return k >= 0 && k < cellCount(c);
}

/// Elements of a table's array as memory counts them. Throws std::bad_alloc when no memory could hold that
/// many.
///
/// @tparam Element  what the array holds
template <class Element>
std::size_t elementsInMemory(std::int64_t rows, std::int64_t columns) {
  const auto count = static_cast<std::uint64_t>(cellCount(rows, columns));
  if (count > std::numeric_limits<std::ptrdiff_t>::max() / sizeof(Element)) throw std::bad_alloc();
  return static_cast<std::size_t>(count);
}

/// Cells that an array of srcRows x srcCols supplies to a table of rows x columns; a size of 0 stands for the
/// table's own.
inline std::int64_t cellsSupplied(int rows, int columns, int srcRows, int srcCols) {
  return std::min(cellCount(srcRows == 0 ? rows : srcRows, srcCols == 0 ? columns : srcCols),
                  cellCount(rows, columns));
}

/// Two extents together, neither below 0. Throws std::bad_alloc where a container cannot have so many.
inline int together(int a, int b) {
  const std::int64_t sum = std::int64_t{std::max(a, 0)} + std::max(b, 0);
  if (sum > std::numeric_limits<int>::max()) throw std::bad_alloc();
  return static_cast<int>(sum);
}

/// Whether a pointer given to matCheck points to a container: not when it is null or was never set, in builds
/// that fill memory with 0xCC.
inline bool designatesContainer(const void* target) {
  constexpr auto neverSet = static_cast<std::uintptr_t>(0xCCCCCCCCCCCCCCCCu);
  return target != nullptr && reinterpret_cast<std::uintptr_t>(target) != neverSet;
}

}  // namespace kav::addressing
