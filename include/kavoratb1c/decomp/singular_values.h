// Singular value decomposition.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Singular values and vectors X = U.S.V', by Householder reduction to bidiagonal form and QR steps on it
/// (Dongarra, Moler, Bunch and Stewart 1979, LINPACK Users' Guide, chapter 11: DSVDC).
///
/// It differs from the published routine in what is negligible: an element e with |(t + |e|) - t| below
/// 2.220446049250313e-16, t the sum of its neighbours. The test is absolute: whatever is below about 2.2e-16
/// is taken as 0.0 whatever the scale of X; callers rely on it. A matrix whose values spread over many orders
/// of magnitude, or whose rows and columns are graded, may need more than the 30 steps allowed.
///
/// @param x    n x p, overwritten
/// @param s    out, at least min(n + 1, p) cells: non-negative, decreasing
/// @param u    out, n x n for a tens digit of 1, n x min(n, p) for 2 or more
/// @param ldu  ignored, like ldv: containers know their rows
/// @param v    out, p x p
/// @param job  tens digit: 0 no left vectors, 1 all n, 2 or more the first min(n, p); units digit: non-zero
///             for right vectors. Below 0 it is taken as 0.
/// @param info out: 0; m when singular value m was not found in 30 steps: those behind it are right
KAV_API void M_SVDecomp(matrix* x, int n, int p, matrix* s, matrix* u, int ldu, matrix* v, int ldv, int job,
                        int& info);
