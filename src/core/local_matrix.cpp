#include "core/local_matrix.h"

#include <algorithm>

#include "core/addressing.h"
#include "core/arrival.h"

namespace kav {

namespace {

/// The array's memory serves as values where that is possible.
void viewOrCopy(matrix& m, storage::Room room, int rows, int columns, const double* a, bool keepAll) {
  const std::int64_t cells = addressing::cellCount(rows, columns);
  double* const values = arrival::usableInPlace(a, cells, keepAll);
  storage::build(m, room, rows, columns, values);
  if (values == nullptr) arrival::store(m, a, cells, keepAll);
}

}  // namespace

LocalMatrix::LocalMatrix(int rows, int columns, const double* a, bool keepAll) : matrix(0, 0) {
  viewOrCopy(*this, room(), rows, columns, a, keepAll);
}

LocalMatrix::LocalMatrix(int rows, int columns, const int* a) : matrix(0, 0) {
  storage::build(*this, room(), rows, columns);
  arrival::store(*this, a);
}

LocalMatrix::LocalMatrix(int rows, int columns, const short* a) : matrix(0, 0) {
  storage::build(*this, room(), rows, columns);
  arrival::store(*this, a);
}

LocalTarget::LocalTarget(int rows, int columns) : matrix(0, 0) {
  storage::build(*this, room(), rows, columns);
  std::fill_n(values, addressing::cellCount(*this), 0.0);
}

LocalTarget::LocalTarget(int rows, int columns, const double* a, bool keepAll) : matrix(0, 0) {
  storage::build(*this, room(), rows, columns);
  arrival::store(*this, a, addressing::cellCount(*this), keepAll);
}

LocalTarget::LocalTarget(int rows, int columns, const int* a, bool) : matrix(0, 0) {
  storage::build(*this, room(), rows, columns);
  arrival::store(*this, a);
}

LocalTarget::LocalTarget(int rows, int columns, const short* a, bool) : matrix(0, 0) {
  storage::build(*this, room(), rows, columns);
  arrival::store(*this, a);
}

LocalTarget::LocalTarget(int rows, int columns, double* a, InPlace, bool keepAll) : matrix(0, 0) {
  viewOrCopy(*this, room(), rows, columns, a, keepAll);
}

}  // namespace kav
