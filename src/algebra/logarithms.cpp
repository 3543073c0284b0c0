#include "kavoratb1c/algebra/logarithms.h"

#include "access/block.h"
#include "access/usable.h"
#include "numerics/scalar.h"

using namespace kav;

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

void M_LogMatrix(matrix*& a, int n, int p, const short* rowFlags) {
  replace(a, n, p, usable::NotExcludedIfGiven(rowFlags), scalar::naturalLog);
}

void M_Log10Matrix(matrix* a, int n, int p) {
  replace(a, n, p, usable::NotExcludedIfGiven(nullptr), scalar::Log10);
}
