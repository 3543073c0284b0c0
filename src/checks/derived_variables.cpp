#include "kavoratb1c/checks/derived_variables.h"

#include "access/results.h"
#include "kavoratb1c/algebra/products.h"
#include "kavoratb1c/tables/copies.h"

using namespace kav;

void ComputeNewVar(const matrix* combinations, int n, int p, const matrix* covariances, matrix*& variances,
                   matrix*& newCovariances) {
  matrix product(n, n);
  matrix* made = &product;
  M_ProductABTrA(combinations, n, p, covariances, made);
  const block::Values cells(made, n, n);
  results::refilled(variances, n, 1, 1, [&](block::Target& target) {
    for (int i = 0; i < n; ++i) target[i] = cells.column(i)[i];
  });
  M_Duplicate(made, n, n, newCovariances);
}
