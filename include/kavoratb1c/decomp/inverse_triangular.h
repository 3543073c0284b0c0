// Inverses of triangular matrices.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Inverse of a triangular matrix.
///
///     lower   Inv(i,j) = -(sum T(i,k) Inv(k,j)) / T(i,i),   k = j .. i-1 ascending
///     upper   Inv(i,j) = -(sum Inv(i,k) T(k,j)) / T(j,j),   k = i .. j-1 ascending
///
/// @param t          leading n x n block; a cell outside the container reads -1.0
/// @param lower      non-zero: T is lower triangular
/// @param inverse    out, n x n, another container than t; its other triangle is not written. The container
///                   is kept; a null pointer receives a new one. A flagged cell keeps what it holds, and
///                   later sums take that.
/// @param tolerance  a diagonal cell below it in absolute value has no reciprocal
/// @return 0; -1 at such a cell, with the reciprocals before it written
KAV_API int M_InverseTriang(const matrix* t, int n, short lower, matrix*& inverse, double tolerance);
