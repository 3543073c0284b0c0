// Quantiles of a vector. Vectors as in vector_sums.h.
//
// p is a fraction: below 0 it counts as 0, above 1 as 1; NaN gives NaN. The marker is the lowest of numbers
// but for -infinity.
// Without weights cells are in the order of SortQVector, NaN last; with weights in that of SortQ. Without
// weights the quantile interpolates between order statistics
// (Hyndman and Fan 1996, The American Statistician 50, 361-365, type 7):
//
//     h = (n - 1) p,   j = floor(h),   (1 - (h - j)) s[j] + (h - j) s[j + 1],   s[0] .. s[n-1] sorted
//
// With weights it is the first value at which the cumulative weight passes p times the total, the mean of two
// neighbours when it lands on it exactly.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Quantile of all n cells, missing ones by their values.
/// @return -1.0 when n is below 1
KAV_API double V_Quantile(const matrix* x, int n, double p);

/// V_Quantile of the cells that are present and not excluded.
///
/// @param exclude  n flags, required
/// @return the marker when no cell is left, or exclude is null
KAV_API double V_QuantileM(const matrix* x, int n, const short* exclude, double p);

/// Weighted quantile of all n cells, missing ones by their values; V_Quantile when all weights are equal or n
/// is below 2. Weights of 0.0 do not leave a cell out: p = 0 gives the smallest value whatever its weight.
///
/// @param w  n weights, required
/// @return the marker when no cell other than the marker has a weight above 0.0, or w is null
KAV_API double V_QuantileW(const matrix* x, int n, const matrix* w, double p);

/// V_QuantileW of the cells that are present and not excluded.
///
/// @param exclude w  n each, required
/// @return the marker when no cell is left with a weight above 0.0, or exclude or w is null
KAV_API double V_QuantileMW(const matrix* x, int n, const short* exclude, const matrix* w, double p);

/// V_QuantileMW of a column (1-based) of a table, cells read by linear index.
KAV_API double M_QuantileMW(const matrix* a, int rows, int column, const short* exclude, const matrix* w,
                            double p);

/// Weighted median of abs(x[i] - median) over the cells that are present and not excluded, as V_QuantileMW
/// has it. Without a factor of consistency.
KAV_API double V_MedianAbsDev(const matrix* x, int n, double median, const short* exclude, const matrix* w);
