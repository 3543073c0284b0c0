// Single rows and columns of tables copied. As in blocks.h; targets are the caller's.
#pragma once

#include "kavoratb1c/Smatrix.h"
#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Column `column` of a (n rows) becomes column `toColumn` of b (n rows); positions below 1 change nothing.
KAV_API void CopyMatrixColToMatrixCol(const matrix* a, int n, int column, matrix* b, int toColumn);

/// Column `column` of a becomes the vector x (prepared, n x 1); a position below 1 gives 0.0, or empty
/// strings.
KAV_API void CopyMatrixColToVector(const matrix* a, int n, int column, matrix*& x);
KAV_API void CopyMatrixColToOneColMat(const Smatrix* a, int n, int column, Smatrix*& x);

/// Row `row` of a (n x p) becomes row `toRow` of b (n2 x p); positions outside change nothing.
KAV_API void CopyMatrixRowToMatrixRow(const matrix* a, int n, int p, int row, matrix* b, int n2, int toRow);
