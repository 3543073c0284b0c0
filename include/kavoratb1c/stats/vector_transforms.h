// Vectors shifted, scaled and multiplied.
//
// A vector is the first n cells of a container in linear order, empty when n is below 1. A cell outside the
// container reads -1.0, for data and weights alike; a null container has no cells. An n beyond the
// container may throw std::bad_alloc. A cell is missing when its flag is set or its value is the marker,
// otherwise present.
//
// Writes to cells outside are dropped, and flagged cells keep what they hold.
//
// *Kept*: a container of just the result's shape keeps its cells (a flagged one keeps what it holds), any
// other pointer receives a new container, which belongs to the caller. Unless stated otherwise a result may
// be the vector itself.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// In place: adds value to every cell that is present and not excluded. Excluded cells, unless flagged,
/// receive the marker: they become missing.
///
/// @param exclude  n flags, any non-zero excludes the cell; must not be null, otherwise nothing changes
KAV_API void V_PlusVal(matrix* x, int n, double value, const short* exclude);

/// In place: divides every unflagged cell, a marker included, by the Euclidean norm of the present cells. The
/// ToVal forms also multiply by value; in the W forms, with n weights, the norm is sqrt(sum(w[i] x[i]^2)).
/// Division by a norm of 0.0 follows IEEE 754.
KAV_API void V_Norm(matrix* x, int n);
KAV_API void V_NormW(matrix* x, int n, const matrix* w);
KAV_API void V_NormToVal(matrix* x, int n, double value);
KAV_API void V_NormToValW(matrix* x, int n, double value, const matrix* w);

/// Standardization: out = (x - mean) / sd for the cells that are present and not excluded, 0.0 when the
/// standard deviation sd is 0.0 or NaN; the marker for the other cells. V_Standardize2 writes into x.
///
/// Mean and sd are those of V_MeanStdev with biasIsOne off: cells of weight 0.0 do not enter them.
///
/// @param exclude   n flags; must not be null, otherwise every cell receives the marker
/// @param w         n weights; must not be null either
/// @param unbiased  on only when -1: the variance denominator is W - W / c instead of W, with W the sum of
///                  the weights and c the number of the cells used
/// @param out       kept, n x 1
KAV_API void V_Standardize(const matrix* x, int n, const short* exclude, const matrix* w, short unbiased,
                           matrix*& out);
KAV_API void V_Standardize2(matrix* x, int n, const short* exclude, const matrix* w, short unbiased);

/// out = the cells that are present and not excluded, mapped linearly so that their minimum becomes lower and
/// their maximum upper, both exactly, or lower when they are all equal; the marker for the other cells.
/// V_Rescale2 writes into x.
///
/// @param exclude  n flags; must not be null, otherwise every cell receives the marker
/// @param out      kept, n x 1
KAV_API void V_Rescale(const matrix* x, int n, double lower, double upper, const short* exclude,
                       matrix*& out);
KAV_API void V_Rescale2(matrix* x, int n, double lower, double upper, const short* exclude);

/// out = x with every cell that equals from exactly replaced by to; either may be the marker. Flags are
/// ignored in x. V_ReplaceVal2 writes into x.
///
/// @param out  kept, n x 1
KAV_API void V_ReplaceVal(const matrix* x, int n, double from, double to, matrix*& out);
KAV_API void V_ReplaceVal2(matrix* x, int n, double from, double to);

/// Cell-by-cell product: out = x[i] * y[i], missing cells by their values. V_ProductV1V22 writes into x.
///
/// @param out  kept, n x 1
KAV_API void V_ProductV1V2(const matrix* x, int n, const matrix* y, matrix*& out);
KAV_API void V_ProductV1V22(matrix* x, int n, const matrix* y);

/// Outer product: out(i, j) = x[i] * y[j], missing cells by their values.
///
/// @param out  kept, n x n; another container than x and y
KAV_API void V_ProductV1TrV2(const matrix* x, int n, const matrix* y, matrix*& out);

/// Kronecker product of x (p1 cells) and y (p2 cells), missing cells by their values: cell (a-1) * p2 + b,
/// 1-based, of out is x[a] * y[b].
///
/// @param out  kept, min(p, p1 * p2) x 1; another container than x and y
/// @param p    out receives at most the first p cells of the product
KAV_API void V_ProductHorizV1V2(const matrix* x, int p1, const matrix* y, int p2, matrix*& out, int p);

/// The Kronecker product in place of x.
///
/// @param x   kept, p1 * p2 x 1; a container that is replaced is not released
/// @param p1  in: cells of x; out: p1 * p2; with null, or with p1 or p2 below 1, nothing changes. Throws
///            std::bad_alloc when p1 * p2 exceeds the range of an integer.
KAV_API void V_ProductHorizV1V22(matrix*& x, int* p1, const matrix* y, int p2);
