// Weighted least squares by the sweep operator on correlations.
//
// Tables are leading blocks, read as in algebra/products.h. Missing cells count by the value they hold, 0.0:
// give their rows a weight of 0. Results are prepared as vectors (a container of that shape is refilled, any
// other pointer receives a new one).
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Fits y by the columns of x, their powers up to `degree` and, above degree 1, their products in pairs.
///
/// The design has q columns: x(1) .. x(p), then all squared, and so on, then x(i) x(j) for i < j in that
/// order. They enter one by one: a column whose tolerance beside those before (OLSCheckIfIn) is not above
/// `tolerance` is left out for good, so of two equal columns the second. With d what the sweeps leave of the
/// correlations, y last, W the sum of the weights and f = n - q - 1:
///
///     b(k) = sd(y) / sd(k) d(y,k),        se(k) = sd(y) / sd(k) sqrt(|d(y,y) d(k,k)| / f)
///     b(0) = mean(y) - sum b(k) mean(k),  se(0)^2 = sd(y)^2 d(y,y) (W - 1) / (W f) + var(sum b(k) mean(k))
///
/// Where W is not above 1 nothing is known: all cells of all results hold the marker.
///
/// A column that is left out has slope and standard error 0.0, and counts in q all the same; so does, through
/// the origin, the intercept that is not there. Cost n q^2 + q^3.
///
/// @param x             n x p
/// @param y             n cells
/// @param weights       n cells; rows of weight 0 count in n
/// @param degree        at least 1
/// @param interactions  -1: products too, from degree 2 on
/// @param throughOrigin non-zero: b(0) and se(0) are 0.0; correlations are sums of squares and products about
///                      0, divided by W - 1 and, meant so, by deviations about the means
/// @param coefficients  q + 1 cells: slopes, then b(0)
/// @param errors        standard errors alike; the marker for what is not left out where f is not above 0
/// @param fitted        n cells: sum of b(k) times the row's design, then b(0)
KAV_API void OLSBasic2(int n, int p, const matrix* x, const matrix* y, const matrix* weights, int degree,
                       short interactions, short throughOrigin, double tolerance, matrix*& coefficients,
                       matrix*& errors, matrix*& fitted);

/// The same without standard errors.
KAV_API void OLSBasic(int n, int p, const matrix* x, const matrix* y, const matrix* weights, int degree,
                      short interactions, short throughOrigin, double tolerance, matrix*& coefficients,
                      matrix*& fitted);
