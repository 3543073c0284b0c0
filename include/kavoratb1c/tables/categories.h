// Tables of labels turned into codes and indicator columns.
//
// Categories of all columns stand in one list: those of column 1, then those of column 2, and so on,
// counts[j] of column j. A label that is not among its column's categories, or empty, is unknown. Results are
// prepared, as in merges.h.
#pragma once

#include "kavoratb1c/Smatrix.h"
#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// The position, 1-based, of each label among its column's categories (n x p); the marker for an unknown one.
///
/// @param counts      p numbers of categories
/// @param categories  as many strings as they add up to
KAV_API void M_ReplaceCatByCodes(const Smatrix* labels, int n, int p, const int* counts,
                                 const Smatrix* categories, matrix*& codes);

/// The same counted from `first`; rows with a flag get the marker too.
///
/// @param rowFlags  n flags, or null
KAV_API void M_ReplaceStrByCodes(const Smatrix* labels, int n, int p, const int* counts,
                                 const Smatrix* categories, const short* rowFlags, int first, matrix*& codes);

/// One column for each category, 1.0 in the rows with that label, else 0.0 (n x columns).
///
/// @param columns     of the result: those beyond are cut, those left 0.0
/// @param constraint  0 every category has a column; 1 the first of each variable has none; 2 the last has
///                    none; 3 the last has none, and its rows hold -1.0 in all columns of the variable; other
///                    values as 0
/// @param leaveFirst  non-zero: the first category keeps its column in spite of the constraint
KAV_API void BuildDisjunctiveTable(const Smatrix* labels, int n, int p, const int* counts,
                                   const Smatrix* categories, int columns, matrix*& table, int constraint,
                                   int leaveFirst);
