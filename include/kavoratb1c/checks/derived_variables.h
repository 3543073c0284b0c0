// Variances of derived variables.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Variances and covariances of n linear combinations L of p variables with covariances S: (L.S).L'.
///
/// Operands are leading blocks of a container; a cell outside it reads -1.0. Missing cells enter by their
/// values. Each sum is added in ascending order, from 0.0. In a result, a container of just that shape is
/// refilled with 0.0 (a flagged cell keeps 0.0: later writes to it are dropped); any other pointer receives a
/// new container, which belongs to the caller.
///
/// @param combinations    L, n x p: one combination per row
/// @param covariances     S, p x p
/// @param variances       out, n x 1: the diagonal of newCovariances
/// @param newCovariances  out, n x n
KAV_API void ComputeNewVar(const matrix* combinations, int n, int p, const matrix* covariances,
                           matrix*& variances, matrix*& newCovariances);
