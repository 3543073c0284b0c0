// Gauss-Jordan elimination with full pivoting, and the sweep operator.
//
// Operands are leading blocks; a cell outside the container reads -1.0, a flagged cell keeps what it holds.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Solves A.X = B and inverts A, both in place, by Gauss-Jordan elimination with full pivoting (Press,
/// Teukolsky, Vetterling and Flannery 1992, section 2.1). The pivot is the largest cell in absolute value
/// whose row and column have not been used, of equal ones the last in row order. Where NaN leaves no
/// candidate, the pass takes its own diagonal cell.
///
/// @param a  n x n, in and out: A, then its inverse
/// @param b  n x m, in and out: B, then X
/// @return 0; -2 at a pivot of exactly 0.0, with both part-way reduced
KAV_API int M_Gauss(matrix* a, int n, int m, matrix* b);

/// Sweeps a symmetric matrix on pivot k, in place. With d = s(k,k) and a = s(i,k) before:
///
///     s(k,k) = -1/d,   s(i,k) = a/|d|,   s(i,j) = s(i,j) - (a s(j,k)) sign(d),   i, j other than k
///
/// where s(j,k) is already divided. A cell s(i,j) below 1e-12 in absolute value becomes 0.0. Dividing by |d|
/// lets the pivot row keep its sign when d < 0. A pivot of 0.0 is not tested for.
///
/// @param s  packed, q(q+1)/2 cells: the lower triangle row by row, (i,j) at position i(i-1)/2 + j. Throws
///           std::bad_alloc beyond 65,535 variables.
/// @param k  1-based; outside 1 .. q nothing happens
/// @return 0
KAV_API int M_Sweep(matrix* s, int q, int k);
