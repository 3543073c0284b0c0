// Missing cells of a container visited, to be filled. Internal.
#pragma once

#include <algorithm>
#include <cstdint>

#include "core/addressing.h"
#include "kavoratb1c/Smatrix.h"
#include "kavoratb1c/matrix.h"

namespace kav::missing {

inline bool isMissing(const matrix& m, std::int64_t k) { return kav::isMissing(m.values[k], m.missing[k]); }
inline bool isMissing(const Smatrix& m, std::int64_t k) { return m.cells[k].empty(); }

/// visit(row, linear index) for the missing cells among the first n of a column, those inside the container.
template <class Container, class Visit>
void forEachInColumn(const Container* m, int n, int column, Visit visit) {
  const std::int64_t cells = m == nullptr ? 0 : addressing::cellCount(*m);
  if (cells == 0) return;
  const std::int64_t begin = addressing::linearIndex(0, column, m->nX);
  const std::int64_t count = std::clamp<std::int64_t>(cells - begin, 0, std::max(n, 0));
  for (std::int64_t i = 0; i < count; ++i) {
    if (isMissing(*m, begin + i)) visit(static_cast<int>(i), begin + i);
  }
}

inline void fill(matrix& m, std::int64_t k, double x) {
  m.missing[k] = false;
  m.values[k] = x;
  m.descValid = 0;
}

template <class Text>
void fill(Smatrix& m, std::int64_t k, const Text& text) {
  m.cells[k] = text;
}

}  // namespace kav::missing
