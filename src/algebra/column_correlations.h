// Correlations of columns that are no table of their own. Internal.
#pragma once

#include <vector>

#include "core/matrix.h"

/// As M_CovCorrAndMeanStDevVar of a table that these columns make side by side, none of its cells flagged:
/// correlations of all rows, unbiased, weights as frequencies.
///
/// @param columns  n cells each
void correlationsOfColumns(const std::vector<const double*>& columns, int n, const matrix* weights,
                           matrix*& correlations, matrix*& means, matrix*& stdevs, matrix*& variances);
