// Vectors shifted, scaled, multiplied. Vectors as in vector_sums.h.
//
// Writing follows the element rule: a flagged cell of the target keeps what it holds. A result given by
// reference to a pointer keeps its container when the shape fits; otherwise the pointer receives a new one,
// which belongs to the caller. Results may be the vector itself.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// In place: adds value to every cell that is present and not excluded. Excluded cells, unless flagged,
/// receive the marker: they become missing.
///
/// @param exclude  n flags, required; without them nothing changes
KAV_API void V_PlusVal(matrix* x, int n, double value, const short* exclude);

/// In place: divides every cell that is not flagged by the Euclidean norm of the present ones, and multiplies
/// it by value in the ToVal forms. In the W forms the norm is the root of V_SumSqW. A norm of 0.0 is divided
/// by as IEEE does; an unflagged marker is divided too.
KAV_API void V_Norm(matrix* x, int n);
KAV_API void V_NormW(matrix* x, int n, const matrix* w);
KAV_API void V_NormToVal(matrix* x, int n, double value);
KAV_API void V_NormToValW(matrix* x, int n, double value, const matrix* w);

/// out = (x - mean) / deviation for the cells that are present and not excluded, 0.0 when the deviation is
/// 0.0 or not a number; the marker for the others. Mean and deviation are those of V_MeanStdev with biasIsOne
/// off.
///
/// @param exclude w  n each, required; without them every cell receives the marker
KAV_API void V_Standardize(const matrix* x, int n, const short* exclude, const matrix* w, short unbiased,
                           matrix*& out);
KAV_API void V_Standardize2(matrix* x, int n, const short* exclude, const matrix* w, short unbiased);

/// out = the cells that are present and not excluded, mapped linearly so that their minimum becomes lower and
/// their maximum upper, both exactly; lower when they are all equal; the marker for the others.
///
/// @param exclude  n flags, required; without them every cell receives the marker
KAV_API void V_Rescale(const matrix* x, int n, double lower, double upper, const short* exclude,
                       matrix*& out);
KAV_API void V_Rescale2(matrix* x, int n, double lower, double upper, const short* exclude);

/// out = x with to in place of every cell that equals from exactly; the marker may be either.
KAV_API void V_ReplaceVal(const matrix* x, int n, double from, double to, matrix*& out);
KAV_API void V_ReplaceVal2(matrix* x, int n, double from, double to);

/// out = x[i] * y[i], missing cells by their values; V22 writes into x.
KAV_API void V_ProductV1V2(const matrix* x, int n, const matrix* y, matrix*& out);
KAV_API void V_ProductV1V22(matrix* x, int n, const matrix* y);

/// out = the n x n table x[i] * y[j].
KAV_API void V_ProductV1TrV2(const matrix* x, int n, const matrix* y, matrix*& out);

/// out = Kronecker product of x (p1 cells) and y (p2): cell (a-1) * p2 + b, 1-based, is x[a] * y[b].
///
/// @param out  another container than x and y
/// @param p    room in out: it receives the first p cells when there are more
KAV_API void V_ProductHorizV1V2(const matrix* x, int p1, const matrix* y, int p2, matrix*& out, int p);

/// The same in place of x; *p1 becomes p1 * p2. A null p1, or sizes below 1, change nothing. Throws
/// std::bad_alloc when there would be more cells than a vector can have.
KAV_API void V_ProductHorizV1V22(matrix*& x, int* p1, const matrix* y, int p2);
