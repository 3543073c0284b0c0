#include "kavoratb1c/matrix.h"

#include <algorithm>
#include <numeric>

#include "core/addressing.h"
#include "core/arrival.h"
#include "core/storage.h"

using namespace kav;

matrix::matrix(int rows, int columns) {
  storage::build(*this, storage::kNoRoom, rows, columns);
  std::fill_n(values, addressing::cellCount(*this), 0.0);
}

matrix::matrix(int rows, int columns, int v) : matrix(rows, columns, static_cast<double>(v)) {}

matrix::matrix(int rows, int columns, double v) {
  storage::build(*this, storage::kNoRoom, rows, columns);
  std::fill_n(values, addressing::cellCount(*this), v);
}

matrix::matrix(int rows, int columns, const int* a) {
  storage::build(*this, storage::kNoRoom, rows, columns);
  arrival::store(*this, a);
}

matrix::matrix(int rows, int columns, const short* a) {
  storage::build(*this, storage::kNoRoom, rows, columns);
  arrival::store(*this, a);
}

matrix::matrix(int rows, int columns, const double* a, bool keepAll, int srcRows, int srcCols) {
  storage::build(*this, storage::kNoRoom, rows, columns);
  arrival::store(*this, a, addressing::cellsSupplied(rows, columns, srcRows, srcCols), keepAll);
}

matrix::matrix(int rows, const matrix* src) {
  storage::build(*this, storage::kNoRoom, rows, src->pX);
  const std::int64_t taken = std::min(addressing::cellCount(*this), addressing::cellCount(*src));
  std::copy_n(src->values, taken, values);
  std::fill(values + taken, values + addressing::cellCount(*this), kOutside);
  for (std::int64_t k = 0; k < taken; ++k) missing[k] = isMissing(src->values[k], src->missing[k]);

  const int columns = std::min(storage::describedColumns(*this), storage::describedColumns(*src));
  std::copy_n(src->counts, columns, counts);
  std::copy_n(src->weightcorr, columns, weightcorr);
  std::copy_n(src->weights, std::min(storage::weightedRows(*this), storage::weightedRows(*src)), weights);
  sumOfWeights = src->sumOfWeights;
  if (src->normalized == 1) {
    std::copy_n(src->normu, columns, normu);
    std::copy_n(src->norsigma, columns, norsigma);
    normalized = 1;
  }
}

matrix::~matrix() { storage::release(*this); }

// Shallow on purpose, see the header.
matrix& matrix::operator=(const matrix& other) = default;

void matrix::weighting(const double* w) {
  if (w == nullptr) return;
  const int rows = storage::weightedRows(*this);
  std::copy_n(w, rows, weights);
  sumOfWeights = std::accumulate(w, w + rows, 0.0);
}

double matrix::getNorMu(int j) const {
  return normalized == 1 && j >= 0 && j < storage::describedColumns(*this) ? normu[j] : kOutside;
}

double matrix::getNorSigma(int j) const {
  return normalized == 1 && j >= 0 && j < storage::describedColumns(*this) ? norsigma[j] : kOutside;
}

double matrix::getWeightcorr(int j) const {
  if (j < 0 || j >= storage::describedColumns(*this)) return kOutside;
  return weightcorr[j] == 0.0 ? 1.0 : weightcorr[j];
}
