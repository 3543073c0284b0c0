#include "kavoratb1c/stats/goodness_of_fit.h"

#include <algorithm>
#include <cmath>

#include "access/taking_part.h"
#include "numerics/scalar.h"

using namespace kav;

namespace {

/// Weighted sum of term(i) and sum of the weights, over the positions from first on that use(i) lets through.
struct Errors {
  template <class Use, class Term>
  Errors(int n, int first, const matrix* w, Use use, Term term) {
    const usable::RowWeights weights(w, n);
    for (int i = std::max(first, 1) - 1; i < n; ++i) {
      if (!use(i)) continue;
      sum += term(i) * weights[i];
      total += weights[i];
    }
  }

  double sum = 0.0;
  double total = 0.0;
};

double at(const matrix* table, int row, int column) {
  return table == nullptr ? kOutside : table->getElement(row, column);
}

}  // namespace

double MAPE(const matrix* obs, const matrix* pred, int n, const matrix* w, int first) {
  const usable::Cells y(obs, n), fitted(pred, n);
  const usable::Present observed(y), predicted(fitted);
  const Errors errors(
      n, first, w, [&](int i) { return y[i] != 0.0 && observed(i) && predicted(i); },
      [&](int i) { return std::fabs(1.0 - fitted[i] / y[i]); });
  return errors.total == 0.0 ? errors.sum : 100.0 * errors.sum / errors.total;
}

double MPE(const matrix* obs, const matrix* pred, int n, const matrix* w, int first) {
  if (w == nullptr) return kMissing;
  const block::Values y(obs, n), fitted(pred, n);
  const Errors errors(
      n, first, w, [&](int i) { return !isMarker(y[i]) && !isMarker(fitted[i]) && y[i] != 0.0; },
      [&](int i) { return (y[i] - fitted[i]) / y[i]; });
  return errors.total == 0.0 ? kMissing : 100.0 * errors.sum / errors.total;
}

double MAE(const matrix* obs, const matrix* pred, int n, const matrix* w, int first) {
  if (w == nullptr) return kMissing;
  const block::Values y(obs, n), fitted(pred, n);
  const Errors errors(
      n, first, w, [&](int i) { return !isMarker(y[i]) && !isMarker(fitted[i]); },
      [&](int i) { return std::fabs(y[i] - fitted[i]); });
  return errors.total == 0.0 ? kMissing : errors.sum / errors.total;
}

double RMSE(const matrix* obs, int rows, int column, const matrix* pred, int dof) {
  double sum = 0.0;
  for (int i = 0; i < rows && column >= 1; ++i) {
    const double y = at(obs, i, column - 1);
    if (y <= kMissing) continue;
    const double error = y - at(pred, i, column - 1);
    sum += error * error;
  }
  return scalar::sqr(sum / dof);
}
