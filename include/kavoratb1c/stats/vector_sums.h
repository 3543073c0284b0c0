// Sums, means and counts over a vector.
//
// A vector is the first n cells of a container in linear order, empty when n is below 1. A cell outside the
// container reads -1.0, for data and weights alike; a null container has no cells. An n beyond the container
// allocates memory for the cells outside (std::bad_alloc). A cell is missing when its flag is set or its
// value is the marker, otherwise present. Sums are added in index order.
#pragma once

#include "kavoratb1c/Smatrix.h"
#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Weighted sum of the cells that are not excluded.
///
///     sum(x[i] * w[i]),   i = 0 .. n-1
///
/// Missing cells enter by their values: one that arrived missing holds 0.0 and adds nothing, an unflagged
/// marker is added like any number.
///
/// @param exclude  n flags, any non-zero leaves the cell out; null excludes nothing
/// @param w        n weights; null stands for weights of 1.0
KAV_API double V_Sum(const matrix* x, int n, const short* exclude, const matrix* w);

/// V_Sum with nothing excluded and weights of 1.0.
KAV_API double V_Sum2(const matrix* x, int n);

/// V_Sum2 of the cells from .. to, 1-based and inclusive, clipped to 1 .. n.
KAV_API double V_SumFromTo(const matrix* x, int n, int from, int to);

/// Sum of the squares of the present cells; the W form weighted, w[i] * (x[i] * x[i]), with n weights.
KAV_API double V_SumSq(const matrix* x, int n);
KAV_API double V_SumSqW(const matrix* x, int n, const matrix* w);

/// Sum of squared differences (x[i] - y[i])^2 over all cells, missing ones by their values.
KAV_API double V_DiffSq(const matrix* x, int n, const matrix* y);

/// Scalar product of x and y over all cells, missing ones by their values.
KAV_API double V_ProductTrV1V2(const matrix* x, int n, const matrix* y);

/// Weighted mean of the usable cells.
///
///     sum(x[i] * w[i]) / sum(w[i]),   i = 0 .. n-1
///
/// Usable: exclude[i] == 0, the cell is present, w[i] != 0.0.
///
/// @param exclude  n flags; must not be null
/// @param w        n weights; must not be null
/// @return the mean in the units of x; NaN (0/0), not the marker, when n is below 1 or no cell is usable; the
///         marker when exclude or w is null and n is not below 1
KAV_API double V_Mean(const matrix* x, int n, const short* exclude, const matrix* w);

/// V_Mean of the absolute values.
KAV_API double V_MeanAbs(const matrix* x, int n, const short* exclude, const matrix* w);

/// Number of present cells that equal value exactly, as a double.
KAV_API double V_NbIf(const matrix* x, int n, double value);

/// Sum of the present cells whose criterion cell is present and equals value exactly.
///
/// @param criterion  n cells
/// @return 0.0 when there is no such cell; the marker when n is below 1
KAV_API double V_SumIf(const matrix* x, int n, const matrix* criterion, double value);

/// Unweighted mean and variance of the cells that V_SumIf adds.
///
/// @param biased  -1 divides the variance by the number of cells, any other value by that number less one
/// @return the marker when there is no such cell, or the variance denominator is 0
KAV_API double V_MeanIf(const matrix* x, int n, const matrix* criterion, double value);
KAV_API double V_VarIf(const matrix* x, int n, const matrix* criterion, double value, short biased);

/// Number of missing cells, and of values below the marker (-infinity among them). NaN is not counted.
KAV_API int V_NbMissing(const matrix* x, int n);

/// Number of empty strings; a cell outside the container is one.
KAV_API int V_NbMissing(const Smatrix* x, int n);

/// n - V_NbMissing; n itself when it is below 1.
KAV_API int V_NbNonMissing(const matrix* x, int n);

/// Number of cells that are not 0.0, missing ones by their values; V_NbTrueFromTo counts only the cells from
/// .. to, 1-based and inclusive, clipped to 1 .. n.
KAV_API int V_NbTrue(const matrix* x, int n);
KAV_API int V_NbTrueFromTo(const matrix* x, int n, int from, int to);
