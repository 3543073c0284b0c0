// Logarithms of the cells of a table, in place.
//
// A table is a leading block: the first n rows and p columns of a container, whatever its own size. A cell
// that is missing (flagged, or holding the marker) is left unchanged.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Natural logarithm: minus infinity for 0.0, NaN for a negative cell.
///
/// @param rowFlags  n flags, any non-zero leaves the row unchanged; null flags none
KAV_API void M_LogMatrix(matrix*& a, int n, int p, const short* rowFlags);

/// Logarithm to base 10, in every row.
KAV_API void M_Log10Matrix(matrix* a, int n, int p);
