#include "stats/vector_sums.h"

#include "stats/usable.h"

namespace {

template <class Rule>
double sumOf(const double* x, int n, Rule use) {
  double sum = 0.0;
  for (int i = 0; i < n; ++i) {
    if (use(i)) sum += x[i];
  }
  return sum;
}

template <class Rule>
double weightedSumOf(const double* x, const double* w, int n, Rule use) {
  double sum = 0.0;
  for (int i = 0; i < n; ++i) {
    if (use(i)) sum += x[i] * w[i];
  }
  return sum;
}

template <class Rule>
double sumOf(const double* x, int n, const matrix* w, Rule use) {
  return w == nullptr ? sumOf(x, n, use) : weightedSumOf(x, block::Values(w, n).data(), n, use);
}

}  // namespace

double V_Sum(const matrix* x, int n, const short* exclude, const matrix* w) {
  const block::Values cells(x, n);
  return exclude == nullptr ? sumOf(cells.data(), n, w, usable::Every{})
                            : sumOf(cells.data(), n, w, usable::NotExcluded{exclude});
}

double V_Sum2(const matrix* x, int n) { return V_Sum(x, n, nullptr, nullptr); }

double V_Mean(const matrix* x, int n, const short* exclude, const matrix* w) {
  if (n >= 1 && (exclude == nullptr || w == nullptr)) return kMissing;
  const block::Values cells(x, n);
  const block::Flags flags(x, n);
  const block::Values weights(w, n);
  const usable::PresentAndWeighted use{cells.data(), flags.data(), exclude, weights.data()};
  double sum = 0.0;
  double total = 0.0;
  for (int i = 0; i < n; ++i) {
    if (use(i)) {
      total += weights[i];
      sum += cells[i] * weights[i];
    }
  }
  return sum / total;
}
