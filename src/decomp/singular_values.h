// Singular values and vectors, and the column kernels they are written in.
#pragma once

#include "core/matrix.h"
#include "platform/export.h"

/// Singular values and vectors X = U.S.V', by Householder reduction to two diagonals and QR steps on those
/// (Dongarra, Moler, Bunch and Stewart 1979, LINPACK Users' Guide, chapter 11: DSVDC).
///
/// It differs from the published routine in what is negligible: an element e with |(t + |e|) - t| below
/// 2.220446049250313e-16, t the sum of its neighbours. That is absolute, so that whatever is below
/// about 2.2e-16 counts as 0.0 whatever the scale of X; callers rely on it.
///
/// @param x    n x p, overwritten
/// @param s    at least min(n + 1, p) cells out: not negative, decreasing
/// @param u    out, n x n for a tens digit of 1, n x min(n, p) for 2 or more
/// @param ldu  not used: containers know their rows; neither is ldv
/// @param v    out, p x p
/// @param job  tens digit: 0 no left vectors, 1 all n, 2 or more the first min(n, p); units digit: non-zero
///             for right vectors
/// @param info 0; m when singular value m was not found in 30 steps: those behind it are right
KAV_API void M_SVDecomp(matrix* x, int n, int p, matrix* s, matrix* u, int ldu, matrix* v, int ldv, int job,
                        int& info);

// Column kernels, after the Basic Linear Algebra Subprograms (Lawson, Hanson, Kincaid and Krogh 1979). A
// segment has n cells: cell k is `step` cells of the container behind cell k - 1, from (row, column) on, both
// 1-based; read and written by the element rules. Nothing happens for n below 1. `flag` counts nowhere.

/// Sum of x[k] y[k].
KAV_API double ddot(int n, const matrix* x, int stepX, const matrix* y, int stepY, int rowX, int columnX,
                    int rowY, int columnY, short flag);

/// y[k] = y[k] + a x[k]
KAV_API void daxpy(int n, double a, const matrix* x, int stepX, matrix* y, int stepY, int rowX, int columnX,
                   int rowY, int columnY);

/// x[k] = a x[k]
KAV_API void dscal(int n, double a, matrix* x, int step, int row, int column, short flag);

/// x[k] = c x[k] + s y[k], y[k] = c y[k] - s x[k], from the first row on.
KAV_API void drot(int n, matrix* x, int stepX, matrix* y, int stepY, double c, double s, int columnX,
                  int columnY);

/// The rotation that takes (a, b) to (r, 0): a becomes r, b what both can be told from.
KAV_API void drotg(double& a, double& b, double& c, double& s);

/// Euclidean norm, scaled so that no square overflows; 0.0 for a step below 1.
KAV_API double DNRM2(int n, const matrix* x, int step, int row, int column, short flag);

/// Exchanges two columns from the first row on.
KAV_API void M_SwapVectors(int n, matrix* x, int stepX, matrix* y, int stepY, int columnX, int columnY);
