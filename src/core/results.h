// How workers hand back what they computed. Internal.
#pragma once

#include "core/addressing.h"
#include "core/matrix.h"

namespace results {

/// Gives target the shape rows x columns. A target of that shape keeps its cells, so that flagged ones stay
/// as they are (matCheck would refill them); otherwise target is re-pointed to a new container, which belongs
/// to the caller.
inline void prepare(matrix*& target, int rows, int columns) {
  const bool fits = addressing::designatesContainer(target) && target->nX == rows && target->pX == columns;
  if (!fits) target = new matrix(rows, columns);
}

/// Writes a result unless the caller has no place for it.
template <class T>
void give(T* to, T x) {
  if (to != nullptr) *to = x;
}

}  // namespace results
