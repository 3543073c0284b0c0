// Decompositions by Eigen. Internal to each source that includes it, for the instruction set that it is
// compiled for.
#pragma once

#include <Eigen/Dense>

#include "peers.h"

namespace by_eigen {

using Matrix = Eigen::MatrixXd;
using Map = Eigen::Map<const Matrix>;

static double eigenvectors(const double* a, int n) {
  const Eigen::SelfAdjointEigenSolver<Matrix> solver(Map(a, n, n));
  return solver.eigenvalues()(0) + solver.eigenvectors()(0, 0);
}

static double singularVectors(const double* a, int n, int p) {
  const Eigen::BDCSVD<Matrix> solver(Map(a, n, p), Eigen::ComputeThinU | Eigen::ComputeThinV);
  return solver.singularValues()(0) + solver.matrixU()(0, 0) + solver.matrixV()(0, 0);
}

static double cholesky(const double* a, int n) {
  const Eigen::LLT<Matrix> factor(Map(a, n, n));
  return factor.matrixLLT()(n - 1, n - 1);
}

static double luFactors(const double* a, int n) {
  const Eigen::PartialPivLU<Matrix> factors(Map(a, n, n));
  return factors.matrixLU()(n - 1, n - 1);
}

static double determinant(const double* a, int n) { return Map(a, n, n).determinant(); }

static double inverseByFullPivoting(const double* a, int n) {
  const Matrix inverse = Eigen::FullPivLU<Matrix>(Map(a, n, n)).inverse();
  return inverse(0, 0);
}

static const peers::Decompositions kAll = {eigenvectors, singularVectors, cholesky,
                                           luFactors,    determinant,     inverseByFullPivoting};

}  // namespace by_eigen
