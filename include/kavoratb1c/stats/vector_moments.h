// Variances, shape and correlation of vectors. Vectors as in vector_sums.h.
//
// Means and variances come from one pass with the weighted update of West (1979): with W the sum of the
// weights so far, w[i] included,
//
//     d = x[i] - mean,   S += (w[i] - w[i]^2 / W) * d^2,   mean += (w[i] / W) * d
//
// The variance is S divided by one of three denominators, c being the number of cells used:
//
//     W            unless unbiased
//     W - 1        unbiased and biasIsOne: weights are frequencies
//     W - W / c    unbiased alone: weights have any scale; c - 1 for weights of 1.0
//
// Options count at -1 only; 1 is off. Flags and weights are required: without them results are the marker.
// A denominator of 0 is divided by as IEEE does.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Weighted variance of the cells that are present and not excluded.
///
/// A weight of 0.0 does not leave a cell out, unlike in V_MeanVar: as first weight it makes the result NaN,
/// later it counts in c.
KAV_API double V_Var(const matrix* x, int n, const short* exclude, const matrix* w, short unbiased,
                     short biasIsOne);

/// Square root of V_Var.
KAV_API double V_Stdev(const matrix* x, int n, const short* exclude, const matrix* w, short unbiased,
                       short biasIsOne);

/// Weighted mean and variance of the cells that are present, not excluded, and whose weight is not exactly
/// 0.0.
///
/// @param mean var  out; null takes nothing
/// @return -1; 0 without flags or weights
KAV_API short V_MeanVar(const matrix* x, int n, double* mean, double* var, const short* exclude,
                        const matrix* w, short unbiased, short biasIsOne);

/// The same with the square root of the variance.
KAV_API short V_MeanStdev(const matrix* x, int n, double* mean, double* stdev, const short* exclude,
                          const matrix* w, short unbiased, short biasIsOne);

/// Weighted mean, variance, skewness and excess kurtosis.
///
/// Used are the cells that are not excluded and whose weight is not exactly 0.0. Missing cells are not left
/// out: a flagged one counts by its value, 0.0 when it was flagged on arrival.
///
/// With M2, M3, M4 the weighted central sums, k = 1 when biasIsOne is set and W / c otherwise:
///
///     var   = M2 / (W - k), or M2 / W unless unbiased
///     skewP = (M3 / W) / var^1.5                 kurtP = (M4 / W) / var^2 - 3
///     skew  = sqrt((W - k) W) skewP / (W - 2 k)
///     kurt  = ((kurtP + 3) (k + W) - 3 (W - k)) (W - k) / ((W - 2 k) (W - 3 k))
///
/// var is the one just chosen, also in the population values. The marker comes out for: all but the mean when
/// W - k is 0; the four shapes when var is 0; skew when W is not above twice the mean weight W / c, whatever
/// k is; kurt when (W - 2 k)(W - 3 k) is not above 0.
///
/// @param mean ... kurt  out; null takes nothing
KAV_API void V_MeanVarSkewPKurtP(const matrix* x, int n, double* mean, double* var, double* skewP,
                                 double* kurtP, double* skew, double* kurt, const short* exclude,
                                 const matrix* w, short unbiased, short biasIsOne);

/// Weighted linear (Pearson) correlation of the rows where both cells are present, not excluded, and the
/// weight is not exactly 0.0.
///
/// @param unbiased biasIsOne  not used: the denominators of covariance and variances cancel
/// @return 0.0 when a side is constant; the marker when no row is usable
KAV_API double CorrelPearson(const matrix* x, const matrix* y, int n, const short* exclude, const matrix* w,
                             short unbiased, short biasIsOne);
