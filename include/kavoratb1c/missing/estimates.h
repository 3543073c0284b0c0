// Missing cells of a table replaced by an estimate from the other cells of their column.
//
// A table is a leading block: the first n rows and p columns of a container; a cell outside the container
// reads -1.0, or the empty string, and is not filled. A number is missing when it is flagged or holds the
// marker, a label when it is empty.
//
// The estimate of a column comes from the cells that are not missing, in rows without a flag and with a
// weight other than 0.0. All rows are filled, flagged ones too, and filled cells lose their missing flag. A
// column without an estimate is left unchanged. The forms ending in Pred learn from one table (m rows) and
// fill another one (n rows) with the same columns.
//
// @param flags  one per row learned from, any non-zero leaves the row out; null leaves out none
// @param w      one weight per row learned from; null: 1.0 each
#pragma once

#include "kavoratb1c/Smatrix.h"
#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Fills with the column's weighted mean, sum(x[i] * w[i]) / sum(w[i]). A mean that is not finite is no
/// estimate: the column is left unchanged.
KAV_API void EstimateRowsWithMissingMean(matrix* a, int n, int p, const short* flags, const matrix* w);
KAV_API void EstimateRowsWithMissingMeanPred(const matrix* learned, int m, matrix* a, int n, int p,
                                             const short* flags, const matrix* w);

/// Fills with the column's weighted mode: the label with the largest sum of weights, of equal ones the first
/// in string order. Unlike in V_Mode a label that occurs only in rows of weight 0.0 is no candidate.
KAV_API void EstimateRowsWithMissingMode(Smatrix* a, int n, int p, const short* flags, const matrix* w);
KAV_API void EstimateRowsWithMissingModePred(const Smatrix* learned, int m, Smatrix* a, int n, int p,
                                             const short* flags, const matrix* w);
