// Tables of labels converted to codes and indicator columns.
//
// A table of labels is a leading block: the first n rows and p columns of a container of strings; a cell
// outside the container reads as the empty string. The categories of all columns are in one list: those of
// column 1, then those of column 2, and so on, counts[j] for column j. A label is unknown when it is empty or
// not among its column's categories; of equal categories the first counts.
//
// Results are refilled: a container of just that shape is refilled with 0.0 (a flagged cell keeps 0.0: later
// writes to it are dropped); any other pointer receives a new container, which belongs to the caller.
#pragma once

#include "kavoratb1c/Smatrix.h"
#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Code of each label: its 1-based position among its column's categories; the marker for an unknown label.
///
/// @param counts      p numbers of categories
/// @param categories  as many strings as the counts add up to
/// @param codes       out, n x p
KAV_API void M_ReplaceCatByCodes(const Smatrix* labels, int n, int p, const int* counts,
                                 const Smatrix* categories, matrix*& codes);

/// M_ReplaceCatByCodes with the first category's code given, and row flags.
///
/// @param rowFlags  n, any non-zero gives the row the marker; null flags none
/// @param first     code of the first category of each column
KAV_API void M_ReplaceStrByCodes(const Smatrix* labels, int n, int p, const int* counts,
                                 const Smatrix* categories, const short* rowFlags, int first, matrix*& codes);

/// Indicator columns, one per category: 1.0 in the rows with that label, 0.0 in the others. An unknown label
/// gives 0.0 in all columns of its variable.
///
/// @param columns     columns of the result; further indicator columns are cut off, columns left over are 0.0
/// @param table       out, n x columns
/// @param constraint  0: every category has a column;
///                    1: the first category of each variable has none;
///                    2: the last category has none;
///                    3: the last category has none, and its rows hold -1.0 in all columns of the variable;
///                    any other value as 0
/// @param leaveFirst  non-zero: the first category keeps its column in spite of the constraint
KAV_API void BuildDisjunctiveTable(const Smatrix* labels, int n, int p, const int* counts,
                                   const Smatrix* categories, int columns, matrix*& table, int constraint,
                                   int leaveFirst);
