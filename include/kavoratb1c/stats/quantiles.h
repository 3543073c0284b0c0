// Quantiles of a vector.
//
// A vector is the first n cells of a container in linear order, empty when n is below 1. A cell outside the
// container reads -1.0, for data and weights alike; a null container has no cells. An n beyond the container
// may throw std::bad_alloc. A cell is missing when its flag is set or its value is the marker, otherwise
// present. A missing cell that is used enters by its value; the marker sorts below every ordinary number.
//
// p is a fraction: below 0 it counts as 0, above 1 as 1; NaN returns NaN.
//
// Without weights the quantile interpolates between order statistics (Hyndman and Fan 1996, The American
// Statistician 50, 361-365, type 7), NaN sorted last:
//
//     h = (n - 1) p,   j = floor(h),   (1 - (h - j)) s[j] + (h - j) s[j + 1],   s[0] .. s[n-1] sorted
//
// With weights it is the first value in ascending order at which the cumulative weight exceeds p times the
// total weight; where the cumulative weight at a value equals that exactly, the mean of this value and the
// next. A NaN lies where an ordered multimap that is filled in index order has it.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Quantile of all n cells, missing ones by their values.
/// @return -1.0 when n is below 1
KAV_API double V_Quantile(const matrix* x, int n, double p);

/// V_Quantile of the cells that are present and not excluded.
///
/// @param exclude  n flags, any non-zero leaves the cell out; must not be null
/// @return the marker when no cell is left or exclude is null
KAV_API double V_QuantileM(const matrix* x, int n, const short* exclude, double p);

/// Weighted quantile of all n cells, missing ones by their values; equal to V_Quantile when all weights are
/// equal. A weight of 0.0 does not leave a cell out: p = 0 returns the smallest value whatever its weight, p
/// = 1 the largest.
///
/// @param w  n weights; must not be null
/// @return the marker when no cell other than the marker has a weight above 0.0, or w is null
KAV_API double V_QuantileW(const matrix* x, int n, const matrix* w, double p);

/// V_QuantileW of the cells that are present and not excluded.
///
/// @param exclude  n flags, any non-zero leaves the cell out; must not be null
/// @param w        n weights; must not be null
/// @return the marker when no cell with a weight above 0.0 is left, or exclude or w is null
KAV_API double V_QuantileMW(const matrix* x, int n, const short* exclude, const matrix* w, double p);

/// V_QuantileMW of one column of a table.
///
/// @param a       read at rows 1 .. rows of the column by linear index; a cell outside reads -1.0
/// @param column  1-based; below 1 every cell reads -1.0
KAV_API double M_QuantileMW(const matrix* a, int rows, int column, const short* exclude, const matrix* w,
                            double p);

/// Median absolute deviation: V_QuantileMW of abs(x[i] - median) for p = 0.5, over the cells of x that are
/// present and not excluded. It is not scaled for consistency with the standard deviation.
KAV_API double V_MedianAbsDev(const matrix* x, int n, double median, const short* exclude, const matrix* w);
