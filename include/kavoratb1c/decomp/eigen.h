// Eigenvalues and eigenvectors of symmetric matrices.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Eigenvalues and unit eigenvectors of a symmetric matrix, by Householder reduction to tridiagonal form and
/// QL steps with implicit shifts (Press, Teukolsky, Vetterling and Flannery 1992, sections 11.2 and 11.3).
///
/// The signs of eigenvectors are those that the rotations give.
///
/// @param a        leading n x n block; only its lower triangle is read; a cell outside the container reads
///                 -1.0
/// @param values   out, n x 1, refilled (a container of another shape is replaced by a new one); like vectors
///                 another container than a
/// @param vectors  out, n x n, refilled likewise: column k belongs to value k
/// @param sort     non-zero: decreasing values, by SortQ
/// @return 0; -1 when a value needs more than 28 steps, with both results part-way
KAV_API int M_Eigen(const matrix* a, matrix*& values, matrix*& vectors, int n, int sort);
