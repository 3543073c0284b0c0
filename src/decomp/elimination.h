// Elimination with full pivoting, the sweep operator, generalized and cleaned inverses.
//
// Tables are leading blocks, read as in algebra/products.h; results by the element rule.
#pragma once

#include "core/matrix.h"
#include "platform/export.h"

/// Solves A.X = B and inverts A, both in place, by Gauss-Jordan elimination with full pivoting (Press,
/// Teukolsky, Vetterling and Flannery 1992, section 2.1). The pivot is the largest cell in absolute value
/// whose row and column have not been used, of equal ones the last in row order.
/// Where NaN leaves no candidate the pass takes its own diagonal cell.
///
/// @param a  n x n
/// @param b  n x m
/// @return 0; -2 at a pivot of exactly 0.0, both tables part-way reduced
KAV_API int M_Gauss(matrix* a, int n, int m, matrix* b);

/// Sweeps a symmetric table on pivot k, in place. With d = s(k,k) and a = s(i,k) before:
///
///     s(k,k) = -1/d,   s(i,k) = a/|d|,   s(i,j) = s(i,j) - (a s(j,k)) sign(d),   i, j other than k
///
/// where s(j,k) is already divided. Of these s(i,j) what is below 1e-12 in absolute value becomes 0.0.
/// Dividing by |d| lets the pivot row keep its sign when d < 0. A pivot of 0.0 is not tested for.
///
/// @param s  packed, q(q+1)/2 cells: the lower triangle row after row, (i,j) at i(i-1)/2 + j. Throws
///           std::bad_alloc beyond 65,535 variables.
/// @param k  1-based; outside 1 .. q nothing happens
/// @return 0
KAV_API int M_Sweep(matrix* s, int q, int k);

/// Generalized inverse of a symmetric table, U.diag(1/w).U' of its singular values, into g (n x n).
///
/// Left singular vectors stand on both sides: for a table of cross products that is the Moore-Penrose
/// inverse.
///
/// @param tolerance  singular values from the first one below it on count as 0.0
/// @param rank       how many count; NaN does
/// @return 0; -1 on a negative status of the singular values, which there is none of
KAV_API int M_InvGeneralized(const matrix* a, int n, matrix* g, double tolerance, int& rank);

/// Inverts the variables that are not excluded; the others have rows and columns of 0.0 (prepared, n x n).
///
/// A single variable is inverted as a number, 0.0 to 1e12; more by matrix::inverse1, which
/// takes pivots up to 1e-8 for zero.
///
/// @param excluded  n cells: 0.0 kept, above 0.0 excluded. A negative cell is neither, so that the last rows
///                  of the smaller table are 0.0: pass none.
/// @return 0, also when all are excluded; -1 when singular, the inverse untouched
KAV_API int cCleanConstraintsAndInvert(int n, const matrix* excluded, const matrix* a, matrix*& inverse);

/// The same by M_InverseTriang.
/// @return 0; -1 when a diagonal cell that is kept is below 1e-12, the inverse untouched
KAV_API int cCleanConstraintsAndInvertTriang(int n, const matrix* excluded, const matrix* t, short lower,
                                             matrix*& inverse);
