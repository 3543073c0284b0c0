// Extremes of a vector.
//
// A vector is the first n cells of a container in linear order, empty when n is below 1. A cell outside the
// container reads -1.0; a null container has no cells. An n beyond the container may throw std::bad_alloc. A
// cell is missing when its flag is set or its value is the marker, otherwise present.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Smallest and largest of the cells that are present and not excluded, with one exception: the search
/// starts from the first cell that is not excluded, even when that one is missing; this is deliberate. A
/// marker in this first cell is the minimum, since no ordinary number is smaller, and the maximum only when
/// no later cell is used; a flagged cell enters by its value; a NaN is both minimum and maximum. A later
/// NaN is ignored.
///
/// @param exclude  n flags, any non-zero leaves the cell out; must not be null for V_Min and V_MinMax; for
///                 V_Max null excludes nothing
/// @param min max  out; may be null
/// @return the marker when every cell is excluded, n is below 1, or exclude is null where it must not be
KAV_API double V_Min(const matrix* x, int n, const short* exclude);
KAV_API double V_Max(const matrix* x, int n, const short* exclude);
KAV_API void V_MinMax(const matrix* x, int n, double* min, double* max, const short* exclude);

/// V_Max truncated toward zero; 0 where V_Max is the marker, -2147483648 for NaN and outside the range
/// of an integer.
KAV_API int V_MaxInt(const matrix* x, int n, const short* exclude);

/// Largest (smallest) present cell, and the position where it occurs first. A NaN is the result when it is
/// the first present cell, and is ignored later.
///
/// @param position  out, 1-based; 0 when no cell is present; may be null
/// @return the marker when no cell is present
KAV_API double V_MaxAndMaxPos(const matrix* x, int n, int* position);
KAV_API double V_MinAndMinPos(const matrix* x, int n, int* position);

/// Smallest positive difference between successive present cells.
///
/// @param sort  -1 sorts the cells in ascending order first (cost n log n), any other value leaves them
///              in index order
/// @return the marker when no finite difference is positive
KAV_API double V_TimeIntervalSize(const matrix* x, int n, short sort);
