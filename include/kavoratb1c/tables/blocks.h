// Blocks, rows and columns of tables copied, pasted, moved and removed.
//
// A table is a leading block: the first n rows and p columns of a container, whatever its own size; a cell
// outside the container reads -1.0, or the empty string. Positions are 1-based; ranges are inclusive and
// clipped to the table. Values are copied, never flags: the marker is copied as a value.
//
// Results, which must be other containers than the operands:
//   refilled   (matrix*&) a container of just that shape is refilled with 0.0 (a flagged cell keeps 0.0:
//              later writes to it are dropped); any other pointer receives a new container, which belongs to
//              the caller. Strings (Smatrix*&): likewise, every cell is written.
//   caller's   (matrix*) a container with at least the result's cells; cells outside it are dropped, flagged
//              ones keep what they hold
//   in place   (forms ending in 2) a container of just the result's shape is kept, its flagged cells keep
//              what they hold; any other pointer receives a new one, which belongs to the caller
#pragma once

#include "kavoratb1c/Smatrix.h"
#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Rows rowFrom .. rowTo of columns columnFrom .. columnTo (refilled).
KAV_API void M_CopyBlock(const matrix* a, int n, int p, int rowFrom, int rowTo, int columnFrom, int columnTo,
                         matrix*& out);

/// Rows rowFrom .. rowTo of all columns; columns columnFrom .. columnTo of all rows (refilled).
KAV_API void M_ExtractMatToMat(const matrix* a, int n, int p, int rowFrom, int rowTo, matrix*& out);
KAV_API void M_ExtractMatToMat(const Smatrix* a, int n, int p, int rowFrom, int rowTo, Smatrix*& out);
KAV_API void M_ExtractMatToMatByCol(const matrix* a, int n, int p, int columnFrom, int columnTo,
                                    matrix*& out);

/// Writes a table into another one (n2 x p2, caller's), its first cell at (row, column). What overhangs on
/// any side is cut off; other cells of the target are left unchanged.
KAV_API void M_PasteBlock(const matrix* a, int n, int p, matrix* to, int n2, int p2, int row, int column);

/// M_PasteBlock at (1, 1).
KAV_API void M_CopyToBigger(const matrix* a, int n, int p, matrix* to, int n2, int p2);

/// The table cut or extended to n2 x p2, with 0.0 or the empty string in new cells (refilled).
KAV_API void M_CopyResize(const matrix* a, int n, int p, matrix*& out, int n2, int p2);
KAV_API void M_CopyResize(const Smatrix* a, int n, int p, Smatrix*& out, int n2, int p2);

/// The table without one row, or one column (refilled). A position outside the table removes the last one.
KAV_API void M_RemoveRow(const matrix* a, int n, int p, int row, matrix*& out);
KAV_API void M_RemoveCol(const matrix* a, int n, int p, int column, matrix*& out);

/// Removes the rows, or columns, from .. to (in place). When none is left the result has no cells.
KAV_API void M_RemoveRows2(matrix*& a, int n, int p, int from, int to);
KAV_API void M_RemoveCols2(matrix*& a, int n, int p, int from, int to);

/// The table without the listed rows (refilled).
///
/// @param list  `listed` positions in any order; repeated ones and those outside the table are ignored; null
///              removes nothing
/// @return rows left
KAV_API int M_RemoveRowsInList(const matrix* a, int n, int p, const int* list, int listed, matrix*& out);

/// Moves a row to another position, in place: the rows between move by one, flagged cells keep what they
/// hold. A position outside the table changes nothing.
KAV_API void M_MoveRow(matrix* a, int n, int p, int row, int newPosition);
