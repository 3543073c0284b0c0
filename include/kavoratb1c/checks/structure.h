// Questions about the structure of a table: -1 for yes and 0 for no, unless said otherwise.
//
// Tables are leading blocks, read as in algebra/products.h. A cell is missing when its flag is set or it
// holds exactly the marker. Comparisons are exact: cells that differ in their last bit are different. A table
// without cells has every property that is asked of all cells.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Whether t(i, j) equals t(j, i) throughout an n x n table; a missing cell equals a missing one only.
KAV_API short M_IsSymmetric(const matrix* t, int n);

/// Whether all diagonal cells of an n x n table are equal; a missing cell equals a missing one only.
KAV_API short M_IsDiagConstant(const matrix* t, int n);

/// Which triangle of an n x n table is filled. A cell is filled when it is neither 0.0 nor missing.
///
/// @param update  -1 mirrors a single filled triangle onto the other: every cell there becomes what its
///                counterpart is, missing ones included
/// @return 1 when no cell above the diagonal is filled (lower triangular), 2 when none below is (upper), 3
///         when neither (diagonal), else 0
KAV_API int M_IsTriangular(matrix* t, int n, short update);

/// Whether the table consists of indicators of categories: 0/1 columns in consecutive groups, one for each
/// variable, with exactly one 1 of each group in every row that is looked at. A group ends as soon as all
/// rows have their 1; columns of zeros behind the last one belong to it. A missing cell in such a row makes
/// it false, and so does having no such row.
///
/// @param exclude    n flags; flagged rows are not looked at; null excludes nothing
/// @param variables  out: number of groups, 0 when false; null takes nothing
KAV_API short M_IsDisjTable(const matrix* a, int n, int p, const short* exclude, int* variables);

/// Whether every cell of an n x p table lies between 0 and 1, bounds included; is a whole number below 2^53
/// in magnitude. A missing cell makes it false.
KAV_API short M_IsIn01(const matrix* a, int n, int p);
KAV_API short M_IsLong(const matrix* a, int n, int p);

/// Whether every cell of an n x p table is at least 0, in the rows without a flag. Missing cells are tested by
/// their values.
///
/// @param rowFlags  n flags; any non-zero leaves the row out; null leaves out none
/// @param strictly  -1: every cell must be above 0; any other value: at least 0. NaN is neither.
KAV_API short M_IsPositive(const matrix* a, int n, int p, const short* rowFlags, short strictly);

/// The position of the first column whose cells are all exactly equal, 0 when there is none.
KAV_API int M_IsColConstant(const matrix* a, int n, int p);
