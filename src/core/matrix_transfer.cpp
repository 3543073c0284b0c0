// Copies between a matrix and plain arrays, other containers, rows and columns.

#include <algorithm>
#include <vector>

#include "core/addressing.h"
#include "core/storage.h"
#include "kavoratb1c/matrix.h"
#include "numerics/scalar.h"

using namespace kav;

namespace {

/// Gives dest another shape. False, and dest as it was, when it was not built with that many cells.
bool reshape(matrix* dest, int rows, int columns) {
  if (dest == nullptr) return false;
  if (addressing::cellCount(rows, columns) > storage::builtSizes(*dest).cells()) return false;
  dest->nX = rows;
  dest->pX = columns;
  return true;
}

/// The element rule for the first count cells of dest, which lie inside it.
void writeCells(matrix* dest, const double* source, std::int64_t count) {
  for (std::int64_t k = 0; k < count; ++k) {
    if (!dest->missing[k]) dest->values[k] = source[k];
  }
  if (count > 0) dest->descValid = 0;
}

void writeTransposed(matrix* dest, const double* source, int sourceRows, int sourceColumns) {
  for (int j = 0; j < sourceColumns; ++j) {
    for (int i = 0; i < sourceRows; ++i) {
      const std::int64_t k = addressing::linearIndex(j, i, sourceColumns);
      if (!dest->missing[k]) dest->values[k] = source[addressing::linearIndex(i, j, sourceRows)];
    }
  }
}

}  // namespace

void matrix::matCheck(matrix*& target, int nX, int pX, double v) {
  if (addressing::designatesContainer(target) && target->nX == nX && target->pX == pX) {
    std::fill_n(target->values, addressing::cellCount(*target), v);
  } else {
    target = new matrix(nX, pX, v);
  }
}

void matrix::copyMatTo(double* out) const {
  if (out == nullptr) return;
  const std::int64_t count = addressing::cellCount(*this);
  std::copy_n(values, count, out);
  const bool* const end = missing + count;
  for (const bool* flag = missing; (flag = std::find(flag, end, true)) != end; ++flag) {
    out[flag - missing] = kMissing;
  }
}

void matrix::copyMatTo(double* out, int* rows, int* cols) const {
  if (rows != nullptr) *rows = nX;
  if (cols != nullptr) *cols = pX;
  if (out != nullptr) std::copy_n(values, addressing::cellCount(*this), out);
}

void matrix::copyMatTo(int* out) const {
  if (out != nullptr)
    std::transform(values, values + addressing::cellCount(*this), out, scalar::truncateToInt);
}

void matrix::copyMatTo(short* out) const {
  if (out == nullptr) return;
  std::transform(values, values + addressing::cellCount(*this), out,
                 [](double x) { return asFlag(x != 0.0); });
}

void matrix::copyMatTo(matrix* dest) const {
  if (reshape(dest, nX, pX)) writeCells(dest, values, addressing::cellCount(*this));
}

void matrix::copyCol(const matrix* src, int srcCol, int dstCol) {
  if (srcCol < 0 || dstCol < 0 || srcCol >= src->pX || dstCol >= pX) return;
  for (int i = 0; i < src->nX; ++i) setElement(i, dstCol, src->getElement(i, srcCol));
}

void matrix::copyLine(const matrix* src, int srcRow, int dstRow) {
  if (srcRow < 0 || dstRow < 0 || srcRow >= src->nX || dstRow >= nX) return;
  for (int j = 0; j < src->pX; ++j) setElement(dstRow, j, src->getElement(srcRow, j));
}

void matrix::transferLineFrom(matrix* src, int srcRow, int dstRow) {
  if (srcRow < 0 || dstRow < 0 || srcRow >= src->nX || dstRow >= nX) return;
  for (int j = 0; j < src->pX; ++j) {
    const double mine = getElement(dstRow, j);
    setElement(dstRow, j, src->getElement(srcRow, j));
    src->setElement(srcRow, j, mine);
  }
}

void matrix::vectorizeTo(matrix* dest) const {
  // The stacked table has as many rows as this one has cells; where an int cannot count them dest cannot hold
  // them.
  const std::int64_t count = addressing::cellCount(*this);
  if (count != static_cast<int>(count)) return;
  if (reshape(dest, static_cast<int>(count), 1)) writeCells(dest, values, count);
}

void matrix::transposeTo(matrix* dest) const {
  const int rows = nX;
  const int columns = pX;
  const std::int64_t count = addressing::cellCount(*this);
  const std::vector<double> kept = dest != nullptr && dest->values == values
                                       ? std::vector<double>(values, values + count)
                                       : std::vector<double>();
  if (!reshape(dest, columns, rows)) return;
  writeTransposed(dest, kept.empty() ? values : kept.data(), rows, columns);
  if (count > 0) dest->descValid = 0;
}
