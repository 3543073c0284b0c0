// Covariances and correlations of the columns of tables.
//
// A table is a leading block: the first n rows and p columns of a container, whatever its own size; a cell
// outside the container reads -1.0. Missing: flagged, or holding the marker. Row flags: n, any non-zero
// leaves the row out; null leaves out none. Weights: n cells, null: 1.0 each; a weight of exactly 0.0 leaves
// its row out, too.
//
// Each pair of columns uses the rows that take part and have both cells present (pairwise deletion). The sums
// come from one pass per pair, with W the sum of the weights so far:
//
//     d_b = x_b - m_b,   C += (w - w^2 / W) d_b (x_a - m_a)
//     m_a += (w / W) (x_a - m_a),   m_b += (w / W) d_b
//
// The covariance is C divided by one of three denominators, c being the number of rows of the pair:
//
//     W            not unbiased
//     W - 1        unbiased and frequencyWeights: weights are frequencies
//     W - W / c    unbiased alone: weights of any scale; c - 1 for weights of 1.0
//
// unbiased and frequencyWeights are on only when -1.
//
// A correlation is the covariance divided by the root of the product of both variances, each variance over
// its own column's rows. Where that product is at most 1e-12 in absolute value the correlation is 0.0, even
// on the diagonal, which otherwise is 1.0. With missing cells covariance and variances are over different
// rows, so that a correlation may exceed 1 in absolute value.
//
// *refilled*: a container of just that shape is refilled with 0.0 (a flagged cell keeps 0.0: later writes to
// it are dropped); any other pointer receives a new container, which belongs to the caller. Results must be
// other containers than the operands.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Covariances or correlations of the columns.
///
/// Without a missing cell all pairs share their means; one matrix product then gives the sums, bit for bit.
///
/// @param result       p x p, refilled; a cell without a row comes out flagged, holding the marker
/// @param correlation  non-zero: correlations
/// @return 0
KAV_API int M_CovCorr(const matrix* a, int n, int p, matrix*& result, short correlation,
                      const short* rowFlags, const matrix* weights, short unbiased, short frequencyWeights);

/// M_CovCorr, and the mean, standard deviation and variance of each column over its own rows.
///
/// @param a            in; also out when centre or standardize is on: all rows are transformed, flagged cells
///                     keep what they hold
/// @param means        p x 1, refilled; flagged for a column without a row
/// @param stdevs       p x 1, refilled; flagged also where the denominator is not above 0
/// @param variances    as stdevs
/// @param centre       -1: the means are subtracted in place; a column whose mean is flagged is not centred
/// @param standardize  -1: the same, then divided by the standard deviations, whatever centre is; a column
///                     whose standard deviation is flagged or not above 0.0 becomes 0.0
/// @return 0
KAV_API int M_CovCorrAndMeanStDevVar(matrix*& a, int n, int p, matrix*& result, matrix*& means,
                                     matrix*& stdevs, matrix*& variances, short correlation,
                                     const short* rowFlags, const matrix* weights, short unbiased,
                                     short frequencyWeights, short centre, short standardize);

/// Covariances or correlations of the columns of a (n x p1) with those of b (n x p2).
///
/// @param result         p1 x p2, refilled; a cell without a row comes out flagged, holding the marker
/// @param correlation    non-zero: correlations
/// @param determination  non-zero: squared correlations, whatever correlation is
KAV_API void M_CorrMatMat(const matrix* a, int n, int p1, const matrix* b, int p2, matrix*& result,
                          const short* rowFlags, const matrix* weights, short correlation,
                          short determination, short unbiased, short frequencyWeights);

/// Correlations from covariances.
///
/// @param covariances  p x p; flags are ignored
/// @param result       p x p, refilled; where the covariance or one of the two variances is the marker the
///                     cell comes out flagged, holding the marker
KAV_API void M_CorrMatFromCovMat(const matrix* covariances, int p, matrix*& result);

/// Inertia about the origin: the sum of w[i] x_i x_i' over the rows x_i, missing cells by their values.
///
/// @param classes     n class values; null: every row is used
/// @param whichClass  -1: every row; otherwise the rows whose class value equals it
/// @param result      p x p, refilled
KAV_API void M_Inertie_W(const matrix* a, int n, int p, const matrix* weights, const matrix* classes,
                         double whichClass, matrix*& result);
