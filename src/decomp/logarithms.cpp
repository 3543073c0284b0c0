#include "decomp/logarithms.h"

#include "core/block.h"
#include "platform/scalar.h"
#include "stats/usable.h"

namespace {

/// Replaces each cell that is present in a row of the rule.
template <class Of>
void replace(matrix* a, int n, int p, usable::NotExcludedIfGiven used, Of of) {
  if (a == nullptr || n < 1 || p < 1) return;
  const block::Flags flags(a, n, p);
  block::Target cells(a, n, p);
  for (int j = 0; j < p; ++j) {
    double* column = cells.column(j);
    const usable::Present present(column, flags.column(j));
    for (int i = 0; i < n; ++i) {
      if (used(i) && present(i)) column[i] = of(column[i]);
    }
  }
  cells.store();
}

}  // namespace

short M_IsPositive(const matrix* a, int n, int p, const short* rowFlags, short strictly) {
  const usable::NotExcludedIfGiven used(rowFlags);
  const block::Values cells(a, n, p);
  for (int j = 0; j < p; ++j) {
    for (int i = 0; i < n; ++i) {
      const double x = cells.column(j)[i];
      if (used(i) && !(strictly == kTrue ? x > 0.0 : x >= 0.0)) return kFalse;
    }
  }
  return kTrue;
}

void M_LogMatrix(matrix*& a, int n, int p, const short* rowFlags) {
  replace(a, n, p, usable::NotExcludedIfGiven(rowFlags), scalar::naturalLog);
}

void M_Log10Matrix(matrix* a, int n, int p) {
  replace(a, n, p, usable::NotExcludedIfGiven(nullptr), scalar::Log10);
}
