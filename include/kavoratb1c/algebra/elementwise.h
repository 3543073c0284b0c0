// Matrices scaled, added, squared and transposed; their sums, extremes and traces.
//
// Operands are leading blocks: the first n rows and p columns of a container, whatever its own size; a cell
// outside the container reads -1.0. Missing flags and markers are ignored unless said otherwise.
//
// Results, which must be other containers than the operands unless computed in place:
//   refilled   a container of just that shape is refilled with 0.0 (a flagged cell keeps 0.0: later writes to
//              it are dropped); any other pointer receives a new container, which belongs to the caller
//   caller's   a container with at least the result's cells; cells outside it are dropped, flagged ones keep
//              what they hold
//   in place   the operand; flagged cells keep what they hold
// With any extent below 1 a refilled result holds 0.0 only, and the other kinds are left unchanged, unless
// said otherwise.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// C = s A, n x p (caller's); A = s A (in place); C = s A', p x n (refilled). In place the container takes
/// the shape n x p; one that was not built with that many cells is left unchanged.
KAV_API void M_ScalarsA(const matrix* a, int n, int p, double s, matrix* c);
KAV_API void M_ScalarsA2(matrix*& a, int n, int p, double s);
KAV_API void M_ScalarsTrA(const matrix* a, int n, int p, double s, matrix*& c);

/// C(i,j) = A(i,j) + s, and C(i,j) = s1 A(i,j) + s2 B(i,j), n x p (refilled).
KAV_API void M_APlusVal(const matrix* a, int n, int p, double s, matrix*& c);
KAV_API void M_Sums1As2B(const matrix* a, int n, int p, const matrix* b, double s1, double s2, matrix*& c);

/// C(i,j) = A(i,j) B(i,j), n x p (caller's).
KAV_API void M_ProductByElement(const matrix* a, int n, int p, const matrix* b, matrix* c);

/// In place: squares the cells at linear index nX c + r for r = 1 .. n and c = 1 .. p, nX being the
/// container's rows. Positions start at 0, the counters at 1; this is deliberate. With the container's own
/// extents all cells are squared but those of the first column and the first cell of the second.
KAV_API void M_Square(matrix* a, int n, int p);

/// C = A', p x n (refilled), and A = A' (in place): the container takes the shape p x n; one that was not
/// built with that many cells is left unchanged.
/// @return 0
KAV_API int M_Transpose(const matrix* a, int n, int p, matrix*& c);
KAV_API int M_Transpose2(matrix*& a, int n, int p);

/// Row sums, n cells, and column sums, p cells, added in ascending order (caller's).
KAV_API void M_SumByRows(const matrix* a, int n, int p, matrix* w);
KAV_API void M_SumByCols(const matrix* a, int n, int p, matrix* w);

/// Row and column sums of the squared cells; a sum without terms is 0.0.
KAV_API void M_SquaredRows(const matrix* a, int n, int p, matrix* w);
KAV_API void M_SquaredColumns(const matrix* a, int n, int p, matrix* w);

/// Sum of the diagonal of the n x n block; 0.0 when n is below 1.
KAV_API double M_Trace(const matrix* a, int n);

/// Largest and smallest cell of each column, p cells (caller's). Cells that hold the marker are passed over,
/// flags are ignored; the marker where no cell is left. If the first cell used is NaN the result is NaN;
/// later NaN are passed over.
KAV_API void M_Max(const matrix* a, int n, int p, matrix* w);
KAV_API void M_Min(const matrix* a, int n, int p, matrix* w);

/// Both extremes of each column, p cells each (caller's); the marker where no cell is used.
///
/// @param exclude  n flags, any non-zero leaves the row out; required when option is 0
/// @param option   0 uses the rows without a flag, missing cells by their values; -1 ignores the flags and
///                 leaves out missing cells instead; with any other value no cell is used
KAV_API void M_MinMax(const matrix* a, int n, int p, matrix* min, matrix* max, const short* exclude,
                      short option);
