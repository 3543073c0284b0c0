// Variances, shape and correlation of vectors.
//
// A vector is the first n cells of a container in linear order, empty when n is below 1. A cell outside the
// container reads -1.0, for data and weights alike; a null container has no cells. An n beyond the
// container may throw std::bad_alloc. A cell is missing when its flag is set or its value is the marker,
// otherwise present.
//
// Means and variances are computed in one pass by the weighted update of West (1979, Communications of the
// ACM 22, 532-535). With W the sum of the weights so far, w[i] included,
//
//     d = x[i] - mean,   S += (w[i] - w[i]^2 / W) * d^2,   mean += (w[i] / W) * d
//
// The variance is S divided by one of three denominators, with W the sum of all weights and c the number
// of cells used:
//
//     W            unbiased off
//     W - 1        unbiased and biasIsOne on: weights are frequencies
//     W - W / c    unbiased on, biasIsOne off: weights have any scale; c - 1 for weights of 1.0
//
// Division by a denominator of 0.0 follows IEEE 754. Parameters shared by all:
//
//     exclude             n flags, any non-zero leaves the cell out
//     w                   n weights
//     unbiased biasIsOne  on only when -1
//
// Neither exclude nor w may be null: the results are then the marker, unless n is below 1.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Weighted variance of the cells that are present and not excluded.
///
/// Unlike in V_MeanVar a weight of 0.0 does not leave a cell out: as the first weight used it makes the
/// result NaN, later it only counts in c.
KAV_API double V_Var(const matrix* x, int n, const short* exclude, const matrix* w, short unbiased,
                     short biasIsOne);

/// Standard deviation: square root of V_Var.
KAV_API double V_Stdev(const matrix* x, int n, const short* exclude, const matrix* w, short unbiased,
                       short biasIsOne);

/// Weighted mean and variance of the cells that are present, not excluded, and of a weight not exactly 0.0.
/// With no such cell the mean is 0.0, unlike that of V_Mean.
///
/// @param mean var  out; may be null
/// @return -1; 0 when exclude or w is null and n is not below 1
KAV_API short V_MeanVar(const matrix* x, int n, double* mean, double* var, const short* exclude,
                        const matrix* w, short unbiased, short biasIsOne);

/// V_MeanVar with the standard deviation, the square root of the variance, in its place.
KAV_API short V_MeanStdev(const matrix* x, int n, double* mean, double* stdev, const short* exclude,
                          const matrix* w, short unbiased, short biasIsOne);

/// Weighted mean, variance, skewness and excess kurtosis of the cells that are not excluded and of a weight
/// not exactly 0.0. Missing cells are not left out: a flagged one enters by its value, which is 0.0 when it
/// arrived missing.
///
/// With M2, M3, M4 the weighted central sums, and k = 1 when biasIsOne is on, W / c otherwise:
///
///     var   = M2 / (W - k), or M2 / W with unbiased off
///     skewP = (M3 / W) / var^1.5                 kurtP = (M4 / W) / var^2 - 3
///     skew  = sqrt((W - k) W) skewP / (W - 2 k)
///     kurt  = ((kurtP + 3) (k + W) - 3 (W - k)) (W - k) / ((W - 2 k) (W - 3 k))
///
/// The population values skewP and kurtP also use var as chosen by unbiased. The marker is the result for
///
///     var and all four shapes   when unbiased is on and W - k is 0
///     all four shapes           when var is 0
///     skew                      when W is at or below 2 W / c, also with biasIsOne on
///     kurt                      when (W - 2 k)(W - 3 k) is at or below 0
///
/// @param mean ... kurt  out; may be null
KAV_API void V_MeanVarSkewPKurtP(const matrix* x, int n, double* mean, double* var, double* skewP,
                                 double* kurtP, double* skew, double* kurt, const short* exclude,
                                 const matrix* w, short unbiased, short biasIsOne);

/// Weighted linear correlation (Pearson) over the rows where both cells are present, not excluded, and of a
/// weight not exactly 0.0.
///
/// @param unbiased biasIsOne  ignored: the denominators of covariance and variances cancel
/// @return 0.0 when x or y is constant over these rows; the marker when there is no such row
KAV_API double CorrelPearson(const matrix* x, const matrix* y, int n, const short* exclude, const matrix* w,
                             short unbiased, short biasIsOne);
