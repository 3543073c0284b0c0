// How workers make and fill their results. Internal.
//
// A result that is *refilled* has 0.0 wherever nothing is written to a container that has just the shape,
// flagged cells included; a result that is *kept* has what such a container held. Otherwise the pointer
// receives a new container, which belongs to the caller.
#pragma once

#include <limits>
#include <new>

#include "access/block.h"
#include "access/screening.h"
#include "core/addressing.h"
#include "kavoratb1c/matrix.h"

namespace kav::results {

/// Whether a result with these extents has cells.
template <class... Extents>
bool haveCells(Extents... extents) {
  return (... && (extents >= 1));
}

/// Whether a pointer designates a container of just that shape.
inline bool fits(const matrix* c, int rows, int columns) {
  return addressing::designatesContainer(c) && c->nX == rows && c->pX == columns;
}

/// Whether it has no flagged cell either: then a refill before every cell is written would show nowhere.
inline bool isWhole(const matrix* c, int rows, int columns) {
  return fits(c, rows, columns) &&
         !screening::anyFlagged(c->missing, static_cast<std::ptrdiff_t>(addressing::cellCount(*c)));
}

inline void refill(matrix*& c, int rows, int columns) { matrix::matCheck(c, rows, columns, 0.0); }

inline void keep(matrix*& c, int rows, int columns) {
  if (!fits(c, rows, columns)) c = new matrix(rows, columns);
}

/// Keeps a container of any shape.
inline void keepAny(matrix*& c, int rows, int columns) {
  if (!addressing::designatesContainer(c)) c = new matrix(rows, columns);
}

/// Keeps a container of any shape that has room for a vector of that many cells.
inline void keepWithRoom(matrix*& c, int cells) {
  if (!addressing::designatesContainer(c) || addressing::cellCount(*c) < cells) c = new matrix(cells, 1);
}

/// Writes a result of one cell unless the caller has no place for it.
template <class T>
void give(T* to, T x) {
  if (to != nullptr) *to = x;
}

/// Writes x to cell k of a vector, by the element rule; the marker flags the cell instead.
inline void putOrFlag(matrix* vector, int k, double x) {
  if (isMarker(x)) {
    vector->setMissing(k, true);
  } else {
    vector->setElement(k, x);
  }
}

/// Lets compute(target) fill the leading block of a caller's container.
template <class Compute>
void into(matrix* c, int rows, int columns, Compute compute) {
  block::Target target(c, rows, columns);
  compute(target);
  target.store();
}

/// Refills c, rows x columns, and lets compute(target) fill it when all extents are at least 1.
template <class Compute>
void refilled(matrix*& c, int rows, int columns, int depth, Compute compute) {
  const bool computed = haveCells(rows, columns, depth);
  bool isPlain = isWhole(c, rows, columns);
  if (!computed || !isPlain) {
    isPlain = !fits(c, rows, columns);
    refill(c, rows, columns);
  }
  if (!computed) return;
  block::Target target(c, rows, columns, isPlain);
  compute(target);
  target.store();
}

/// Whether there is anything to compute. If not, c is refilled, rows x columns.
inline bool haveCellsOrRefill(matrix*& c, int rows, int columns, int depth) {
  if (haveCells(rows, columns, depth)) return true;
  refill(c, rows, columns);
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
  if (!haveCells(rows, columns)) return;
  into(c, rows, columns, [&](block::Target& target) { fill(target, rows, columns, columnOf); });
}

/// Copies column-major cells, `rows` apart, into a caller's container.
inline void copyInto(matrix* c, int rows, int columns, const double* cells) {
  fillInto(c, rows, columns,
           [=](int j) { return [x = cells + std::ptrdiff_t{rows} * j](int i) { return x[i]; }; });
}

/// Flags the cells that hold the marker.
inline void flagMarkers(matrix& c) {
  for (std::int64_t k = 0; k < addressing::cellCount(c); ++k) {
    c.missing[k] = isMissing(c.values[k], c.missing[k]);
  }
}

/// Puts a container in place of a worker's first operand, which is kept when its shape fits.
inline void replace(matrix*& a, const matrix& by) {
  keep(a, by.nX, by.pX);
  by.copyMatTo(a);
}

/// Columns of a product of columns. Throws std::bad_alloc when a container cannot have so many.
inline int productColumns(int p, int q) {
  const std::int64_t columns = addressing::cellCount(p, q);
  if (columns > std::numeric_limits<int>::max()) throw std::bad_alloc();
  return static_cast<int>(columns);
}

}  // namespace kav::results
