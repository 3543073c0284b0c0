// Newton's method for the parameters of a model.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// One step of Newton's method: the parameters minus the inverse Hessian times the gradient. The caller
/// recomputes gradient and Hessian at the new parameters and calls again until it has converged.
///
/// Operands are leading blocks of a container; a cell outside it reads -1.0. In parameters and errors, cells
/// outside the container are dropped and flagged ones keep what they hold.
///
/// @param parameters  p cells, in and out; excluded ones are left unchanged
/// @param excluded    p cells: 0.0 estimated, above 0.0 excluded
/// @param gradient    p cells, of the objective at the parameters
/// @param hessian     p x p
/// @param tolerance   converged when no estimated parameter moves by more than this; one that becomes NaN
///                    counts as not moving
/// @param errors      out, p cells: the square roots of the absolute diagonal of the inverse; cells of
///                    excluded parameters are left unchanged; a null pointer receives a new p x 1 container
/// @param inverse     out, p x p: the inverse Hessian of the estimated parameters, 0.0 in rows and columns of
///                    the others. A container of just that shape is refilled with 0.0 (a flagged cell keeps
///                    0.0: later writes to it are dropped); any other pointer receives a new container, which
///                    belongs to the caller.
/// @param limited     -1: a step whose largest cell in absolute value exceeds `largest` is scaled down to it
/// @param largest     0.0 makes the step 0.0, or NaN where it is not finite
/// @return 1 converged (also when p is below 1, with nothing written);
///         0 not yet converged;
///         -1 the Hessian cannot be inverted: nothing is written
KAV_API int cNewtonRaphson(matrix*& parameters, int p, const matrix* excluded, const matrix* gradient,
                           const matrix* hessian, double tolerance, matrix*& errors, matrix*& inverse,
                           short limited, double largest);
