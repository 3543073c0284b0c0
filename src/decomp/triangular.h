// Triangular factors of square tables, determinants, triangular inverses.
//
// Tables are leading n x n blocks, read as in algebra/products.h. Results are n x n: prepared (a container of
// that shape is refilled with 0.0, any other pointer receives a new one), or where it says `kept` in a
// container that keeps its cells (a null pointer receives a new one). A flagged result cell keeps what it
// holds, and that is what later sums take. Exclusions are n cells: 0.0 keeps row and column, anything else
// leaves both out.
#pragma once

#include "core/matrix.h"
#include "platform/export.h"

/// Lower triangular L with A = L.L' (prepared), row by row of A:
///
///     L(i,i) = sqrt(A(i,i) - sum L(i,k)^2),   L(j,i) = (A(i,j) - sum L(i,k) L(j,k)) / L(i,i),   j > i
///
/// Terms are taken off one by one, k = i-1 down to 1. Only A(i,j) with j >= i is read.
///
/// @return 0; -1 as soon as a term below the root is negative, or a root of 0.0 would divide: columns before
///         it are complete then. A root of 0.0 in the last row divides nothing and is accepted. n < 1: 0.
KAV_API int M_CholDecomp(const matrix* a, int n, matrix*& l);

/// The same for the rows and columns that are kept, in their places in L; the others are 0.0.
/// @return 0, or -1 with L untouched
KAV_API int M_CholDecompCleaned(const matrix* a, int n, const matrix* excluded, matrix*& l);

/// LU factors of A with rows exchanged, in its place: L below a diagonal of ones that is not stored, U from
/// the diagonal on. Crout's method with implicitly scaled partial pivoting (Press, Teukolsky, Vetterling and
/// Flannery 1992, section 2.3): the pivot is the largest candidate by its row's largest cell, of equal ones
/// the last. Terms are taken off one by one in ascending order; cells below a pivot are multiplied by its
/// reciprocal.
///
/// @param index   n cells (kept): the row, 1-based, that was exchanged with row j
/// @param parity  1.0, or -1.0 after an odd number of exchanges
/// @param status  0; -1 a row of zeros, A untouched; 1 a column without a candidate (all NaN), A part-way. A
///                pivot of exactly 0.0 becomes 1e-20 and is no failure.
KAV_API void M_LUDecomp(matrix*& a, int n, matrix*& index, double& parity, short& status);

/// The product of the diagonal, from the sum of its logarithms; exactly 0.0 where a cell is.
/// @param status  0
/// @return 1.0 for n < 1
KAV_API double M_DeterminantTriang(const matrix* t, int n, short& status);

/// The determinant from the LU factors of a copy.
/// @param status  of M_LUDecomp: for any but 0 the result is 0.0. Out of memory -1 too, and the result is
///                1.79769313486231e+308.
KAV_API double M_Determinant(const matrix* a, int n, short& status);

/// The determinant of the rows and columns that are kept.
KAV_API double M_DeterminantCleaned(const matrix* a, int n, const matrix* excluded, short& status);

/// The inverse of a triangular table (kept; the other triangle is not written).
///
///     lower   Inv(i,j) = -(sum T(i,k) Inv(k,j)) / T(i,i),   k = j .. i-1 ascending
///     upper   Inv(i,j) = -(sum Inv(i,k) T(k,j)) / T(j,j),   k = i .. j-1 ascending
///
/// @param lower      non-zero: T is lower triangular
/// @param tolerance  a diagonal cell below it in absolute value has no reciprocal
/// @return 0; -1 at such a cell, the reciprocals before it written
KAV_API int M_InverseTriang(const matrix* t, int n, short lower, matrix*& inverse, double tolerance);
