#include "kavoratb1c/regression/newton_raphson.h"

#include <algorithm>
#include <cmath>
#include <memory>

#include "access/block.h"
#include "access/results.h"
#include "kavoratb1c/algebra/products.h"
#include "kavoratb1c/decomp/inverses.h"
#include "numerics/scalar.h"

using namespace kav;

int cNewtonRaphson(matrix*& parameters, int p, const matrix* excluded, const matrix* gradient,
                   const matrix* hessian, double tolerance, matrix*& errors, matrix*& inverse, short limited,
                   double largest) {
  if (parameters == nullptr || p < 1) return 1;
  if (cCleanConstraintsAndInvert(p, excluded, hessian, inverse) < 0) return -1;
  results::keepAny(errors, p, 1);

  matrix step(p, 1, 0.0);
  M_ProductBV(inverse, p, p, gradient, &step);
  if (limited == kTrue) {
    double most = 0.0;
    for (int i = 0; i < p; ++i) most = std::max(most, std::fabs(step.values[i]));
    const double ratio = most / largest;
    for (int i = 0; i < p && ratio > 1.0; ++i) step.values[i] /= ratio;
  }

  const block::Values exclusions(excluded, p);
  int converged = 1;
  for (int i = 0; i < p; ++i) {
    if (exclusions[i] != 0.0) continue;
    const double before = parameters->getElement(i);
    const double after = before - step.values[i];
    if (std::fabs(before - after) > tolerance) converged = 0;
    parameters->setElement(i, after);
    errors->setElement(i, scalar::sqr(std::fabs(inverse->getElement(i, i))));
  }
  return converged;
}
