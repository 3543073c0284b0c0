#include "kavoratb1c/stats/quantiles.h"

#include <algorithm>
#include <cmath>

#include "access/usable.h"
#include "numerics/scalar.h"
#include "sort/ordering.h"

using namespace kav;

namespace {

/// The cells that are present and not excluded, with their weights where there are any.
struct UsedCells {
  UsedCells(const matrix* x, int n, const short* exclude, const matrix* w)
      : values(static_cast<std::size_t>(std::max(n, 0))), weights(w == nullptr ? 0 : values.size()) {
    const usable::Cells cells(x, n);
    const block::Values weight(w, w == nullptr ? 0 : n);
    usable::forEach(n, usable::PresentNotExcluded(cells, exclude), [&](int i) {
      if (w != nullptr) weights[count] = weight[i];
      values[count++] = cells[i];
    });
  }

  Scratch<double> values;
  Scratch<double> weights;
  int count = 0;
};

double fractionOf(double p) { return std::isnan(p) ? p : std::clamp(p, 0.0, 1.0); }

double quantile(const double* x, int n, double p) {
  if (n < 1) return kOutside;
  if (std::isnan(p)) return p;
  const double h = (n - 1) * fractionOf(p);
  const double j = std::floor(h);
  const ordering::Neighbours s = ordering::neighboursAt(x, n, static_cast<int>(j));
  if (scalar::IsLong(h) || s.at == s.next) return s.at;
  const double f = h - j;
  return (1.0 - f) * s.at + f * s.next;
}

bool areEqual(const double* w, int n) {
  return std::all_of(w, w + n, [=](double weight) { return weight == w[0]; });
}

double weightedQuantile(const double* x, const double* w, int n, double p) {
  bool any = false;
  for (int i = 0; i < n && !any; ++i) any = w[i] > 0.0 && !isMarker(x[i]);
  if (!any) return kMissing;
  if (areEqual(w, n)) return quantile(x, n, p);
  if (std::isnan(p)) return p;
  const ordering::RowOrder order(x, n, false);
  const double fraction = fractionOf(p);
  if (fraction == 0.0) return x[order[0]];
  if (fraction == 1.0) return x[order[n - 1]];
  double total = 0.0;
  for (int k = 0; k < n; ++k) total += w[order[k]];
  const double threshold = fraction * total;
  double cumulative = w[order[0]];
  for (int k = 1; k < n; ++k) {
    if (cumulative == threshold) return (x[order[k - 1]] + x[order[k]]) / 2.0;
    if (cumulative > threshold) return x[order[k - 1]];
    cumulative += w[order[k]];
  }
  return x[order[n - 1]];
}

double weightedQuantile(const UsedCells& used, double p) {
  return weightedQuantile(used.values.data(), used.weights.data(), used.count, p);
}

}  // namespace

double V_Quantile(const matrix* x, int n, double p) { return quantile(block::Values(x, n).data(), n, p); }

double V_QuantileM(const matrix* x, int n, const short* exclude, double p) {
  if (!usable::given(n, exclude)) return kMissing;
  const UsedCells used(x, n, exclude, nullptr);
  return used.count == 0 ? kMissing : quantile(used.values.data(), used.count, p);
}

double V_QuantileW(const matrix* x, int n, const matrix* w, double p) {
  if (!usable::given(n, w)) return kMissing;
  return weightedQuantile(block::Values(x, n).data(), block::Values(w, n).data(), n, p);
}

double V_QuantileMW(const matrix* x, int n, const short* exclude, const matrix* w, double p) {
  if (!usable::given(n, exclude, w)) return kMissing;
  return weightedQuantile(UsedCells(x, n, exclude, w), p);
}

double M_QuantileMW(const matrix* a, int rows, int column, const short* exclude, const matrix* w, double p) {
  if (rows < 1) return kMissing;
  matrix cells(rows, 1, kOutside);
  if (a != nullptr && column >= 1) {
    for (int i = 0; i < rows; ++i) {
      cells.values[i] = a->getElement(i, column - 1);
      cells.missing[i] = a->getMissing(i, column - 1);
    }
  }
  return V_QuantileMW(&cells, rows, exclude, w, p);
}

double V_MedianAbsDev(const matrix* x, int n, double median, const short* exclude, const matrix* w) {
  if (!usable::given(n, exclude, w)) return kMissing;
  UsedCells used(x, n, exclude, w);
  for (int i = 0; i < used.count; ++i) used.values[i] = std::fabs(used.values[i] - median);
  return weightedQuantile(used, 0.5);
}
