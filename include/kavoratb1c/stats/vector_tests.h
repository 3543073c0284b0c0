// Tests on the cells of a vector. Each returns -1 for true and 0 for false.
//
// A vector is the first n cells of a container in linear order, empty when n is below 1. A cell outside the
// container reads -1.0; a null container has no cells. An n beyond the container may throw std::bad_alloc. A
// cell is missing when its flag is set or its value is the marker, otherwise present. Unless stated otherwise
// missing cells enter by their values.
//
// Options (strictly, ignoreMissing) are on only when -1.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Whether all cells are exactly equal; true when n is below 2. NaN equals nothing.
KAV_API short V_IsConstant(const matrix* x, int n);

/// Whether every cell is exactly 0 or 1; true when n is below 1.
KAV_API short V_Is01(const matrix* x, int n);

/// Whether the cells can serve as weights: their sum is above 0, whatever the single cells are. The C form
/// (counts) also requires every cell to be a whole number below 2^53 in absolute value.
KAV_API short V_IsWeights(const matrix* x, int n);
KAV_API short V_IsCWeights(const matrix* x, int n);

/// Whether every cell is exactly 0 or 1 and at least one is 1.
KAV_API short V_IsIndicator(const matrix* x, int n);

/// Whether every cell is at least 0, or above 0 with strictly on; true when n is below 1, false with a NaN.
KAV_API short V_IsPositive(const matrix* x, int n, short strictly);

/// Whether the present cells ascend: each is at least the one before it, or larger with strictly on. True
/// with fewer than two present cells; otherwise false with a NaN.
KAV_API short V_IsSorted(const matrix* x, int n, short strictly);

/// Whether every cell lies in [lower, upper], or in (lower, upper) with strictly on. A missing cell makes the
/// result false unless ignoreMissing is on; a NaN always does. True when n is below 1.
KAV_API short V_IsInInterval(const matrix* x, int n, double lower, double upper, short strictly,
                             short ignoreMissing);

/// Whether x[i] < y[i] for every i; false when a cell on either side is missing. True when n is below 1.
KAV_API short V_V1inferiorV2(const matrix* x, int n, const matrix* y);

/// Whether w[i] > y(i, j) for every row i < n and column j < p; false when a cell on either side is missing.
/// True when n or p is below 1.
///
/// @param w  n cells, compared with every column; not weights
/// @param y  a table of which the leading n x p block is read
KAV_API short V_V1GreaterThanMatCols(const matrix* w, int n, const matrix* y, int p);
