// Single rows and columns of tables copied.
//
// A table is a leading block: the first n rows and p columns of a container, whatever its own size; a cell
// outside the container reads -1.0, or the empty string. Positions are 1-based. Values are copied, never
// flags. In a target b, which is the caller's, cells outside the container are dropped and flagged ones keep
// what they hold.
#pragma once

#include "kavoratb1c/Smatrix.h"
#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Copies column `column` of a (n rows) to column `toColumn` of b (n rows). Positions below 1 change nothing.
KAV_API void CopyMatrixColToMatrixCol(const matrix* a, int n, int column, matrix* b, int toColumn);

/// Copies column `column` of a to the vector x. A position below 1 gives 0.0, or empty strings.
///
/// @param x  out, n x 1. A container of just that shape is refilled with 0.0 (a flagged cell keeps 0.0: later
///           writes to it are dropped); any other pointer receives a new container, which belongs to the
///           caller. Of strings every cell is written.
KAV_API void CopyMatrixColToVector(const matrix* a, int n, int column, matrix*& x);
KAV_API void CopyMatrixColToOneColMat(const Smatrix* a, int n, int column, Smatrix*& x);

/// Copies row `row` of a (n x p) to row `toRow` of b (n2 x p). A position outside its table changes nothing.
KAV_API void CopyMatrixRowToMatrixRow(const matrix* a, int n, int p, int row, matrix* b, int n2, int toRow);
