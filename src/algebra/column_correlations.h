// Correlations of columns that are no container of their own. Internal.
#pragma once

#include <vector>

#include "kavoratb1c/matrix.h"

namespace kav {

/// The results of M_CovCorrAndMeanStDevVar for a table that these columns make side by side, none of its
/// cells flagged: correlations over all rows, unbiased, weights as frequencies.
struct ColumnCorrelations {
  /// For p columns, not computed yet.
  explicit ColumnCorrelations(int p)
      : correlations(p, p, 0.0), means(p, 1, 0.0), deviations(p, 1, 0.0), variances(p, 1, 0.0) {}

  /// @param columns  n cells each
  ColumnCorrelations(const std::vector<const double*>& columns, int n, const matrix* weights);

  matrix correlations, means, deviations, variances;
};

}  // namespace kav
