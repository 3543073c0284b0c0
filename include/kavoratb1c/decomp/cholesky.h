// Cholesky factors of symmetric matrices.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Lower triangular L with A = L.L', row by row of A:
///
///     L(i,i) = sqrt(A(i,i) - sum L(i,k)^2),   L(j,i) = (A(i,j) - sum L(i,k) L(j,k)) / L(i,i),   j > i
///
/// Terms are subtracted one by one, k = i-1 down to 1.
///
/// @param a  leading n x n block; only A(i,j) with j >= i is read; a cell outside the container reads -1.0
/// @param l  out, n x n, another container than a; refilled with 0.0, or replaced by a new one when its shape
///           differs; a flagged cell keeps 0.0, and later sums take that
/// @return 0; -1 as soon as a term below the root is negative, or a root of 0.0 would divide: the columns
///         before it are complete then. A root of 0.0 in the last row divides nothing and is accepted. n < 1:
///         0.
KAV_API int M_CholDecomp(const matrix* a, int n, matrix*& l);

/// The same for the rows and columns that are kept, at their places in L; the others are 0.0.
///
/// @param excluded  n cells: 0.0 keeps row and column, any other value excludes both
/// @return 0, or -1 with L unchanged
KAV_API int M_CholDecompCleaned(const matrix* a, int n, const matrix* excluded, matrix*& l);
