// Newton's method for the parameters of a model.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// One step: parameters minus inverse Hessian times gradient. The caller computes both anew at the new
/// parameters and calls again, until it has converged.
///
/// @param parameters  p cells, in and out; those that are excluded stay
/// @param excluded    p cells: 0.0 estimated, above 0.0 excluded
/// @param gradient    p cells, of the objective at the parameters
/// @param hessian     p x p
/// @param tolerance   converged when no estimated parameter moves by more; one that becomes NaN does not
/// @param errors      p cells out: the roots of the absolute diagonal of the inverse; not written where
///                    excluded (a null pointer receives a new container)
/// @param inverse     prepared, p x p: of the estimated parameters, 0.0 in rows and columns of the others
/// @param limited     -1: a step whose largest cell is above `largest` in absolute value is shortened to it
/// @param largest     0.0 makes steps of 0.0 or NaN
/// @return 1 converged, 0 not yet, -1 the Hessian cannot be inverted: nothing is written
KAV_API int cNewtonRaphson(matrix*& parameters, int p, const matrix* excluded, const matrix* gradient,
                           const matrix* hessian, double tolerance, matrix*& errors, matrix*& inverse,
                           short limited, double largest);
