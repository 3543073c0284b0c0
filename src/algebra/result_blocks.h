// How the algebra's workers make and fill their results. Internal.
#pragma once

#include <limits>
#include <new>

#include "core/block.h"
#include "core/results.h"
#include "core/screening.h"

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
         !screening::anyFlagged(c->missing, static_cast<std::ptrdiff_t>(addressing::cellCount(*c)));
}

/// Prepares c as rows x columns of 0.0, and lets compute(target) fill it when all extents are at least 1.
template <class Compute>
void prepared(matrix*& c, int rows, int columns, int depth, Compute compute) {
  const bool computed = hasCells(rows, columns, depth);
  if (!computed || !isWhole(c, rows, columns)) matrix::matCheck(c, rows, columns, 0.0);
  if (computed) into(c, rows, columns, compute);
}

/// Whether there is anything to compute. If not, c is prepared as rows x columns of 0.0.
inline bool hasCellsOrIsPrepared(matrix*& c, int rows, int columns, int depth) {
  if (hasCells(rows, columns, depth)) return true;
  matrix::matCheck(c, rows, columns, 0.0);
  return false;
}

/// target(i, j) = columnOf(j)(i). What a column needs is looked up once, by value, so that the loop over its
/// rows becomes one over vectors.
template <class ColumnOf>
void fill(block::Target& target, int rows, int columns, ColumnOf columnOf) {
  for (int j = 0; j < columns; ++j) {
    double* column = target.column(j);
    const auto of = columnOf(j);
    for (int i = 0; i < rows; ++i) column[i] = of(i);
  }
}

/// The same into a caller's container.
template <class ColumnOf>
void fillInto(matrix* c, int rows, int columns, ColumnOf columnOf) {
  if (!hasCells(rows, columns)) return;
  into(c, rows, columns, [&](block::Target& target) { fill(target, rows, columns, columnOf); });
}

/// Copies a table, columns `rows` cells apart, into a caller's container.
inline void copyInto(matrix* c, int rows, int columns, const double* cells) {
  fillInto(c, rows, columns,
           [=](int j) { return [x = cells + std::ptrdiff_t{rows} * j](int i) { return x[i]; }; });
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
