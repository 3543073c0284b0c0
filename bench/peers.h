// Peers that need compiler flags or libraries of their own.
#pragma once

#include <string>

namespace peers {

/// c = a . b by Eigen, compiled for AVX2 with fused multiply-add.
void productAvx2(const double* a, const double* b, int rows, int depth, int columns, double* c);

/// Contestants by Armadillo over the system's LAPACK; none where it is not installed.
void enterArmadilloStatistics(const std::string& work, const double* a, int n, int p);
void enterArmadilloCovariance(const std::string& work, const double* a, int n, int p);
void enterArmadilloInverse(const std::string& work, const double* a, int n);

}  // namespace peers
