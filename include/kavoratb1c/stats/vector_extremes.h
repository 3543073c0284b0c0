// Extremes of a vector. Vectors as in vector_sums.h.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Smallest and largest usable cell.
///
/// The first cell that is not excluded is where both start, taken as it is, even when it is missing; a later
/// cell counts when it is neither excluded nor missing. So a first cell with the marker is the minimum, as no
/// ordinary number is smaller, and the maximum only when every later cell is left out; a first cell that is
/// NaN is both.
///
/// @param exclude  n flags; required by V_Min and V_MinMax, null for V_Max excludes nothing
/// @param min max  out; null takes nothing
/// @return the marker when every cell is excluded, n is below 1 or required flags are null
KAV_API double V_Min(const matrix* x, int n, const short* exclude);
KAV_API double V_Max(const matrix* x, int n, const short* exclude);
KAV_API void V_MinMax(const matrix* x, int n, double* min, double* max, const short* exclude);

/// V_Max of integers; 0 when there is none.
KAV_API int V_MaxInt(const matrix* x, int n, const short* exclude);

/// Extreme of the present cells, and where it is found first.
///
/// @param position  out, 1-based; 0 when no cell is present; null takes nothing
/// @return the marker when no cell is present
KAV_API double V_MaxAndMaxPos(const matrix* x, int n, int* position);
KAV_API double V_MinAndMinPos(const matrix* x, int n, int* position);

/// Smallest positive difference between successive present cells.
///
/// @param sort  -1 takes them in ascending order, any other value takes them in their own order
/// @return the marker when there is none
KAV_API double V_TimeIntervalSize(const matrix* x, int n, short sort);
