// Blocks, rows and columns of tables copied, pasted, moved and removed.
//
// Tables are leading n x p blocks, read as in algebra/products.h. Positions are 1-based, ranges inclusive,
// and cut to the table, never into the next column. Results are prepared (a container of that shape is kept,
// any other pointer receives a new one). Values are copied, never flags: the marker goes through as a value.
// A flagged cell of a result keeps what it holds. Results are other containers than operands. Forms that end
// in 2 put the smaller table in place of the operand.
#pragma once

#include "kavoratb1c/Smatrix.h"
#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Rows rowFrom .. rowTo of columns columnFrom .. columnTo.
KAV_API void M_CopyBlock(const matrix* a, int n, int p, int rowFrom, int rowTo, int columnFrom, int columnTo,
                         matrix*& out);

/// Those rows of all columns; those columns of all rows.
KAV_API void M_ExtractMatToMat(const matrix* a, int n, int p, int rowFrom, int rowTo, matrix*& out);
KAV_API void M_ExtractMatToMat(const Smatrix* a, int n, int p, int rowFrom, int rowTo, Smatrix*& out);
KAV_API void M_ExtractMatToMatByCol(const matrix* a, int n, int p, int columnFrom, int columnTo,
                                    matrix*& out);

/// Writes a table into a larger one (n2 x p2) from (row, column) on; what overhangs is cut, other cells stay.
KAV_API void M_PasteBlock(const matrix* a, int n, int p, matrix* to, int n2, int p2, int row, int column);

/// The same at (1, 1).
KAV_API void M_CopyToBigger(const matrix* a, int n, int p, matrix* to, int n2, int p2);

/// The leading block of a as an n2 x p2 table, 0.0 or the empty string elsewhere.
KAV_API void M_CopyResize(const matrix* a, int n, int p, matrix*& out, int n2, int p2);
KAV_API void M_CopyResize(const Smatrix* a, int n, int p, Smatrix*& out, int n2, int p2);

/// The table without one row, or one column. Where there is none at that position, without the last.
KAV_API void M_RemoveRow(const matrix* a, int n, int p, int row, matrix*& out);
KAV_API void M_RemoveCol(const matrix* a, int n, int p, int column, matrix*& out);

/// The table without a range of them; without cells when none is left.
KAV_API void M_RemoveRows2(matrix*& a, int n, int p, int from, int to);
KAV_API void M_RemoveCols2(matrix*& a, int n, int p, int from, int to);

/// The table without the listed rows, in any order; repeated ones count once, others are ignored.
/// @param list  `listed` positions
/// @return rows left
KAV_API int M_RemoveRowsInList(const matrix* a, int n, int p, const int* list, int listed, matrix*& out);

/// Moves a row to another position, in place: the rows between move by one. Positions outside change nothing.
KAV_API void M_MoveRow(matrix* a, int n, int p, int row, int newPosition);
