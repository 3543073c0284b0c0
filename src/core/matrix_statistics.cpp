// Statistics of the columns and what is scaled by them.

#include <cmath>

#include "core/addressing.h"
#include "core/storage.h"
#include "kavoratb1c/matrix.h"
#include "numerics/moments.h"

using namespace kav;

namespace {

/// The weighted update over the present cells of a column.
moments::Moments momentsOf(const matrix& m, int j) {
  moments::Moments result;
  const std::int64_t begin = addressing::linearIndex(0, j, m.nX);
  for (int i = 0; i < m.nX; ++i) {
    const std::int64_t k = begin + i;
    if (!isMissing(m.values[k], m.missing[k])) result.add(m.values[k], storage::rowWeight(m, i));
  }
  return result;
}

/// Deviation for a denominator; the marker when that is not above 0.
double deviationOf(const moments::Moments& m, double denominator) {
  return denominator <= 0.0 ? kMissing : std::sqrt(m.squares() / denominator);
}

}  // namespace

double matrix::getDescMu(int j, short mode) {
  calcDescStat(mode);
  return j >= 0 && j < storage::describedColumns(*this) ? descmu[j] : kOutside;
}

double matrix::getDescSigma(int j, short mode) {
  calcDescStat(mode);
  return j >= 0 && j < storage::describedColumns(*this) ? descsigma[j] : kOutside;
}

int matrix::calcDescStat(short mode) {
  if (descValid == 1 && descMode == mode) return 0;
  descMode = mode;
  for (int j = 0; j < storage::describedColumns(*this); ++j) {
    const moments::Moments m = momentsOf(*this, j);
    if (m.count() == 0.0) {
      descmu[j] = descsigma[j] = kMissing;
      continue;
    }
    weightcorr[j] = moments::Denominator(mode, kFalse).of(m.total(), m.count());
    descmu[j] = m.mean();
    descsigma[j] = deviationOf(m, weightcorr[j]);
  }
  descValid = 1;
  return 0;
}

int matrix::Normalize() {
  if (normalized == 1) return -1;
  normalized = 1;
  for (int j = 0; j < storage::describedColumns(*this); ++j) {
    const moments::Moments m = momentsOf(*this, j);
    if (m.count() == 0.0) {
      normu[j] = norsigma[j] = 0.0;
    } else {
      weightcorr[j] = moments::Denominator(kTrue, kFalse).of(m.total(), m.count());
      const double deviation = deviationOf(m, weightcorr[j]);
      normu[j] = m.mean();
      norsigma[j] = isMarker(deviation) ? 0.0 : deviation;
    }
    const double divisor = norsigma[j] == 0.0 ? 1.0 : norsigma[j];
    for (int i = 0; i < nX; ++i) {
      setElement(i, j, (values[addressing::linearIndex(i, j, nX)] - normu[j]) / divisor);
    }
  }
  return 0;
}

int matrix::Normalize(int j) {
  const double length = std::sqrt(VInnerProd(j));
  const double divisor = length <= kMissing || length == 0.0 ? 1.0 : length;
  for (int i = 0; i < nX; ++i) setElement(i, j, getElement(i, j) / divisor);
  return 0;
}

double matrix::VInnerProd(int j) const {
  double sum = 0.0;
  for (int i = 0; i < nX; ++i) {
    const double x = getElement(i, j);
    sum += x * x;
  }
  return sum;
}

double matrix::SProd(int i, double s) {
  for (int j = 0; j < pX; ++j) setElement(i, j, getElement(i, j) * s);
  return 0.0;
}

double matrix::weighting(const double* s, int n) {
  for (int r = 0; s != nullptr && r < n; ++r) SProd(r, s[r]);
  return 0.0;
}
