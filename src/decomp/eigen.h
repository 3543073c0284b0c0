// Eigenvalues of symmetric tables, and what factor analyses make of them.
#pragma once

#include "core/matrix.h"
#include "platform/export.h"

/// Eigenvalues and unit eigenvectors of a symmetric table, by Householder reduction to a tridiagonal one and
/// QL steps with implicit shifts (Press, Teukolsky, Vetterling and Flannery 1992, sections 11.2 and 11.3).
///
/// Signs of eigenvectors are those that the rotations give.
///
/// @param a        n x n; only its lower triangle counts
/// @param values   prepared, n x 1
/// @param vectors  prepared, n x n: column k belongs to value k
/// @param sort     non-zero: decreasing values, by SortQ
/// @return 0; -1 when a value needs more than 28 steps: both results are part-way then
KAV_API int M_Eigen(const matrix* a, matrix*& values, matrix*& vectors, int n, int sort);

/// How many eigenvalues, in decreasing order, are kept, and how many are to be shown.
///
/// Small ones first: from the last one on, while more than one is kept, values below `minimum` are dropped.
/// Then the fewest of four counts are selected: all kept; the first whose percentages add up to `cumulative`;
/// at most `most`; those not below kaiser + 1e-12. A criterion that is not above 0 asks for nothing.
///
/// @param values       n cells
/// @param drop         on only when -1; off, only the last value is looked at, and set to 0.0 when it is
///                     below the minimum
/// @param percentages  prepared, n x 1: of the sum of the kept values
/// @return 0
KAV_API int FilterEigen(matrix*& values, int n, short drop, double minimum, double cumulative, int most,
                        double kaiser, int& kept, int& selected, matrix*& percentages);

/// Squared cosines of rows with axes, f(i,j)^2 by the row's sum of squares (n x q, kept; a null pointer
/// receives a new one). Rows of zeros are left as they are.
KAV_API void cComputeCosines(const matrix* f, int n, int q, matrix*& cosines);

/// Scores and loadings scaled against each other for a biplot, their products unchanged. With g(k) = value(k)
/// to the power `exponent`, times `scale`:
///
///     newScores(i,k) = scores(i,k) g(k),   newLoadings(j,k) = loadings(j,k) / g(k),   k = 1 .. axes
///
/// An eigenvalue of 0.0 gives 0.0 in both.
///
/// @param scores      n x axes; supplementary ones nSupp x axes, null for none
/// @param loadings    p x axes
/// @param newScores   prepared, n + nSupp x axes: the supplementary rows follow the others
/// @param newLoadings prepared, p x axes
KAV_API void BiplotTransData(const matrix* scores, const matrix* supplementary, const matrix* loadings, int n,
                             int nSupp, int p, int axes, const matrix* values, double scale, double exponent,
                             matrix*& newScores, matrix*& newLoadings);
