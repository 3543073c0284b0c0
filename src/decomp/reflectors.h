// Householder reflections of unit vectors, put together to orthogonal tables. Internal.
#pragma once

#include <cstddef>
#include <vector>

#include "numerics/plain_elements.h"

namespace kav::reflectors {

/// One reflection: rows first .. end-1 of a column x become x + (sum of v[k] x[k] / divisor) along, terms in
/// ascending order. Both vectors begin with row `first`.
struct Reflector {
  int first, end;
  const double* v;
  const double* along;
  double divisor;
};

/// The orthogonal table of reflections in the order given, each of whose rows contain those of the one
/// before.
///
/// Column j starts, where startsAfter[j] of the reflections are over, as the unit vector e(j), less start[j]
/// from row j on where that is not null; the remaining ones reflect it. startsAfter rises or falls with j.
///
/// @param target  rows x startsAfter.size()
void accumulate(const std::vector<Reflector>& order, const std::vector<int>& startsAfter,
                const std::vector<const double*>& start, int rows, const elements::Plain& target);

}  // namespace kav::reflectors
