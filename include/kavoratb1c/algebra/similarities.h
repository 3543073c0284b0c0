// Distances, similarities, and matrices made symmetric.
//
// Operands are leading blocks: the first n rows and p columns of a container, whatever its own size; a cell
// outside the container reads -1.0. Missing: flagged, or holding the marker. In place, flagged cells keep
// what they hold.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Squared weighted Euclidean distances between the rows of a table, or between its columns. Missing cells
/// enter by their values.
///
/// @param a          n x p
/// @param distances  out, another container than a: n x n, or p x p when byRows is 0. One of just that shape
///                   is refilled with 0.0 (a flagged cell keeps 0.0: later writes to it are dropped); any
///                   other pointer receives a new container, which belongs to the caller.
/// @param weights    p weights, n when byRows is 0; null: 1.0 each
/// @param byRows     0: between columns; any other value: between rows
KAV_API void M_EuclidDist2(const matrix* a, int n, int p, matrix*& distances, const matrix* weights,
                           short byRows);

/// Converts similarities to dissimilarities in place: both cells (i,j) and (j,i), i < j, become
/// s(i,i) - s(i,j), the diagonal 0.0. Where s(i,i) or s(i,j) is missing both become the marker.
///
/// @param s  p x p
KAV_API void M_TransformSimToDissim(matrix*& s, int p);

/// Whether a matrix holds similarities or dissimilarities.
///
/// @param t  n x n
/// @return 0 for dissimilarities: diagonal 0.0, other cells at least 0.0;
///         1 for similarities: each diagonal cell is the largest of its row and column;
///         apriori when both fit;
///         -1 when neither fits or a cell is missing
KAV_API int M_CheckIfSimOrDissim(const matrix* t, int n, int apriori);

/// Makes an n x n matrix symmetric in place.
///
/// @param type  0: both cells become their mean, or the marker where either holds it; 1: the upper triangle
///              is copied to the lower; 2: the lower to the upper; any other value changes nothing
KAV_API void M_Symmetrize(matrix* t, int n, int type);
