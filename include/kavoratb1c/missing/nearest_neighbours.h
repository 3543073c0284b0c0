// Missing cells of rows estimated from the nearest row that has them.
//
// A row is described by three tables side by side: two of numbers, with p1 and p2 columns, and one of labels,
// with p3; a table without columns may be null. Rows that are learned from - donors - are those without a
// flag and with a weight above 0. The distance of a row to a donor is the heterogeneous Euclidean-overlap
// distance (Wilson and Martinez 1997, Journal of Artificial Intelligence Research 6, equation 9):
//
//     d^2 = sum over the columns of d(j)^2, in the order of the columns
//     d(j) = 1                where either cell is missing, or a difference is not a number
//     d(j) = (x - y) / range  in columns of numbers; range: largest less smallest number of the donors
//     d(j) = 0 or 1           for equal or different labels, also for numbers where that range is 0
//
// Each missing cell gets the cell of the donor that has it and is nearest by d^2, of equally near ones the
// first. It stays missing when there is none. Filled cells teach nothing, and a cell that is NaN without
// being missing is never given. An infinite range makes all finite numbers equal.
//
// Cost: rows with missing cells x donors x columns at most; a distance is given up when it cannot win.
#pragma once

#include "kavoratb1c/Smatrix.h"
#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Donors are rows of the tables themselves.
///
/// @param flags  n; null flags none
/// @param w      n; null weights every row
KAV_API void EstimateRowsWithMissingNN(matrix* table1, int n, int p1, const short* flags, matrix* table2,
                                       int p2, Smatrix* table3, int p3, const matrix* w);

/// Donors are rows of other tables (m rows) with the same columns; flags and weights are theirs.
KAV_API void EstimateRowsWithMissingNNPred(const matrix* learned1, int m, matrix* table1, int n, int p1,
                                           const short* flags, const matrix* learned2, matrix* table2, int p2,
                                           const Smatrix* learned3, Smatrix* table3, int p3, const matrix* w);
