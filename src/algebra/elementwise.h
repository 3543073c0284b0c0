// Tables scaled, added, squared, transposed; their sums, extremes and traces. Operands, kinds of result and
// extents as in products.h.
#pragma once

#include "core/matrix.h"
#include "platform/export.h"

/// C = s A (caller's), A = s A (in place; the container takes the shape n x p), C = s A' (prepared, p x n).
KAV_API void M_ScalarsA(const matrix* a, int n, int p, double s, matrix* c);
KAV_API void M_ScalarsA2(matrix*& a, int n, int p, double s);
KAV_API void M_ScalarsTrA(const matrix* a, int n, int p, double s, matrix*& c);

/// C(i,j) = A(i,j) + s, and s1 A(i,j) + s2 B(i,j) (prepared, n x p).
KAV_API void M_APlusVal(const matrix* a, int n, int p, double s, matrix*& c);
KAV_API void M_Sums1As2B(const matrix* a, int n, int p, const matrix* b, double s1, double s2, matrix*& c);

/// C(i,j) = A(i,j) B(i,j) (caller's, n x p).
KAV_API void M_ProductByElement(const matrix* a, int n, int p, const matrix* b, matrix* c);

/// Squares in place the cells at linear index nX c + r for r = 1 .. n and c = 1 .. p, nX the container's
/// rows: counters from 1 on positions from 0, which is meant. With the container's own extents that is every
/// cell but the first column and the first cell of the second.
KAV_API void M_Square(matrix* a, int n, int p);

/// C = A' (prepared, p x n), and in place: the container keeps its cells and takes the other shape.
/// @return 0
KAV_API int M_Transpose(const matrix* a, int n, int p, matrix*& c);
KAV_API int M_Transpose2(matrix*& a, int n, int p);

/// w(i) = sum of A(i,j) over j (n cells), w(j) = sum of A(i,j) over i (p cells) (caller's).
KAV_API void M_SumByRows(const matrix* a, int n, int p, matrix* w);
KAV_API void M_SumByCols(const matrix* a, int n, int p, matrix* w);

/// The same for squares; with nothing to add 0.0.
KAV_API void M_SquaredRows(const matrix* a, int n, int p, matrix* w);
KAV_API void M_SquaredColumns(const matrix* a, int n, int p, matrix* w);

/// Sum of the diagonal of the n x n block.
KAV_API double M_Trace(const matrix* a, int n);

/// Extreme of each column (caller's, p cells). Cells with the marker are passed over, flags are not looked
/// at; the marker where nothing is left. A first cell that is NaN stands.
KAV_API void M_Max(const matrix* a, int n, int p, matrix* w);
KAV_API void M_Min(const matrix* a, int n, int p, matrix* w);

/// Both extremes of each column (caller's, p cells each); the marker where no cell is used.
///
/// @param exclude  n flags, required when option is 0
/// @param option   0 leaves out the rows with a flag, and missing cells count by their values; -1 leaves out
///                 missing cells instead; with any other value no cell is used
KAV_API void M_MinMax(const matrix* a, int n, int p, matrix* min, matrix* max, const short* exclude,
                      short option);
