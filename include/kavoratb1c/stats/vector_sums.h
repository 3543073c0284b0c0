// Sums, means and counts over a vector.
//
// A vector is the first n cells of a container in flat order, column after column. Reads past the container's
// end give -1.0, for data and weights alike; a null container has no cells. A cell is present when its flag
// is clear and its value is not the marker. Sums are added in index order. Below 1 an n means no cells; one
// beyond the container's cells takes memory for those outside (std::bad_alloc).
#pragma once

#include "kavoratb1c/Smatrix.h"
#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Weighted sum of the cells that are not excluded.
///
///     sum(x[i] * w[i]),   i = 0 .. n-1
///
/// Missing cells are not left out: one that was flagged on arrival holds 0.0 and adds nothing, an unflagged
/// marker is added as it stands.
///
/// @param exclude  n flags, any non-zero leaves the cell out; null excludes nothing
/// @param w        n weights; null stands for weights of 1.0
KAV_API double V_Sum(const matrix* x, int n, const short* exclude, const matrix* w);

/// V_Sum with nothing excluded and weights of 1.0.
KAV_API double V_Sum2(const matrix* x, int n);

/// V_Sum2 of the cells from .. to, 1-based and inclusive, cut to 1 .. n.
KAV_API double V_SumFromTo(const matrix* x, int n, int from, int to);

/// Sum of the squares of the present cells; the W form weighted, w[i] * (x[i] * x[i]).
KAV_API double V_SumSq(const matrix* x, int n);
KAV_API double V_SumSqW(const matrix* x, int n, const matrix* w);

/// Sum of (x[i] - y[i])^2 over all cells, missing ones by their values.
KAV_API double V_DiffSq(const matrix* x, int n, const matrix* y);

/// Scalar product of all cells, missing ones by their values.
KAV_API double V_ProductTrV1V2(const matrix* x, int n, const matrix* y);

/// Weighted mean of the usable cells.
///
///     sum(x[i] * w[i]) / sum(w[i]),   i = 0 .. n-1
///
/// Usable: exclude[i] == 0, the cell is present, w[i] != 0.0.
///
/// @param exclude  n flags, required
/// @param w        n weights, required
/// @return the mean in the units of x; NaN (0/0) when n is below 1 or no cell is usable, not the marker; the
///         marker when exclude or w is null and n is not below 1
KAV_API double V_Mean(const matrix* x, int n, const short* exclude, const matrix* w);

/// V_Mean of the absolute values.
KAV_API double V_MeanAbs(const matrix* x, int n, const short* exclude, const matrix* w);

/// Number of present cells that equal value exactly, as a double.
KAV_API double V_NbIf(const matrix* x, int n, double value);

/// Sum of the cells whose criterion cell equals value exactly, both present; the marker when n is below 1.
KAV_API double V_SumIf(const matrix* x, int n, const matrix* criterion, double value);

/// Mean and variance of the same cells, unweighted.
///
/// @param biased  -1 divides the variance by the number of cells, anything else by one less
/// @return the marker when the divisor is 0
KAV_API double V_MeanIf(const matrix* x, int n, const matrix* criterion, double value);
KAV_API double V_VarIf(const matrix* x, int n, const matrix* criterion, double value, short biased);

/// Number of missing cells: flagged, or value not above the marker (so -infinity counts).
KAV_API int V_NbMissing(const matrix* x, int n);

/// Number of empty strings.
KAV_API int V_NbMissing(const Smatrix* x, int n);

/// n - V_NbMissing; n itself when it is below 1.
KAV_API int V_NbNonMissing(const matrix* x, int n);

/// Number of cells that are not 0.0; in the second form of the cells from .. to, 1-based and inclusive, cut
/// to 1 .. n.
KAV_API int V_NbTrue(const matrix* x, int n);
KAV_API int V_NbTrueFromTo(const matrix* x, int n, int from, int to);
