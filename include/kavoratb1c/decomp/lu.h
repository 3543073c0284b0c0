// LU factors of square matrices, and determinants from them.
//
// Matrices are leading n x n blocks; a cell outside the container reads -1.0. Exclusions are n cells: 0.0
// keeps row and column, any other value excludes both.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// LU factors of A with rows exchanged, in place: L below a diagonal of ones that is not stored, U from the
/// diagonal on. Crout's method with implicitly scaled partial pivoting (Press, Teukolsky, Vetterling and
/// Flannery 1992, section 2.3): the pivot is the candidate that is largest relative to the largest cell of
/// its row, of equal ones the last. Terms are subtracted one by one in ascending order; cells below a pivot
/// are multiplied by its reciprocal.
///
/// @param a       n x n, in and out; a flagged cell keeps what it holds, and that is what later sums take
/// @param index   out, n cells: the row, 1-based, that was exchanged with row j. The container is kept; a
///                null pointer receives a new one.
/// @param parity  out: 1.0, or -1.0 after an odd number of exchanges
/// @param status  out: 0; -1 a row of zeros, A unchanged; 1 a column without a candidate (all NaN), A
///                part-way. A pivot of exactly 0.0 becomes 1e-20 and is no failure.
KAV_API void M_LUDecomp(matrix*& a, int n, matrix*& index, double& parity, short& status);

/// Determinant of a triangular matrix: the product of its diagonal, from the sum of its logarithms; exactly
/// 0.0 when a diagonal cell is.
///
/// @param status  out: 0
/// @return 1.0 for n < 1
KAV_API double M_DeterminantTriang(const matrix* t, int n, short& status);

/// Determinant from the LU factors of a copy.
///
/// @param status  out: that of M_LUDecomp; any other than 0 makes the result 0.0. Out of memory: -1 as well,
///                with the result 1.79769313486231e+308.
KAV_API double M_Determinant(const matrix* a, int n, short& status);

/// Determinant of the rows and columns that are kept.
KAV_API double M_DeterminantCleaned(const matrix* a, int n, const matrix* excluded, short& status);
