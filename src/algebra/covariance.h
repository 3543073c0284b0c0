// Covariances, correlations, distances and tables of similarities.
//
// Tables are leading blocks, read as in products.h; options, weights, row flags and denominators as in
// standardization.h, but that a correlation option counts at any non-zero value. A row takes part in a pair
// of columns when it has no flag, a weight other than 0.0 and both cells present: each pair uses rows of its
// own (pairwise deletion). One pass for each pair, with W the weights so far:
//
//     d_b = x_b - m_b,   C += (w - w^2 / W) d_b (x_a - m_a)
//     m_a += (w / W) (x_a - m_a),   m_b += (w / W) d_b
//
// A correlation is the covariance by the root of both variances, each over its column's own rows; it is 0.0
// when their product is at most 1e-12 in absolute value, so for a constant column even on the diagonal, which
// otherwise is 1.0. With missing cells covariance and variances are over different rows, so that it may
// exceed 1.
#pragma once

#include "core/matrix.h"
#include "platform/export.h"

/// Covariances or correlations of the columns (prepared, p x p). In a table without a missing cell all pairs
/// share their means and the sums are one product of tables, with the same bits.
///
/// @return 0; a pair without a row comes out flagged, holding the marker
KAV_API int M_CovCorr(const matrix* a, int n, int p, matrix*& result, short correlation,
                      const short* rowFlags, const matrix* weights, short unbiased, short frequencyWeights);

/// The same with the columns' means, deviations and variances over their own rows (prepared, p x 1; flagged
/// where they cannot be computed).
///
/// @param centre standardize  -1 centres, or standardizes, the table in place by them
KAV_API int M_CovCorrAndMeanStDevVar(matrix*& a, int n, int p, matrix*& result, matrix*& means,
                                     matrix*& stdevs, matrix*& variances, short correlation,
                                     const short* rowFlags, const matrix* weights, short unbiased,
                                     short frequencyWeights, short centre, short standardize);

/// Covariances of the columns of a (n x p1) with those of b (n x p2) (prepared, p1 x p2).
///
/// @param correlation    non-zero: correlations
/// @param determination  non-zero: their squares, whatever correlation is
KAV_API void M_CorrMatMat(const matrix* a, int n, int p1, const matrix* b, int p2, matrix*& result,
                          const short* rowFlags, const matrix* weights, short correlation,
                          short determination, short unbiased, short frequencyWeights);

/// Correlations from covariances (prepared, p x p); a cell with the marker, or by a variance with it, comes
/// out flagged, holding the marker.
KAV_API void M_CorrMatFromCovMat(const matrix* covariances, int p, matrix*& result);

/// Scatter of the rows about 0, sum of w[i] x_i x_i' (prepared, p x p).
///
/// @param classes     n class values; null when every row counts
/// @param whichClass  -1 every row; else the rows of that class
KAV_API void M_Inertie_W(const matrix* a, int n, int p, const matrix* weights, const matrix* classes,
                         double whichClass, matrix*& result);

/// Squared weighted Euclidean distances between rows (prepared, n x n; p weights), or between columns when
/// byRows is 0 (p x p; n weights).
KAV_API void M_EuclidDist2(const matrix* a, int n, int p, matrix*& distances, const matrix* weights,
                           short byRows);

/// Similarities to dissimilarities in place: s(i,i) - s(i,j) for i < j, mirrored, the diagonal 0.0. Where one
/// of the two is missing both cells become the marker.
KAV_API void M_TransformSimToDissim(matrix*& s, int p);

/// @return 0 for dissimilarities (diagonal 0, others at least 0), 1 for similarities (the diagonal is the
///         largest of its row and column), apriori when both fit, -1 when neither does or a cell is missing
KAV_API int M_CheckIfSimOrDissim(const matrix* t, int n, int apriori);

/// Makes a table symmetric in place.
///
/// @param type  0 the mean of both triangles (the marker where one of them is), 1 upper to lower, 2 lower to
///              upper; others change nothing
KAV_API void M_Symmetrize(matrix* t, int n, int type);
