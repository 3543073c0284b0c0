#include "kavoratb1c/stats/vector_moments.h"

#include <cmath>

#include "access/results.h"
#include "access/usable.h"
#include "numerics/moments.h"
#include "numerics/scalar.h"

using namespace kav;

using moments::Denominator;
using results::give;

namespace {

template <class Rule>
moments::Moments momentsOf(const usable::Cells& cells, int n, const block::Values& weights, Rule rule) {
  moments::Moments m;
  usable::forEach(n, rule, [&](int i) { m.add(cells[i], weights[i]); });
  return m;
}

double variance(const moments::Moments& m, const Denominator& denominator) {
  return m.squares() / denominator.of(m.total(), m.count());
}

/// Skewness and excess kurtosis, of the population (P) and of the sample.
struct Shape {
  double skewP = kMissing;
  double kurtP = kMissing;
  double skew = kMissing;
  double kurt = kMissing;
};

Shape shapeOf(const moments::ShapeMoments& m, double var, double k) {
  const double total = m.total();
  Shape shape;
  shape.skewP = (m.third() / total) / scalar::threeHalvesPower(var);
  // The test is on the mean weight, also where the formula takes off 1.
  if (!(total - 2.0 * (total / m.count()) <= 0.0)) {
    shape.skew = scalar::sqr((total - k) * total) * shape.skewP / (total - 2.0 * k);
  }
  shape.kurtP = (m.fourth() / total) / (var * var) - 3.0;
  const double divisor = (total - 2.0 * k) * (total - 3.0 * k);
  if (!(divisor <= 0.0)) {
    shape.kurt = ((shape.kurtP + 3.0) * (k + total) - 3.0 * (total - k)) * (total - k) / divisor;
  }
  return shape;
}

}  // namespace

double V_Var(const matrix* x, int n, const short* exclude, const matrix* w, short unbiased, short biasIsOne) {
  if (!usable::given(n, exclude, w)) return kMissing;
  const usable::Cells cells(x, n);
  const block::Values weights(w, n);
  return variance(momentsOf(cells, n, weights, usable::PresentNotExcluded(cells, exclude)),
                  Denominator(unbiased, biasIsOne));
}

double V_Stdev(const matrix* x, int n, const short* exclude, const matrix* w, short unbiased,
               short biasIsOne) {
  const double var = V_Var(x, n, exclude, w, unbiased, biasIsOne);
  return isMarker(var) ? kMissing : scalar::sqr(var);
}

short V_MeanVar(const matrix* x, int n, double* mean, double* var, const short* exclude, const matrix* w,
                short unbiased, short biasIsOne) {
  if (!usable::given(n, exclude, w)) {
    give(mean, kMissing);
    give(var, kMissing);
    return kFalse;
  }
  const usable::Cells cells(x, n);
  const block::Values weights(w, n);
  const moments::Moments m =
      momentsOf(cells, n, weights, usable::PresentAndWeighted(cells, exclude, weights));
  give(mean, m.mean());
  give(var, variance(m, Denominator(unbiased, biasIsOne)));
  return kTrue;
}

short V_MeanStdev(const matrix* x, int n, double* mean, double* stdev, const short* exclude, const matrix* w,
                  short unbiased, short biasIsOne) {
  double var;
  const short done = V_MeanVar(x, n, mean, &var, exclude, w, unbiased, biasIsOne);
  give(stdev, done == kTrue ? scalar::sqr(var) : var);
  return done;
}

void V_MeanVarSkewPKurtP(const matrix* x, int n, double* mean, double* var, double* skewP, double* kurtP,
                         double* skew, double* kurt, const short* exclude, const matrix* w, short unbiased,
                         short biasIsOne) {
  double m = kMissing;
  double v = kMissing;
  Shape shape;
  if (usable::given(n, exclude, w)) {
    const block::Values cells(x, n);
    const block::Values weights(w, n);
    moments::ShapeMoments sums;
    usable::forEach(n, usable::WeightedNotExcluded(exclude, weights),
                    [&](int i) { sums.add(cells[i], weights[i]); });
    const Denominator denominator(unbiased, biasIsOne);
    const double divisor = denominator.of(sums.total(), sums.count());
    m = sums.mean();
    if (!(denominator.unbiased && divisor == 0.0)) {
      v = sums.second() / divisor;
      if (v != 0.0) shape = shapeOf(sums, v, denominator.bias(sums.total(), sums.count()));
    }
  }
  give(mean, m);
  give(var, v);
  give(skewP, shape.skewP);
  give(kurtP, shape.kurtP);
  give(skew, shape.skew);
  give(kurt, shape.kurt);
}

double CorrelPearson(const matrix* x, const matrix* y, int n, const short* exclude, const matrix* w, short,
                     short) {
  if (!usable::given(n, exclude, w)) return kMissing;
  const usable::Cells a(x, n), b(y, n);
  const block::Values weights(w, n);
  const usable::Present present(b);
  moments::PairMoments sums;
  usable::forEach(n, usable::PresentAndWeighted(a, exclude, weights), [&](int i) {
    if (present(i)) sums.add(a[i], b[i], weights[i]);
  });
  if (sums.count() == 0.0) return kMissing;
  if (sums.squaresX() == 0.0 || sums.squaresY() == 0.0) return 0.0;
  // One root makes a vector's correlation with itself exactly 1.0; two are taken where the product overflows
  // or vanishes.
  const double product = sums.squaresX() * sums.squaresY();
  const bool representable = std::isnormal(product);
  return sums.products() /
         (representable ? scalar::sqr(product) : scalar::sqr(sums.squaresX()) * scalar::sqr(sums.squaresY()));
}
