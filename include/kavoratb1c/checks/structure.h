// Questions about the structure of a table: -1 for yes and 0 for no, unless said otherwise.
//
// A table is a leading block: the first n rows and p columns of a container, whatever its own size; a cell
// outside the container reads -1.0. A cell is missing when its flag is set or it holds exactly the marker.
// Comparisons are exact: cells that differ in their last bit are different. A table without cells has every
// property that is asked of all cells. Row flags: n, any non-zero leaves the row out; null leaves out none.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Whether t(i,j) equals t(j,i) throughout an n x n table. A missing cell equals only another missing cell.
KAV_API short M_IsSymmetric(const matrix* t, int n);

/// Whether all diagonal cells of an n x n table are equal. A missing cell equals only another missing cell.
KAV_API short M_IsDiagConstant(const matrix* t, int n);

/// Which triangle of an n x n table is filled. A cell is filled when it is neither 0.0 nor missing.
///
/// @param update  -1: if just one triangle is empty, every cell of it becomes a copy of its mirror image,
///                value and flag; any other value: t is left unchanged
/// @return 1 lower triangular: no cell above the diagonal is filled;
///         2 upper triangular: no cell below it is filled;
///         3 diagonal: both;
///         0 otherwise
KAV_API int M_IsTriangular(matrix* t, int n, short update);

/// Whether a table is a complete disjunctive table: 0/1 columns in consecutive groups, one for each variable,
/// with exactly one 1 of each group in every row used. A group ends as soon as all rows have their 1; columns
/// of zeros behind the last group belong to it. 0 also when a row used has a missing cell or no row is used.
///
/// @param exclude    row flags
/// @param variables  out: number of groups, 0 when the answer is no; null: not wanted
KAV_API short M_IsDisjTable(const matrix* a, int n, int p, const short* exclude, int* variables);

/// Whether every cell of an n x p table lies in 0 .. 1, bounds included (In01), or is a whole number below
/// 2^53 in magnitude (Long). 0 also when a cell is missing.
KAV_API short M_IsIn01(const matrix* a, int n, int p);
KAV_API short M_IsLong(const matrix* a, int n, int p);

/// Whether every cell of an n x p table is at least 0, in the rows without a flag. Missing cells are tested
/// by their values; NaN fails.
///
/// @param strictly  -1: every cell must be above 0; any other value: at least 0
KAV_API short M_IsPositive(const matrix* a, int n, int p, const short* rowFlags, short strictly);

/// Position of the first constant column, missing cells by their values.
/// @return 1-based; 0 when no column is constant, or n is below 1
KAV_API int M_IsColConstant(const matrix* a, int n, int p);
