// Products of a table with others, member by member.

#include "core/addressing.h"
#include "core/storage.h"
#include "kavoratb1c/matrix.h"
#include "numerics/moments.h"

using namespace kav;

namespace {

template <class Cell>
double sumOver(int count, Cell cell) {
  double sum = 0.0;
  for (int k = 0; k < count; ++k) sum += cell(k);
  return sum;
}

double squareOf(double x) { return x * x; }

double read(const matrix* m, int i, int j) { return m == nullptr ? kOutside : m->getElement(i, j); }

}  // namespace

void matrix::matProd(const matrix* b, matrix* out) const {
  if (b == nullptr || out == nullptr) return;
  for (int i = 0; i < nX; ++i) {
    for (int j = 0; j < b->pX; ++j) {
      out->setElement(i, j, sumOver(pX, [&](int k) { return getElement(i, k) * b->getElement(k, j); }));
    }
  }
}

void matrix::transMatProd(const matrix* b, matrix* out) const {
  if (b == nullptr || out == nullptr) return;
  for (int i = 0; i < pX; ++i) {
    for (int j = 0; j < b->pX; ++j) {
      out->setElement(i, j, sumOver(nX, [&](int k) { return getElement(k, i) * b->getElement(k, j); }));
    }
  }
}

void matrix::matVecProd(const matrix* v, int col, matrix* out, int outCol) const {
  if (out == nullptr) return;
  for (int i = 0; i < nX; ++i) {
    out->setElement(i, outCol, sumOver(pX, [&](int k) { return getElement(i, k) * read(v, k, col); }));
  }
}

double matrix::vecProd(int col, const matrix* v, int vCol) const {
  return sumOver(nX, [&](int i) { return getElement(i, col) * read(v, i, vCol); });
}

void matrix::trans1vecProd(int i, matrix* out) const {
  if (out == nullptr || i < 0 || i >= nX) return;
  const double weight = storage::rowWeight(*this, i);
  for (int a = 0; a < pX; ++a) {
    for (int b = 0; b < pX; ++b) {
      out->setElement(a, b, out->getElement(a, b) + weight * getElement(i, a) * getElement(i, b));
    }
  }
}

void matrix::VSProd(int j, double s) {
  for (int i = 0; i < nX; ++i) setElement(i, j, getElement(i, j) * s);
}

void matrix::transVSProd(int i, double s) { SProd(i, s); }

double matrix::lineSqrSum(int i) const {
  return sumOver(pX, [&](int j) { return squareOf(getElement(i, j)); });
}

double matrix::VDiff(int col, const matrix* other, int otherCol) const {
  return sumOver(nX, [&](int i) { return squareOf(getElement(i, col) - read(other, i, otherCol)); });
}

double matrix::MDiff(const matrix* other) const {
  double sum = 0.0;
  for (int j = 0; j < pX; ++j) {
    for (int i = 0; i < nX; ++i) sum += squareOf(getElement(i, j) - read(other, i, j));
  }
  return sum;
}

double matrix::calcMu(int j) const {
  moments::Moments m;
  for (int i = 0; i < nX; ++i) {
    if (!addressing::isInside(*this, addressing::linearIndex(i, j, nX)) || getMissing(i, j)) continue;
    const double weight = storage::rowWeight(*this, i);
    if (weight != 0.0) m.add(getElement(i, j), weight);
  }
  return m.count() == 0.0 ? kMissing : m.mean();
}

void matrix::oneMinus() {
  for (std::int64_t k = 0; k < addressing::cellCount(*this); ++k) {
    if (!missing[k]) values[k] = 1.0 - values[k];
  }
  descValid = 0;
}

void matrix::subtractResidual(const matrix* scores, const matrix* loadings, int k) {
  for (int j = 0; j < pX; ++j) {
    for (int i = 0; i < nX; ++i) {
      setElement(i, j, getElement(i, j) - read(scores, i, k) * read(loadings, j, k));
    }
  }
}

void matrix::predictLine(int i, const matrix* scores, const matrix* loadings, int factors,
                         matrix* out) const {
  if (out == nullptr) return;
  for (int j = 0; j < pX; ++j) {
    out->setElement(i, j, sumOver(factors, [&](int k) { return read(scores, i, k) * read(loadings, j, k); }));
  }
}
