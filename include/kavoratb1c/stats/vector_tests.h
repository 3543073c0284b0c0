// Tests on the cells of a vector, -1 for true and 0 for false. Vectors as in vector_sums.h.
//
// Missing cells count by their values unless said otherwise. An option counts at -1 only.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Whether all cells are exactly equal; true when n is below 2. NaN equals nothing.
KAV_API short V_IsConstant(const matrix* x, int n);

/// Whether every cell is exactly 0 or 1; true when n is below 1.
KAV_API short V_Is01(const matrix* x, int n);

/// Whether the cells can be weights: their sum is above 0. Single cells are not looked at; C: counted
/// weights, every cell is a whole number.
KAV_API short V_IsWeights(const matrix* x, int n);
KAV_API short V_IsCWeights(const matrix* x, int n);

/// Whether every cell is exactly 0 or 1 and one of them is 1.
KAV_API short V_IsIndicator(const matrix* x, int n);

/// Whether every cell is at least 0, above 0 when strictly; true when n is below 1, false with a NaN.
KAV_API short V_IsPositive(const matrix* x, int n, short strictly);

/// Whether every present cell is at least the present one before it; strictly: larger. False with a NaN,
/// unless it is alone.
KAV_API short V_IsSorted(const matrix* x, int n, short strictly);

/// Whether every cell lies in [lower, upper], in (lower, upper) when strictly. A missing cell makes it false
/// unless ignoreMissing.
KAV_API short V_IsInInterval(const matrix* x, int n, double lower, double upper, short strictly,
                             short ignoreMissing);

/// Whether x[i] < y[i] for every i; a missing cell on either side makes it false.
KAV_API short V_V1inferiorV2(const matrix* x, int n, const matrix* y);

/// Whether w[i] > y(i, j) for every row i < n and column j < p; a missing cell on either side makes it false.
KAV_API short V_V1GreaterThanMatCols(const matrix* w, int n, const matrix* y, int p);
