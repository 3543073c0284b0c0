// Projection steps of alternating least squares on tables with missing cells.

#include <cmath>

#include "core/addressing.h"
#include "core/storage.h"
#include "kavoratb1c/matrix.h"

using namespace kav;

namespace {

/// Whether a cell of a table leaves its term out of a denominator. Cells outside do not.
bool isAbsent(const matrix* m, std::int64_t k) {
  if (m == nullptr || !addressing::isInside(*m, k)) return false;
  return std::isnan(m->values[k]) || isMissing(m->values[k], m->missing[k]);
}

template <class Weight>
double innerProduct(const matrix& t, int col, bool byRow, int idx, const matrix* m, Weight weight) {
  double sum = 0.0;
  for (int i = 0; i < t.nX; ++i) {
    const int rows = m == nullptr ? 0 : m->nX;
    const std::int64_t companion =
        byRow ? addressing::linearIndex(idx, i, rows) : addressing::linearIndex(i, idx, rows);
    if (isAbsent(m, companion)) continue;
    const double x = t.getElement(i, col);
    sum += x * x * weight(i);
  }
  return sum;
}

double divided(double numerator, double denominator) {
  return numerator / (denominator == 0.0 || std::isnan(denominator) ? 1.0 : denominator);
}

constexpr auto kUnweighted = [](int) { return 1.0; };

/// The row step, each numerator term times weight(r).
template <class Weight>
void rowStep(const matrix& x, const matrix* t, int k, matrix* out, Weight weight) {
  if (t == nullptr || out == nullptr) return;
  for (int r = 0; r < out->nX; ++r) {
    double numerator = 0.0;
    for (int j = 0; j < x.pX; ++j) numerator += x.getElement(r, j) * t->getElement(j, k) * weight(r);
    out->setElement(r, k, divided(numerator, t->VInnerProd(k, true, r, &x)));
  }
}

/// The column step, each numerator term times weight(i).
template <class Weight>
void columnStep(const matrix& x, const matrix* t, int k, matrix* out, bool weightedDenominator,
                Weight weight) {
  if (t == nullptr || out == nullptr) return;
  for (int c = 0; c < out->nX; ++c) {
    double numerator = 0.0;
    for (int i = 0; i < x.nX; ++i) numerator += x.getElement(i, c) * t->getElement(i, k) * weight(i);
    const double denominator =
        weightedDenominator ? t->VInnerProdWeighted(k, false, c, &x) : t->VInnerProd(k, false, c, &x);
    out->setElement(c, k, divided(numerator, denominator));
  }
}

}  // namespace

double matrix::VInnerProd(int col, bool byRow, int idx, const matrix* m) const {
  return innerProduct(*this, col, byRow, idx, m, kUnweighted);
}

double matrix::VInnerProdWeighted(int col, bool byRow, int idx, const matrix* m) const {
  return innerProduct(*this, col, byRow, idx, m, [this](int i) { return storage::rowWeight(*this, i); });
}

void matrix::GaussProd(const matrix* t, int k, matrix* out) const { rowStep(*this, t, k, out, kUnweighted); }

void matrix::GaussProdWeighted(const matrix* t, int k, matrix* out) const {
  rowStep(*this, t, k, out, [this](int r) { return storage::rowWeight(*this, r); });
}

void matrix::transGaussProd(const matrix* t, int k, matrix* out) const {
  columnStep(*this, t, k, out, false, kUnweighted);
}

void matrix::transGaussProdWeighted(const matrix* t, int k, matrix* out) const {
  columnStep(*this, t, k, out, true, [this](int i) { return storage::rowWeight(*this, i); });
}
