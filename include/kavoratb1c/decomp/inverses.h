// Generalized inverses, and inverses of the variables that are not excluded.
//
// Operands are leading n x n blocks; a cell outside the container reads -1.0.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Generalized inverse of a symmetric matrix from its singular values: U.diag(1/w).U'.
///
/// The left singular vectors stand on both sides: for a matrix of cross products this is the Moore-Penrose
/// inverse. The singular values are those of M_SVDecomp; a positive `info` of that is not reported: check it
/// there when the matrix may need more than 30 steps.
///
/// @param g          n x n, in a container with at least that many cells
/// @param tolerance  singular values from the first one below it on are taken as 0.0
/// @param rank       out: how many are used, NaN included
/// @return 0
KAV_API int M_InvGeneralized(const matrix* a, int n, matrix* g, double tolerance, int& rank);

/// Inverts the rows and columns that are not excluded; the others are 0.0.
///
/// A single variable is inverted as a number, 0.0 to 1e12; more by matrix::inverse1, which takes pivots up to
/// 1e-8 as zero.
///
/// @param excluded  n cells: 0.0 kept, above 0.0 excluded. A negative cell is neither, so that the last rows
///                  of the smaller matrix are 0.0: pass none.
/// @param inverse   n x n, refilled with 0.0 (a container of another shape is replaced by a new one)
/// @return 0, also when all are excluded; -1 when singular, with the inverse unchanged
KAV_API int cCleanConstraintsAndInvert(int n, const matrix* excluded, const matrix* a, matrix*& inverse);

/// The same by M_InverseTriang.
/// @return 0; -1 when a diagonal cell that is kept is below 1e-12, with the inverse unchanged
KAV_API int cCleanConstraintsAndInvertTriang(int n, const matrix* excluded, const matrix* t, short lower,
                                             matrix*& inverse);
