#include "checks/derived_variables.h"

#include "algebra/products.h"
#include "algebra/result_blocks.h"
#include "tables/copies.h"

void ComputeNewVar(const matrix* combinations, int n, int p, const matrix* covariances, matrix*& variances,
                   matrix*& newCovariances) {
  matrix product(n, n);
  matrix* made = &product;
  M_ProductABTrA(combinations, n, p, covariances, made);
  const block::Values cells(made, n, n);
  result::prepared(variances, n, 1, 1, [&](block::Target& target) {
    for (int i = 0; i < n; ++i) target[i] = cells.column(i)[i];
  });
  M_Duplicate(made, n, n, newCovariances);
}
