// What factor analyses make of eigenvalues and coordinates.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// How many eigenvalues, in decreasing order, are kept, and how many are to be displayed.
///
/// First, from the last one on, values below `minimum` are dropped while more than one is kept. Then the
/// smallest of four counts is selected: all kept; the first whose percentages add up to `cumulative`; at most
/// `most`; those not below kaiser + 1e-12. A criterion that is not above 0 is ignored.
///
/// @param values       n cells, in and out
/// @param drop         on only when -1. Off, only the last value is examined, and set to 0.0 when it is below
///                     the minimum.
/// @param kept         out
/// @param selected     out
/// @param percentages  out, n x 1, refilled (a container of another shape is replaced by a new one): of the
///                     sum of the kept values
/// @return 0
KAV_API int FilterEigen(matrix*& values, int n, short drop, double minimum, double cumulative, int most,
                        double kaiser, int& kept, int& selected, matrix*& percentages);

/// Squared cosines of rows with axes: f(i,j)^2 divided by the row's sum of squares.
///
/// @param f        n x q coordinates
/// @param cosines  out, n x q; rows of zeros are not written. The container is kept; a null pointer receives
///                 a new one.
KAV_API void cComputeCosines(const matrix* f, int n, int q, matrix*& cosines);

/// Scores and loadings scaled against each other for a biplot, their products unchanged. With g(k) = value(k)
/// to the power `exponent`, times `scale`:
///
///     newScores(i,k) = scores(i,k) g(k),   newLoadings(j,k) = loadings(j,k) / g(k),   k = 1 .. axes
///
/// An eigenvalue of 0.0 gives 0.0 in both.
///
/// @param scores       n x axes
/// @param supplementary nSupp x axes scores of supplementary rows; null for none
/// @param loadings     p x axes
/// @param values       eigenvalues, one for each axis
/// @param newScores    out, (n + nSupp) x axes, refilled (a container of another shape is replaced by a new
///                     one): the supplementary rows follow the others
/// @param newLoadings  out, p x axes, refilled likewise
KAV_API void BiplotTransData(const matrix* scores, const matrix* supplementary, const matrix* loadings, int n,
                             int nSupp, int p, int axes, const matrix* values, double scale, double exponent,
                             matrix*& newScores, matrix*& newLoadings);
