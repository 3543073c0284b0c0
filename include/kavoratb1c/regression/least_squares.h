// Weighted least squares by the sweep operator on correlations.
//
// Operands are leading blocks: the first n rows and p columns, or the first n cells, of a container; a cell
// outside the container reads -1.0. Missing cells enter by the value they hold, 0.0 when flagged on arrival:
// give their rows a weight of 0.
//
// Results are refilled: a container of just that shape is refilled with 0.0 (a flagged cell keeps 0.0: later
// writes to it are dropped); any other pointer receives a new container, which belongs to the caller.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Regression of y on the columns of x, their powers up to `degree` and, if wanted, their pairwise products.
///
/// The design has q columns: x(1) .. x(p), then all squared, and so on, then x(i) x(j) for i < j, j varying
/// fastest. They enter one by one: a column whose tolerance given those before (see OLSCheckIfIn) is not
/// above `tolerance` is left out for good; of two equal columns that is the second. With d the correlation
/// matrix after the sweeps, y last, W the sum of the weights and f = n - q - 1:
///
///     b(k) = sd(y) / sd(k) d(y,k),        se(k) = sd(y) / sd(k) sqrt(|d(y,y) d(k,k)| / f)
///     b(0) = mean(y) - sum b(k) mean(k),  se(0)^2 = sd(y)^2 d(y,y) (W - 1) / (W f) + var(sum b(k) mean(k))
///
/// A column that is left out has coefficient and standard error 0.0 and still counts in q; likewise f is the
/// same through the origin. Unless W is above 1, all cells of all results hold the marker. When n, p or
/// degree is below 1 nothing is written. Cost n q^2 + q^3.
///
/// @param x              n x p
/// @param y              n cells
/// @param weights        n cells; rows of weight 0 count in n
/// @param interactions   -1: products too, from degree 2 on
/// @param throughOrigin  non-zero: b(0) and se(0) are 0.0, and the correlations are sums of squares and
///                       products about 0 divided by W - 1 and by the standard deviations about the means;
///                       this is deliberate
/// @param coefficients   out, q + 1 cells: slopes, then b(0)
/// @param errors         out, q + 1 cells: standard errors in the same order; the marker for every
///                       coefficient not left out when f is not above 0
/// @param fitted         out, n cells: the sum of b(k) times column k of the design, then b(0)
KAV_API void OLSBasic2(int n, int p, const matrix* x, const matrix* y, const matrix* weights, int degree,
                       short interactions, short throughOrigin, double tolerance, matrix*& coefficients,
                       matrix*& errors, matrix*& fitted);

/// OLSBasic2 without standard errors.
KAV_API void OLSBasic(int n, int p, const matrix* x, const matrix* y, const matrix* weights, int degree,
                      short interactions, short throughOrigin, double tolerance, matrix*& coefficients,
                      matrix*& fitted);
