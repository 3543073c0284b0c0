// Missing cells filled from the nearest row that has the cell.
//
// A row is described by three tables side by side: two of numbers, with p1 and p2 columns, and one of labels,
// with p3 columns; a table without columns may be null. Tables are leading blocks: the first n rows of a
// container, whatever its own size; a cell outside it reads -1.0, or the empty string, and is not filled. A
// number is missing when it is flagged or holds the marker, a label when it is empty.
//
// Donors are the rows without a flag and with a weight above 0. The distance of a row to a donor is the
// heterogeneous Euclidean-overlap distance (Wilson and Martinez 1997, Journal of Artificial Intelligence
// Research 6, equation 9):
//
//     d^2 = sum over the columns of d(j)^2, in the order of the columns
//     d(j) = 1                where either cell is missing, or the difference is not a number
//     d(j) = (x - y) / range  for numbers, range being the donors' largest value minus their smallest
//     d(j) = 0 or 1           for equal or different labels, also for numbers where the range is 0
//
// Each missing cell receives the value of the nearest donor by d^2 that has the cell, of equally near ones
// the first, and loses its missing flag; it stays missing when no donor has it. Filled cells are not used for
// other cells. A donor's cell that is NaN without being missing is never copied. With an infinite range all
// finite numbers are equal.
//
// Cost: at most rows with missing cells x donors x columns; a distance is abandoned once it cannot win.
#pragma once

#include "kavoratb1c/Smatrix.h"
#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Donors are rows of the tables themselves.
///
/// @param flags  n, any non-zero: the row is no donor; null flags none
/// @param w      n weights; null: 1.0 each
KAV_API void EstimateRowsWithMissingNN(matrix* table1, int n, int p1, const short* flags, matrix* table2,
                                       int p2, Smatrix* table3, int p3, const matrix* w);

/// Donors are rows of other tables (m rows) with the same columns; flags and weights are m each.
KAV_API void EstimateRowsWithMissingNNPred(const matrix* learned1, int m, matrix* table1, int n, int p1,
                                           const short* flags, const matrix* learned2, matrix* table2, int p2,
                                           const Smatrix* learned3, Smatrix* table3, int p3, const matrix* w);
