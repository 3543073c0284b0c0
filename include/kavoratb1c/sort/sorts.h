// Tables and vectors sorted, and rows put into a given order.
//
// Positions are 1-based, ranges inclusive and cut to the table: an empty range changes nothing. Sorts by key
// are stable, descending too: rows of equal keys keep their order. Keys are compared as doubles, so the
// marker is the lowest ordinary key, both zeros are equal, and a key's missing flag is not looked at; NaN
// keys come out where an ordered multimap that is filled row by row has them. Cost n log n, and less when the
// keys are in order already.
//
// Containers to be sorted are taken by reference to their pointers and are never replaced. A null container
// has no cells. Keys may be the first column of the data or of the companion, which are two containers.
#pragma once

#include "kavoratb1c/Smatrix.h"
#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Sorts rows from .. to of data and companion by their keys.
///
/// A cell of data that is missing (flagged, or the marker) moves as one: its destination is flagged and keeps
/// the value it had; any other cell clears the flag of its destination. Companion cells move by value, and a
/// flagged destination keeps what it holds. So do keys.
///
/// @param rows              of the table
/// @param dataColumns companionColumns  columns moved; 0 moves none
/// @param keys              the key of row i is cell i - 1 of the container
/// @param descending        counts at -1 only
/// @param writeKeysBack     -1 sorts the keys too
/// @return 0
KAV_API int SortQ(matrix*& data, int rows, int dataColumns, int from, int to, matrix*& keys,
                  matrix*& companion, int companionColumns, short descending, short writeKeysBack);

/// The same for a table of strings. Nothing of it is missing: strings move whole.
KAV_API int SortQ(Smatrix*& data, int rows, int dataColumns, int from, int to, matrix* keys,
                  matrix* companion, int companionColumns, short descending, short writeKeysBack);

/// Sorts rows from .. to of a table by the values of one of its columns. Cells move by value; a flagged
/// destination keeps what it holds.
///
/// @param keyColumn   1-based; with a column outside the table every row has the same key
/// @param descending  counts at -1 only
/// @return 0
KAV_API int SortQMatrixCol(matrix*& table, int rows, int columns, int keyColumn, int from, int to,
                           short descending);

/// Sorts all rows ascending by column 1, then by each next column k the runs of neighbours whose values of
/// column k - 1 differ by at most 1e-12, each from the one before it.
///
/// Runs are told from column k - 1 alone, not from all columns before: neighbours that differ in an earlier
/// column but agree in column k - 1 are reordered by column k. This is meant.
///
/// @return 0
KAV_API int SortMatrixSeqQ(matrix*& table, int rows, int columns);

/// Sorts all rows ascending by a key vector, meant for keys of 0 and 1, and the keys with them. Cells move as
/// in SortQ.
///
/// @param nOut keepInitialOrder  not used
/// @return 0
KAV_API int SortDataBy01(matrix*& data, int rows, int columns, matrix*& key, int nOut,
                         short keepInitialOrder);
KAV_API int SortDataBy01(Smatrix*& data, int rows, int columns, matrix*& key, int nOut,
                         short keepInitialOrder);

/// Sorts cells from .. to of a vector in place, ascending. Numbers: NaN last; strings: by character code.
/// Descending is the ascending order reversed, so that NaN comes first and cells that are equal (zeros of
/// different sign) in reverse order of input. A flagged cell of a container keeps what it holds, and the
/// value sorted there is lost.
///
/// @param n           cells of the array; not used for containers, which know theirs
/// @param descending  any non-zero value counts, unlike in the sorts by key
/// @return 0
KAV_API int SortQVector(int* x, int n, int from, int to, short descending);
KAV_API int SortQVector(double* x, int n, int from, int to, short descending);
KAV_API int SortQVector(matrix*& x, int n, int from, int to, short descending);
KAV_API int SortQVector(Smatrix* x, int n, int from, int to, short descending);

/// Row r of out = row order[r] of source, for r = 1 .. rows.
///
/// @param order  rows cells, 1-based row numbers, order[r] - 1 truncated toward zero; one outside 1 .. rows
///               gives -1.0, or an empty string, in every cell
/// @param out    rows x columns, another container than source and order: kept when its shape fits, flagged
///               cells keeping what they hold; otherwise the pointer receives a new one, which belongs to the
///               caller
KAV_API void SortApply(const matrix* source, int rows, int columns, const matrix* order, matrix*& out);
KAV_API void SortApplyStr(const Smatrix* source, int rows, int columns, const matrix* order, Smatrix*& out);
