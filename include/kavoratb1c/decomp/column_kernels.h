// Column kernels, after the Basic Linear Algebra Subprograms (Lawson, Hanson, Kincaid and Krogh 1979).
//
// A segment has n cells: cell k is `step` cells of the container behind cell k - 1, from (row, column) on,
// both 1-based. It is read and written by the element rule: outside the container a read gives -1.0 and a
// write does nothing; a flagged cell keeps what it holds. For n below 1 nothing happens. `flag` is ignored.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

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

/// The plane rotation that takes (a, b) to (r, 0): a becomes r, b the value from which c and s can be
/// reconstructed.
KAV_API void drotg(double& a, double& b, double& c, double& s);

/// Euclidean norm, scaled so that no square overflows; 0.0 for a step below 1.
KAV_API double DNRM2(int n, const matrix* x, int step, int row, int column, short flag);

/// Exchanges two columns from the first row on.
KAV_API void M_SwapVectors(int n, matrix* x, int stepX, matrix* y, int stepY, int columnX, int columnY);
