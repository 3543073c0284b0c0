#include "kavoratb1c/stats/other_means.h"

#include <cmath>

#include "access/results.h"
#include "access/usable.h"
#include "numerics/moments.h"
#include "numerics/scalar.h"

using namespace kav;

using results::give;

void V_GMeanGSD(const matrix* x, int n, const short* exclude, const matrix* w, double* gmean, double* gsd) {
  const block::Values cells(x, n), weights(w, n);
  bool positive = usable::given(n, exclude, w);
  const usable::NotExcluded used(exclude);
  for (int i = 0; i < n && positive; ++i) positive = !used(i) || !(cells[i] <= 0.0);
  moments::Moments m;
  if (positive) {
    usable::forEach(n, used, [&](int i) { m.add(scalar::naturalLog(cells[i]), weights[i]); });
  }
  const double divisor = moments::Denominator(kTrue, kFalse).of(m.total(), m.count());
  const bool spreads = positive && divisor != 0.0;
  give(gmean, positive ? scalar::exponential(m.mean()) : kMissing);
  give(gsd, spreads ? scalar::exponential(scalar::sqr(m.squares() / divisor)) : kMissing);
}

double V_HarmonicMean(const matrix* x, int n, const short* exclude, const matrix* w) {
  if (!usable::given(n, exclude, w)) return kMissing;
  const block::Values cells(x, n), weights(w, n);
  const usable::NotExcluded used(exclude);
  double total = 0.0;
  double sum = 0.0;
  for (int i = 0; i < n; ++i) {
    if (!used(i)) continue;
    if (cells[i] == 0.0) return kMissing;
    total += weights[i];
    sum += weights[i] / cells[i];
  }
  return total / sum;
}

double V_MeanAbsDev(const matrix* x, int n, double centre, const short* exclude, const matrix* w) {
  if (!usable::given(n, exclude, w)) return kMissing;
  const block::Values cells(x, n), weights(w, n);
  double total = 0.0;
  double sum = 0.0;
  usable::forEach(n, usable::NotExcluded(exclude), [&](int i) {
    total += weights[i];
    sum += std::fabs(cells[i] - centre) * weights[i];
  });
  return sum / total;
}
