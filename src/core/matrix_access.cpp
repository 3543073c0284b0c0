// One cell at a time: the element rules, written down once for the six ways to address a cell.

#include "core/addressing.h"
#include "kavoratb1c/matrix.h"

using namespace kav;

using addressing::isInside;
using addressing::linearIndex;
using addressing::linearIndexFrom1;

namespace {

double read(const matrix& m, std::int64_t k) { return isInside(m, k) ? m.values[k] : kOutside; }

double write(matrix& m, std::int64_t k, double x) {
  if (!isInside(m, k)) return -1.0;
  if (!m.missing[k]) m.values[k] = x;
  m.descValid = 0;
  return 0.0;
}

bool readMissing(const matrix& m, std::int64_t k) {
  return isInside(m, k) && isMissing(m.values[k], m.missing[k]);
}

void writeMissing(matrix& m, std::int64_t k, bool f) {
  if (isInside(m, k)) m.missing[k] = f;
}

}  // namespace

int matrix::getNbrLines() const { return nX; }

int matrix::getNbrCols() const { return pX; }

double matrix::getElement(int k) const { return read(*this, k); }

double matrix::getElement(int i, int j) const { return read(*this, linearIndex(i, j, nX)); }

double matrix::vbget(int i, int j) const { return read(*this, linearIndexFrom1(i, j, nX)); }

double matrix::setElement(int k, double x) { return write(*this, k, x); }

double matrix::setElement(int i, int j, double x) { return write(*this, linearIndex(i, j, nX), x); }

double matrix::vbset(int i, int j, double x) { return write(*this, linearIndexFrom1(i, j, nX), x); }

bool matrix::getMissing(int k) const { return readMissing(*this, k); }

bool matrix::getMissing(int i, int j) const { return readMissing(*this, linearIndex(i, j, nX)); }

void matrix::setMissing(int k, bool f) { writeMissing(*this, k, f); }

void matrix::setMissing(int i, int j, bool f) { writeMissing(*this, linearIndex(i, j, nX), f); }
