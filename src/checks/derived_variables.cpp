#include "checks/derived_variables.h"

#include <memory>

#include "algebra/products.h"
#include "algebra/result_blocks.h"
#include "tables/copies.h"

void ComputeNewVar(const matrix* combinations, int n, int p, const matrix* covariances, matrix*& variances,
                   matrix*& newCovariances) {
  matrix* made = nullptr;
  M_ProductABTrA(combinations, n, p, covariances, made);
  const std::unique_ptr<const matrix> product(made);
  const block::Values cells(made, n, n);
  result::prepared(variances, n, 1, 1, [&](block::Target& target) {
    for (int i = 0; i < n; ++i) target[i] = cells.column(i)[i];
  });
  M_Duplicate(made, n, n, newCovariances);
}
