#include "kavoratb1c/tables/single_columns.h"

#include <algorithm>

#include "access/block.h"
#include "access/results.h"
#include "access/texts.h"
#include "numerics/range.h"

using namespace kav;

namespace {

double cellOf(const matrix* a, int i, int j) { return a == nullptr ? kOutside : a->getElement(i, j); }

}  // namespace

void CopyMatrixColToMatrixCol(const matrix* a, int n, int column, matrix* b, int toColumn) {
  if (b == nullptr || column < 1 || toColumn < 1) return;
  for (int i = 0; i < n; ++i) b->setElement(i, toColumn - 1, cellOf(a, i, column - 1));
}

void CopyMatrixColToVector(const matrix* a, int n, int column, matrix*& x) {
  results::refilled(x, n, 1, 1, [&](block::Target& target) {
    for (int i = 0; i < n; ++i) target[i] = column < 1 ? 0.0 : cellOf(a, i, column - 1);
  });
}

void CopyMatrixColToOneColMat(const Smatrix* a, int n, int column, Smatrix*& x) {
  Smatrix::matCheck(x, n, 1);
  texts::fill(*x,
              [&](int i, int) { return column < 1 ? std::u16string_view() : texts::cell(a, i, column - 1); });
}

void CopyMatrixRowToMatrixRow(const matrix* a, int n, int p, int row, matrix* b, int n2, int toRow) {
  if (b == nullptr || row < 1 || row > n || toRow < 1 || toRow > n2) return;
  for (int j = 0; j < p; ++j) b->setElement(toRow - 1, j, cellOf(a, row - 1, j));
}
