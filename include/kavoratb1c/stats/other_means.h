// Means of other kinds, as macros call them. Vectors as in vector_sums.h.
//
// Used are the cells that are not excluded: missing cells are not told from others, and a weight of 0.0 does
// not leave a cell out.
//
//     exclude w   n each, required; without them results are the marker
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Weighted geometric mean and geometric standard deviation: exponentials of the weighted mean of ln x and of
/// the root of S / (W - W / c), in the terms of vector_moments.h.
///
/// @param gmean gsd  out, null takes nothing; both the marker when a used cell is not above 0.0, gsd alone
///                   when its divisor is 0.0
KAV_API void V_GMeanGSD(const matrix* x, int n, const short* exclude, const matrix* w, double* gmean,
                        double* gsd);

/// Weighted harmonic mean, sum(w[i]) / sum(w[i] / x[i]); negative cells are accepted.
/// @return the marker as soon as a used cell is 0.0; NaN when none is used
KAV_API double V_HarmonicMean(const matrix* x, int n, const short* exclude, const matrix* w);

/// Weighted mean of the absolute deviations from centre; NaN when no cell is used.
KAV_API double V_MeanAbsDev(const matrix* x, int n, double centre, const short* exclude, const matrix* w);
