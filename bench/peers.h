// Peers that need compiler flags or libraries of their own. One thread each.
#pragma once

#include <string>

namespace peers {

/// c = a . b by Eigen, compiled for AVX2 with fused multiply-add.
void productAvx2(const double* a, const double* b, int rows, int depth, int columns, double* c);

/// Decompositions of a table that stays as it is. Results are kept from being optimized away by what is
/// returned.
struct Decompositions {
  double (*eigenvectors)(const double* a, int n);
  double (*singularVectors)(const double* a, int n, int p);
  double (*cholesky)(const double* a, int n);
  double (*luFactors)(const double* a, int n);
  double (*determinant)(const double* a, int n);
  double (*inverseByFullPivoting)(const double* a, int n);
};

/// By Eigen, compiled for AVX2 with fused multiply-add.
const Decompositions& decompositionsAvx2();

/// Contestants by Armadillo over the system's LAPACK; none where it is not installed. A standardization is in
/// place, of a copy.
void enterArmadilloStatistics(const std::string& work, const double* a, int n, int p);
void enterArmadilloStandardization(const std::string& work, const double* a, int n, int p);
void enterArmadilloCovariance(const std::string& work, const double* a, int n, int p);
void enterArmadilloInverse(const std::string& work, const double* a, int n);

/// Least squares with an intercept.
void enterArmadilloLeastSquares(const std::string& work, const double* x, const double* y, int n, int p);

/// Contestants by the system's LAPACK; none where it is not installed.
void enterLapackEigenvectors(const std::string& work, const double* a, int n);
void enterLapackSingularVectors(const std::string& work, const double* a, int n, int p);
void enterLapackCholesky(const std::string& work, const double* a, int n);
void enterLapackLuFactors(const std::string& work, const double* a, int n);
void enterLapackInverse(const std::string& work, const double* a, int n);
void enterLapackLeastSquares(const std::string& work, const double* x, const double* y, int n, int p);

/// @param packed  the lower triangle row after row
void enterLapackPackedInverse(const std::string& work, const double* packed, int n);

/// Contestants by the GNU Scientific Library; none where it is not installed.
void enterGslEigenvectors(const std::string& work, const double* a, int n);
void enterGslSingularVectors(const std::string& work, const double* a, int n, int p);

}  // namespace peers
