// Sums and means of a vector.
//
// A vector is the first n cells of a container in flat order, column after column. Reads past the container's
// end give -1.0, for data and weights alike; a null container has no cells.
#pragma once

#include "core/matrix.h"
#include "platform/export.h"

/// Weighted sum of the cells that are not excluded.
///
///     sum(x[i] * w[i]),   i = 0 .. n-1, added in index order
///
/// Missing cells are not left out: one that was flagged on arrival holds 0.0 and adds nothing, an unflagged
/// marker is added as it stands.
///
/// @param n        cells visited; below 1 the sum is 0.0
/// @param exclude  n flags, any non-zero leaves the cell out; null excludes nothing
/// @param w        n weights; null stands for weights of 1.0
KAV_API double V_Sum(const matrix* x, int n, const short* exclude, const matrix* w);

/// V_Sum with nothing excluded and weights of 1.0.
KAV_API double V_Sum2(const matrix* x, int n);

/// Weighted mean of the usable cells.
///
///     sum(x[i] * w[i]) / sum(w[i]),   i = 0 .. n-1, each added in index order
///
/// Usable: exclude[i] == 0, the cell is present (flag clear, value not the marker), w[i] != 0.0.
///
/// @param exclude  n flags, required
/// @param w        n weights, required
/// @return the mean in the units of x; NaN (0/0) when n is below 1 or no cell is usable, not the marker; the
/// marker
///         when exclude or w is null and n is not below 1
KAV_API double V_Mean(const matrix* x, int n, const short* exclude, const matrix* w);
