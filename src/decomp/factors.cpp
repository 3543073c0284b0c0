// What factor analyses make of eigenvalues and coordinates.

#include "kavoratb1c/decomp/factors.h"

#include <algorithm>
#include <vector>

#include "access/block.h"
#include "access/results.h"
#include "kavoratb1c/algebra/elementwise.h"
#include "kavoratb1c/stats/vector_sums.h"
#include "numerics/scalar.h"
#include "numerics/thresholds.h"

using namespace kav;

namespace {

/// Eigenvalues that are kept. Not dropping looks at the last one alone, and zeroes it: the scan would come
/// back to it for ever.
int keptOf(matrix* values, int n, short drop, double minimum) {
  int kept = n;
  while (kept > 1) {
    const double last = values == nullptr ? kOutside : values->getElement(kept - 1);
    if (last >= minimum) break;
    if (drop == kTrue) {
      --kept;
    } else {
      if (values != nullptr) values->setElement(kept - 1, 0, 0.0);
      break;
    }
  }
  return kept;
}

/// newCells(first + i, k) = of(cells(i, k), factors[k]); 0.0 where the eigenvalue is.
template <class Of>
void rescale(const matrix* cells, int rows, const matrix* values, const std::vector<double>& factors,
             matrix* newCells, int first, Of of) {
  const auto axes = static_cast<int>(factors.size());
  const block::Values from(cells, rows, axes), eigenvalues(values, axes);
  for (int k = 0; k < axes; ++k) {
    for (int i = 0; i < rows && eigenvalues[k] != 0.0; ++i) {
      newCells->setElement(first + i, k, of(from.column(k)[i], factors[static_cast<std::size_t>(k)]));
    }
  }
}

}  // namespace

int FilterEigen(matrix*& values, int n, short drop, double minimum, double cumulative, int most,
                double kaiser, int& kept, int& selected, matrix*& percentages) {
  kept = keptOf(values, std::max(n, 0), drop, minimum);
  results::refill(percentages, n, 1);
  const block::Values cells(values, n);
  const double total = V_Sum2(values, kept) * 0.01;
  for (int k = 0; k < kept; ++k) percentages->setElement(k, 0, cells[k] / total);
  int byPercentage = kept;
  double sum = 0.0;
  for (int k = 0; k < kept && cumulative > 0.0 && byPercentage == kept; ++k) {
    sum += cells[k] / total;
    if (sum >= cumulative) byPercentage = k + 1;
  }
  const int byCount = most > 0 ? most : kept;
  int byKaiser = kept;
  for (int k = 0; k < kept && kaiser > 0.0; ++k) byKaiser -= cells[k] < kaiser + kZero ? 1 : 0;
  selected = std::min({kept, byPercentage, byCount, byKaiser});
  return 0;
}

void cComputeCosines(const matrix* f, int n, int q, matrix*& cosines) {
  results::keepAny(cosines, n, q);
  if (n < 1 || q < 1) return;
  const block::Values cells(f, n, q);
  matrix squares(n, 1, 0.0);
  M_SquaredRows(f, n, q, &squares);
  block::Target target(cosines, n, q);
  for (int j = 0; j < q; ++j) {
    for (int i = 0; i < n; ++i) {
      const double x = cells.column(j)[i];
      if (squares.values[i] > 0.0) target.column(j)[i] = x * x / squares.values[i];
    }
  }
  target.store();
}

void BiplotTransData(const matrix* scores, const matrix* supplementary, const matrix* loadings, int n,
                     int nSupp, int p, int axes, const matrix* values, double scale, double exponent,
                     matrix*& newScores, matrix*& newLoadings) {
  const int active = std::max(n, 0), others = supplementary == nullptr ? 0 : std::max(nSupp, 0);
  results::refill(newScores, addressing::together(active, others), axes);
  results::refill(newLoadings, p, axes);
  const block::Values cells(values, axes);
  std::vector<double> factors;
  factors.reserve(static_cast<std::size_t>(std::max(axes, 0)));
  for (int k = 0; k < axes; ++k) factors.push_back(scalar::power(cells[k], exponent) * scale);
  const auto times = [](double x, double g) { return x * g; };
  const auto divided = [](double x, double g) { return x / g; };
  rescale(scores, active, values, factors, newScores, 0, times);
  rescale(supplementary, others, values, factors, newScores, active, times);
  rescale(loadings, p, values, factors, newLoadings, 0, divided);
}
