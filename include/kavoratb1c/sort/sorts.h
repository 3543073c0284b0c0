// Tables and vectors sorted, and rows put into a given order.
//
// Positions are 1-based, ranges inclusive and clipped to the table; an empty range changes nothing.
//
// Sorts by key are stable, also when descending: rows of equal keys keep their order. Keys are compared as
// doubles: the marker is below every ordinary number, zeros of either sign are equal, and missing flags of
// keys are ignored. With NaN keys the order is that of an ordered multimap that is filled row by row. Cost
// n log n, and linear when the keys are already in order.
//
// Containers to be sorted are taken by reference to their pointers, which never change. A null container has
// no cells; a cell outside a container reads -1.0, and a write there is dropped. Data and companion must be
// different containers. The keys may be either of them: its first column then holds the keys.
#pragma once

#include "kavoratb1c/Smatrix.h"
#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Sorts rows from .. to of data and companion by their keys.
///
/// A missing cell of data (flagged, or holding the marker) flags its destination, which keeps its value; any
/// other cell clears the flag of its destination. Companion cells and keys move by value, and a flagged
/// destination keeps what it holds.
///
/// @param data              sorted in place; null or no columns: only keys and companion move
/// @param rows              rows of the table
/// @param dataColumns       columns moved, from the first; 0 moves none
/// @param keys              the key of row i is cell i - 1 in linear order
/// @param companion         sorted in place; may be null
/// @param companionColumns  columns moved, from the first; 0 moves none
/// @param descending        on only when -1
/// @param writeKeysBack     on only when -1: sorts the keys too
/// @return 0
KAV_API int SortQ(matrix*& data, int rows, int dataColumns, int from, int to, matrix*& keys,
                  matrix*& companion, int companionColumns, short descending, short writeKeysBack);

/// SortQ for a table of strings, which move as a whole; there are no missing cells.
KAV_API int SortQ(Smatrix*& data, int rows, int dataColumns, int from, int to, matrix* keys,
                  matrix* companion, int companionColumns, short descending, short writeKeysBack);

/// Sorts rows from .. to of a table by the values of one of its columns. Cells move by value; a flagged
/// destination keeps what it holds.
///
/// @param table       sorted in place
/// @param columns     columns moved, from the first; a key column beyond them moves too
/// @param keyColumn   1-based; a column outside the table leaves it unchanged
/// @param descending  on only when -1
/// @return 0
KAV_API int SortQMatrixCol(matrix*& table, int rows, int columns, int keyColumn, int from, int to,
                           short descending);

/// Sorts all rows ascending by column 1, then, for k = 2, 3 ... in turn, each run of rows in column k - 1 by
/// column k. A run consists of successive rows whose values in column k - 1 each differ from the one before
/// by at most 1e-12.
///
/// Runs are determined by column k - 1 alone, not by all columns before: rows that differ in an earlier
/// column but agree in column k - 1 are reordered by column k. This is deliberate.
///
/// Cells move as in SortQMatrixCol.
///
/// @return 0
KAV_API int SortMatrixSeqQ(matrix*& table, int rows, int columns);

/// Sorts all rows ascending by a key vector, usually of 0 and 1, and the keys with them. Cells
/// move as in SortQ.
///
/// @param nOut keepInitialOrder  ignored
/// @return 0
KAV_API int SortDataBy01(matrix*& data, int rows, int columns, matrix*& key, int nOut,
                         short keepInitialOrder);
KAV_API int SortDataBy01(Smatrix*& data, int rows, int columns, matrix*& key, int nOut,
                         short keepInitialOrder);

/// Sorts cells from .. to of a vector in place.
///
/// Numbers ascend with NaN last, strings by character code. The descending order is the ascending one
/// reversed: NaN comes first, and equal cells (zeros of different sign) are in reverse order of input. A
/// flagged cell of a container keeps what it holds, and the value sorted to its place is lost.
///
/// @param x           may be null: nothing changes
/// @param n           cells of an array; ignored for containers, which are taken as a whole
/// @param descending  on for any non-zero value, unlike in the sorts by key
/// @return 0
KAV_API int SortQVector(int* x, int n, int from, int to, short descending);
KAV_API int SortQVector(double* x, int n, int from, int to, short descending);
KAV_API int SortQVector(matrix*& x, int n, int from, int to, short descending);
KAV_API int SortQVector(Smatrix* x, int n, int from, int to, short descending);

/// Rows in a given order: row r of out = row order[r] of source, for r = 1 .. rows. Cells are
/// copied by value.
///
/// @param source  a table of which the leading rows x columns block is read
/// @param order   rows cells, 1-based row numbers, with order[r] - 1 truncated toward zero; for a number
///                outside 1 .. rows every cell of row r of out is -1.0, or the empty string
/// @param out     rows x columns, another container than source and order; a container of just that shape is
///                kept (its flagged cells keep what they hold), any other pointer receives a new one, which
///                belongs to the caller
KAV_API void SortApply(const matrix* source, int rows, int columns, const matrix* order, matrix*& out);
KAV_API void SortApplyStr(const Smatrix* source, int rows, int columns, const matrix* order, Smatrix*& out);
