// Grouping of ordered cells for maximum homogeneity (Fisher 1958, Journal of the American Statistical
// Association 53, 789-798). Vectors as in vector_sums.h.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Diameter of the group of cells from .. to, 1-based and inclusive, cut to 1 .. n: the weighted sum of the
/// squared deviations of its usable cells from their mean. Usable: present, weight not exactly 0.0.
///
/// @param w  n weights, required; without them the result is the marker
/// @return 0.0 for a group of fewer than two usable cells
KAV_API double V_FischerDist(const matrix* x, int n, const matrix* w, int from, int to);

/// The best cut of that group in two: the sum of both diameters is smallest. Cost linear.
///
/// @param within  out: that sum; the marker when there is nothing to cut; null takes nothing
/// @return the last position of the first part, 1-based, the first of several equally good; 0 when the group
///         has fewer than two cells or w is null
KAV_API int V_FischerBisec(const matrix* x, int n, const matrix* w, int from, int to, double* within);
