// Geometric and harmonic mean, and mean absolute deviation.
//
// A vector is the first n cells of a container in linear order, empty when n is below 1. A cell outside the
// container reads -1.0, for data and weights alike; a null container has no cells. An n beyond the container
// may throw std::bad_alloc.
//
// Every cell that is not excluded is used: missing cells enter by their values, and a weight of 0.0 does not
// leave a cell out.
//
//     exclude  n flags, any non-zero leaves the cell out
//     w        n weights
//
// Neither may be null: the results are then the marker, unless n is below 1.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Weighted geometric mean and geometric standard deviation.
///
///     gmean = exp(m),   gsd = exp(sqrt(S / (W - W / c)))
///
/// m is the weighted mean of ln x[i], S the weighted sum of squares about it, W the sum of the weights and c
/// the number of the cells used. With no cell used gmean is 1.0 and gsd NaN.
///
/// @param gmean gsd  out, may be null; both the marker when a used cell is 0.0 or below, gsd alone when its
///                   denominator is 0.0
KAV_API void V_GMeanGSD(const matrix* x, int n, const short* exclude, const matrix* w, double* gmean,
                        double* gsd);

/// Weighted harmonic mean, sum(w[i]) / sum(w[i] / x[i]). Negative cells are accepted.
/// @return the marker when a used cell is 0.0; NaN when no cell is used
KAV_API double V_HarmonicMean(const matrix* x, int n, const short* exclude, const matrix* w);

/// Weighted mean absolute deviation from centre, sum(abs(x[i] - centre) * w[i]) / sum(w[i]).
/// @return NaN when no cell is used
KAV_API double V_MeanAbsDev(const matrix* x, int n, double centre, const short* exclude, const matrix* w);
