// Cells of tables of strings without copies of the strings. Internal.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "core/Smatrix.h"
#include "core/addressing.h"
#include "stats/usable.h"

namespace texts {

/// A cell as Smatrix::getElement reads it; a null container has none.
inline std::u16string_view cell(const Smatrix* m, int i, int j) {
  if (m == nullptr) return {};
  return usable::labelAt(m, static_cast<std::ptrdiff_t>(addressing::linearIndex(i, j, m->nX)));
}

/// target(i, j) = of(i, j) for all cells of a container.
template <class Of>
void fill(Smatrix& target, Of of) {
  std::u16string* to = target.cells;
  for (int j = 0; j < target.pX; ++j) {
    for (int i = 0; i < target.nX; ++i) *to++ = of(i, j);
  }
}

}  // namespace texts
