// Cells of containers of strings without copies of the strings. Internal.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "core/addressing.h"
#include "kavoratb1c/Smatrix.h"

namespace kav::texts {

/// A label of a vector of strings; empty, as a missing one is, outside. A null container has none.
inline std::u16string_view labelAt(const Smatrix* labels, std::ptrdiff_t i) {
  if (labels == nullptr || !addressing::isInside(*labels, i)) return {};
  return labels->cells[i];
}

/// A cell as Smatrix::getElement reads it.
inline std::u16string_view cell(const Smatrix* m, int i, int j) {
  if (m == nullptr) return {};
  return labelAt(m, static_cast<std::ptrdiff_t>(addressing::linearIndex(i, j, m->nX)));
}

/// target(i, j) = of(i, j) for all cells of a container.
template <class Of>
void fill(Smatrix& target, Of of) {
  std::u16string* to = target.cells;
  for (int j = 0; j < target.pX; ++j) {
    for (int i = 0; i < target.nX; ++i) *to++ = of(i, j);
  }
}

}  // namespace kav::texts
