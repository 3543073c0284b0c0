#include "checks/derived_variables.h"

#include "algebra/products.h"
#include "algebra/result_blocks.h"

void ComputeNewVar(const matrix* combinations, int n, int p, const matrix* covariances, matrix*& variances,
                   matrix*& newCovariances) {
  M_ProductABTrA(combinations, n, p, covariances, newCovariances);
  const block::Values cells(newCovariances, n, n);
  result::prepared(variances, n, 1, 1, [&](block::Target& target) {
    for (int i = 0; i < n; ++i) target[i] = cells.column(i)[i];
  });
}
