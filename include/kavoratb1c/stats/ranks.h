// Ranks and distinct values of the cells of a vector.
//
// A vector is the first n cells of a container in linear order, empty when n is below 1. A cell outside the
// container reads -1.0, for data and weights alike; a null container has no cells. An n beyond the container
// may throw std::bad_alloc.
//
// Missing cells enter by their values; the marker ranks below every ordinary number. Values are compared
// exactly: zeros of either sign are equal, and each NaN is a value of its own. Cost n log n.
//
// *Kept*: a container of just the result's shape keeps its cells (a flagged one keeps what it holds), any
// other pointer receives a new container, which belongs to the caller.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Dense ranks: 1 for the smallest value, the same rank for equal values, the next integer for the next
/// value. (10, 20, 20, 30) has the ranks 1, 2, 2, 3.
///
/// @param ranks  kept, n x 1
KAV_API void V_GetRanks(const matrix* x, int n, matrix*& ranks);

/// Ranks 1 .. n in ascending order; tied cells share a weighted mean rank.
///
/// With v[1] .. v[n] the weights in the order of the sorted values, tied cells of ranks k .. l all receive
///
///     sum(rank * v') / sum(v'),   rank = k .. l,   v' = v[1], v[k+1] .. v[l]
///
/// The first of them enters with the weight of the smallest value of all, not with its own; this is
/// deliberate. With equal weights the result is the ordinary mid-rank.
///
/// @param w         n weights; with null every rank is the marker and there are no ties
/// @param ranks     kept, n x 1
/// @param ties      out: number of groups of ties; may be null
/// @param tieSizes  out: the size of each group, ascending in value, in the first cells; a container of any
///                  shape with room for them keeps its other cells, any other pointer receives a new one,
///                  ties x 1, which belongs to the caller
KAV_API void V_GetRanksTies(const matrix* x, int n, const matrix* w, matrix*& ranks, int* ties,
                            matrix*& tieSizes);

/// V_GetRanksTies with the rank of each group of ties rounded down to an integer.
KAV_API void V_GetRanksTiesInt(const matrix* x, int n, const matrix* w, matrix*& ranks, int* ties,
                               matrix*& tieSizes);

/// V_GetRanksTies of each column of a table.
///
/// @param a      its leading n x p block is read; a cell outside the container reads -1.0
/// @param ranks  kept, n x p
/// @param ties   out: p integers, the number of groups of ties in each column; may be null
KAV_API void M_GetRanksTies(const matrix* a, int n, int p, const matrix* w, matrix*& ranks, int* ties);

/// Number of distinct values.
KAV_API int V_NbDistinct(const matrix* x, int n);

/// The distinct values in ascending order, NaN last. A zero has the sign of the first one in x.
///
/// @param out    kept, count x 1
/// @param count  out: the number of distinct values; may be null
KAV_API void V_ExtractDistinct(const matrix* x, int n, matrix*& out, int* count);
