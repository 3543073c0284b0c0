// Missing cells of a table estimated from the cells present in their column.
//
// Tables are leading n x p blocks of a container. What is learned comes from the cells that are present in
// rows without a flag and with a weight other than 0.0; all rows are filled, also flagged ones. A column that
// teaches nothing stays missing. The forms with Pred learn from one table (m rows) and fill another (n rows)
// with the same columns; flags and weights belong to the rows that are learned from.
//
// @param flags  of the rows learned from; null flags none
// @param w      of the same rows; null weights them 1.0
#pragma once

#include "kavoratb1c/Smatrix.h"
#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// With the column's weighted mean, as V_Mean has it. A column whose mean is not finite stays missing.
KAV_API void EstimateRowsWithMissingMean(matrix* a, int n, int p, const short* flags, const matrix* w);
KAV_API void EstimateRowsWithMissingMeanPred(const matrix* learned, int m, matrix* a, int n, int p,
                                             const short* flags, const matrix* w);

/// With the column's weighted mode: of equally heavy labels the first in string order. Unlike with V_Mode a
/// label whose rows all weigh 0.0 is none.
KAV_API void EstimateRowsWithMissingMode(Smatrix* a, int n, int p, const short* flags, const matrix* w);
KAV_API void EstimateRowsWithMissingModePred(const Smatrix* learned, int m, Smatrix* a, int n, int p,
                                             const short* flags, const matrix* w);
