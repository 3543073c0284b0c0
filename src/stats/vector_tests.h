// Tests on the cells of a vector. Vectors as in vector_sums.h.
#pragma once

#include "core/matrix.h"
#include "platform/export.h"

/// Whether all cells are exactly equal. Missing cells are compared by their values.
///
/// @return -1 when n is below 2 or every cell equals the first, else 0; NaN equals nothing
KAV_API short V_IsConstant(const matrix* x, int n);
