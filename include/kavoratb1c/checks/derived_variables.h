// Variances of derived variables.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Variances and covariances of n linear combinations of p variables: L.S.L' from their covariances S.
/// Missing cells count by their values; sums in the order of M_ProductABTrA.
///
/// @param combinations  L, n x p: a combination a row
/// @param covariances   S, p x p
/// @param variances     out, prepared, n x 1: the diagonal
/// @param newCovariances  out, prepared, n x n
KAV_API void ComputeNewVar(const matrix* combinations, int n, int p, const matrix* covariances,
                           matrix*& variances, matrix*& newCovariances);
