// Grouping of ordered cells for maximum homogeneity (Fisher 1958, Journal of the American Statistical
// Association 53, 789-798).
//
// A vector is the first n cells of a container in linear order. A cell outside the container reads -1.0, for
// data and weights alike; a null container has no cells. An n beyond the container may throw std::bad_alloc.
//
// A cell is usable when its flag is clear, its value is not the marker, and its weight is not exactly 0.0.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Diameter of the group of cells from .. to: the weighted sum of squared deviations of its usable cells from
/// their weighted mean.
///
/// @param w        n weights; must not be null
/// @param from to  1-based and inclusive, clipped to 1 .. n
/// @return the diameter, in squared units of x; 0.0 for a group of fewer than two usable cells; the marker
///         when w is null and n is not below 1
KAV_API double V_FischerDist(const matrix* x, int n, const matrix* w, int from, int to);

/// The best split of the group of cells from .. to in two: the one with the smallest sum of the two
/// diameters. Operands as for V_FischerDist. Cost linear in the size of the group.
///
/// @param within  out: that sum, the marker when there is no split; may be null
/// @return the last position of the first part, 1-based, the first of several equally good splits; 0 when the
///         group has fewer than two cells or w is null
KAV_API int V_FischerBisec(const matrix* x, int n, const matrix* w, int from, int to, double* within);
