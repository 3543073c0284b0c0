// How the algebra's workers make and fill their results. Internal.
#pragma once

#include <cstring>
#include <limits>
#include <new>

#include "core/block.h"
#include "core/results.h"

namespace result {

/// Whether a block with these extents has cells.
template <class... Extents>
bool hasCells(Extents... extents) {
  return (... && (extents >= 1));
}

/// Lets compute(target) fill the leading block of a caller's container.
template <class Compute>
void into(matrix* c, int rows, int columns, Compute compute) {
  block::Target target(c, rows, columns);
  compute(target);
  target.store();
}

/// Whether a container has just that shape and no flagged cell: then refilling it before every cell is
/// written would show nowhere.
inline bool isWhole(const matrix* c, int rows, int columns) {
  return addressing::designatesContainer(c) && c->nX == rows && c->pX == columns &&
         std::memchr(c->missing, 1, static_cast<std::size_t>(addressing::cellCount(*c))) == nullptr;
}

/// Prepares c as rows x columns of 0.0, and lets compute(target) fill it when all extents are at least 1.
template <class Compute>
void prepared(matrix*& c, int rows, int columns, int depth, Compute compute) {
  const bool computed = hasCells(rows, columns, depth);
  if (!computed || !isWhole(c, rows, columns)) matrix::matCheck(c, rows, columns, 0.0);
  if (computed) into(c, rows, columns, compute);
}

/// target(i, j) = of(i, j).
template <class Of>
void fill(block::Target& target, int rows, int columns, Of of) {
  for (int j = 0; j < columns; ++j) {
    double* column = target.data() + target.stride() * j;
    for (int i = 0; i < rows; ++i) column[i] = of(i, j);
  }
}

/// The same into a caller's container.
template <class Of>
void fillInto(matrix* c, int rows, int columns, Of of) {
  if (!hasCells(rows, columns)) return;
  into(c, rows, columns, [&](block::Target& target) { fill(target, rows, columns, of); });
}

/// Puts a table in place of a worker's first operand, which keeps its container when the shape fits.
inline void replace(matrix*& a, const matrix& by) {
  results::prepare(a, by.nX, by.pX);
  by.copyMatTo(a);
}

/// Columns of a product of columns. Throws std::bad_alloc when a table cannot have so many.
inline int productColumns(int p, int q) {
  const std::int64_t columns = addressing::cellCount(p, q);
  if (columns > std::numeric_limits<int>::max()) throw std::bad_alloc();
  return static_cast<int>(columns);
}

}  // namespace result
