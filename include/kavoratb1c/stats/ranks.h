// Ranks and distinct values of the cells of a vector. Vectors as in vector_sums.h.
//
// Missing cells take part by their values unless said otherwise; the marker ranks first. Values are compared
// exactly: both zeros are the same value, each NaN is one of its own. Results given by reference to a pointer
// keep their container when its shape fits, flagged cells keeping what they hold; otherwise the pointer
// receives a new one, which belongs to the caller. Cost n log n.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Dense ranks: 1 for the smallest value, the same for equal ones, one more for the next value. (10, 20, 20,
/// 30) has 1, 2, 2, 3.
///
/// @param ranks  n cells
KAV_API void V_GetRanks(const matrix* x, int n, matrix*& ranks);

/// Ranks 1 .. n, tied cells sharing a weighted mean.
///
/// With s the sorted values and v their weights, cells k .. l of equal value all receive
///
///     sum(rank * v') / sum(v'),   v' = v[1], v[k+1] .. v[l]
///
/// The first of them enters with the weight of the smallest value, not with its own; this is meant. With
/// equal weights it is the ordinary mid-rank.
///
/// @param w         n weights, required; without them every rank is the marker
/// @param ranks     n cells
/// @param ties      number of groups of ties; null takes nothing
/// @param tieSizes  the size of each group, ascending in value, in the first cells; a container with room for
///                  them is kept, otherwise the pointer receives a new one of ties x 1
KAV_API void V_GetRanksTies(const matrix* x, int n, const matrix* w, matrix*& ranks, int* ties,
                            matrix*& tieSizes);

/// The same with each group's rank rounded down to an integer.
KAV_API void V_GetRanksTiesInt(const matrix* x, int n, const matrix* w, matrix*& ranks, int* ties,
                               matrix*& tieSizes);

/// V_GetRanksTies of each column of a table.
///
/// @param ranks  n x p
/// @param ties   p integers, the groups of ties in each column; null takes nothing
KAV_API void M_GetRanksTies(const matrix* a, int n, int p, const matrix* w, matrix*& ranks, int* ties);

/// Number of distinct values.
KAV_API int V_NbDistinct(const matrix* x, int n);

/// The distinct values in ascending order, each as it comes first.
///
/// @param out    as many cells as there are distinct values
/// @param count  their number; null takes nothing
KAV_API void V_ExtractDistinct(const matrix* x, int n, matrix*& out, int* count);
